<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_timed_application">
        <source>Alarms</source>
        <translation>알람</translation>
    </message>
    <message id="qtn_timed_untitled">
        <source>Alarm</source>
        <translation>알람</translation>
    </message>
    <message id="qtn_timed_day_and_time">
        <source>%1, %2</source>
        <extracomment>A day, such as Fri, Nov 20, and a time of day</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message id="qtn_timed_snoozed">
        <source>Snoozed, rings again at %1.</source>
        <extracomment>%1 is a time of day</extracomment>
        <translation>다시 알림, %1에 다시 울립니다.</translation>
    </message>
    <message id="qtn_timed_stop">
        <source>Stop</source>
        <translation>중단</translation>
    </message>
    <message id="qtn_timed_stopped">
        <source>Stopped.</source>
        <translation>중단됨.</translation>
    </message>
    <message id="qtn_timed_ring_again" numerus="yes">
        <source>Ring again in %n minute(s)</source>
        <translation>
            <numerusform>%n분 후 다시 울리기</numerusform>
        </translation>
    </message>
    <message id="qtn_timed_missed" numerus="yes">
        <source>%n missed alarm(s)</source>
        <translation>
            <numerusform>놓친 알람 %n개</numerusform>
        </translation>
    </message>
    <message id="qtn_timed_missed_line">
        <source>%1 (%2): %3</source>
        <extracomment>The title of an alarm, the day and the time at which it should have rung, and why it did not</extracomment>
        <translation>%1 (%2): %3</translation>
    </message>
    <message id="qtn_timed_missed_off">
        <source>the device was off</source>
        <translation>기기가 꺼져 있었음</translation>
    </message>
    <message id="qtn_timed_missed_slept">
        <source>the device did not wake up in time</source>
        <translation>기기가 제시간에 깨어나지 않음</translation>
    </message>
    <message id="qtn_timed_missed_clock_set">
        <source>the clock was set to a later time</source>
        <translation>시계가 더 늦은 시각으로 변경됨</translation>
    </message>
    <message id="qtn_timed_missed_late">
        <source>the device was not ready in time</source>
        <translation>기기가 제시간에 준비되지 않음</translation>
    </message>
    <message id="qtn_timed_missed_unanswered">
        <source>it rang, but nobody answered</source>
        <translation>울렸지만 아무도 응답하지 않음</translation>
    </message>
    <message id="qtn_timed_missed_more" numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>외 %n개</numerusform>
        </translation>
    </message>
    <message id="qtn_timed_ring_now">
        <source>Ring now</source>
        <translation>지금 울리기</translation>
    </message>
    <message id="qtn_timed_ring_title_now">
        <source>Ring now: %1</source>
        <extracomment>%1 is the title of an alarm</extracomment>
        <translation>지금 울리기: %1</translation>
    </message>
    <message id="qtn_timed_restored">
        <source>Alarms were restored</source>
        <translation>알람이 복원됨</translation>
    </message>
    <message id="qtn_timed_restored_why">
        <source>The file of the alarms was damaged. An earlier copy took its place: the latest changes may be missing, please look through your alarms.</source>
        <translation>알람 파일이 손상되어 이전 사본으로 대체되었습니다. 최근 변경 사항이 없을 수 있으니 알람을 확인하세요.</translation>
    </message>
</context>
</TS>
