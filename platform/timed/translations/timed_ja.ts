<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_timed_application">
        <source>Alarms</source>
        <translation>アラーム</translation>
    </message>
    <message id="qtn_timed_untitled">
        <source>Alarm</source>
        <translation>アラーム</translation>
    </message>
    <message id="qtn_timed_day_and_time">
        <source>%1, %2</source>
        <extracomment>A day, such as Fri, Nov 20, and a time of day</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message id="qtn_timed_snoozed">
        <source>Snoozed, rings again at %1.</source>
        <extracomment>%1 is a time of day</extracomment>
        <translation>スヌーズ中、%1にもう一度鳴ります。</translation>
    </message>
    <message id="qtn_timed_stop">
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message id="qtn_timed_stopped">
        <source>Stopped.</source>
        <translation>停止しました。</translation>
    </message>
    <message id="qtn_timed_ring_again" numerus="yes">
        <source>Ring again in %n minute(s)</source>
        <translation>
            <numerusform>%n分後にもう一度鳴らす</numerusform>
        </translation>
    </message>
    <message id="qtn_timed_missed" numerus="yes">
        <source>%n missed alarm(s)</source>
        <translation>
            <numerusform>逃したアラーム：%n件</numerusform>
        </translation>
    </message>
    <message id="qtn_timed_missed_line">
        <source>%1 (%2): %3</source>
        <extracomment>The title of an alarm, the day and the time at which it should have rung, and why it did not</extracomment>
        <translation>%1（%2）：%3</translation>
    </message>
    <message id="qtn_timed_missed_off">
        <source>the device was off</source>
        <translation>デバイスの電源が切れていました</translation>
    </message>
    <message id="qtn_timed_missed_slept">
        <source>the device did not wake up in time</source>
        <translation>デバイスが時間までにスリープから復帰しませんでした</translation>
    </message>
    <message id="qtn_timed_missed_clock_set">
        <source>the clock was set to a later time</source>
        <translation>時計が進められました</translation>
    </message>
    <message id="qtn_timed_missed_late">
        <source>the device was not ready in time</source>
        <translation>デバイスの準備が間に合いませんでした</translation>
    </message>
    <message id="qtn_timed_missed_unanswered">
        <source>it rang, but nobody answered</source>
        <translation>鳴りましたが、応答がありませんでした</translation>
    </message>
    <message id="qtn_timed_missed_more" numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>ほか%n件</numerusform>
        </translation>
    </message>
    <message id="qtn_timed_ring_now">
        <source>Ring now</source>
        <translation>今すぐ鳴らす</translation>
    </message>
    <message id="qtn_timed_ring_title_now">
        <source>Ring now: %1</source>
        <extracomment>%1 is the title of an alarm</extracomment>
        <translation>今すぐ鳴らす：%1</translation>
    </message>
    <message id="qtn_timed_restored">
        <source>Alarms were restored</source>
        <translation>アラームを復元しました</translation>
    </message>
    <message id="qtn_timed_restored_why">
        <source>The file of the alarms was damaged. An earlier copy took its place: the latest changes may be missing, please look through your alarms.</source>
        <translation>アラームのファイルが壊れていたため、以前のコピーに置き換えました。最近の変更が失われている可能性があります。アラームを確認してください。</translation>
    </message>
</context>
</TS>
