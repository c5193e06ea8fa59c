<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_cloc_title">
        <source>Clock</source>
        <translation>時計</translation>
    </message>
    <message id="qtn_cloc_alarms_header">
        <source>Alarms</source>
        <translation>アラーム</translation>
    </message>
    <message id="qtn_cloc_new_alarm">
        <source>New alarm</source>
        <extracomment>Spoken name of the button with the plus sign.</extracomment>
        <translation>新しいアラーム</translation>
    </message>
    <message id="qtn_cloc_no_alarms">
        <source>No alarms yet</source>
        <translation>アラームはまだありません</translation>
    </message>
    <message id="qtn_cloc_no_alarms_hint">
        <source>Tap + to add your first one.</source>
        <translation>＋をタップして追加できます。</translation>
    </message>
    <message id="qtn_cloc_alarm_title">
        <source>Alarm</source>
        <extracomment>Title of an alarm that was saved without one.</extracomment>
        <translation>アラーム</translation>
    </message>
    <message id="qtn_cloc_alarm_title_tooltip">
        <source>Alarm name</source>
        <extracomment>Prompt in the empty title field.</extracomment>
        <translation>アラーム名</translation>
    </message>
    <message id="qtn_cloc_time_left_alarm">
        <source>Alarm in %1</source>
        <extracomment>%1 is a span of time, "07:05" or "about 3 days".</extracomment>
        <translation>アラームまで%1</translation>
    </message>
    <message id="qtn_cloc_about_days" numerus="yes">
        <source>about %n day(s)</source>
        <translation>
            <numerusform>約%n日</numerusform>
        </translation>
    </message>
    <message id="qtn_cloc_set_repeat">
        <source>Repeat</source>
        <extracomment>Title of the dialog in which weekdays are chosen.</extracomment>
        <translation>繰り返し</translation>
    </message>
    <message id="qtn_cloc_repeatalarm_rulenever">
        <source>Never</source>
        <translation>しない</translation>
    </message>
    <message id="qtn_cloc_repeatalarm_ruleeveryday">
        <source>Every day</source>
        <translation>毎日</translation>
    </message>
    <message id="qtn_cloc_more_options">
        <source>More options</source>
        <translation>その他のオプション</translation>
    </message>
    <message id="qtn_cloc_alarm_options">
        <source>Alarm options</source>
        <translation>アラームのオプション</translation>
    </message>
    <message id="qtn_cloc_alarmeditor_repeattitle">
        <source>Repeat</source>
        <translation>繰り返し</translation>
    </message>
    <message id="qtn_cloc_alarmeditor_snoozesetting">
        <source>Snooze</source>
        <translation>スヌーズ</translation>
    </message>
    <message id="qtn_cloc_alarmeditor_snooze" numerus="yes">
        <source>%1 minute(s)</source>
        <extracomment>%1 is the number that the form is picked by.</extracomment>
        <translation>
            <numerusform>%1分</numerusform>
        </translation>
    </message>
    <message id="qtn_cloc_alarmeditor_tone">
        <source>Alarm tone</source>
        <translation>アラーム音</translation>
    </message>
    <message id="qtn_cloc_alarm_save_error">
        <source>The alarm could not be saved</source>
        <translation>アラームを保存できませんでした</translation>
    </message>
    <message id="qtn_cloc_alarm_delete_error">
        <source>The alarm could not be deleted</source>
        <translation>アラームを削除できませんでした</translation>
    </message>
    <message id="qtn_cloc_reset_alarm">
        <source>Clocks go forward</source>
        <extracomment>Title of the question about an alarm at a time that summer time skips.</extracomment>
        <translation>夏時間が始まります</translation>
    </message>
    <message id="qtn_cloc_dst_transition_warning">
        <source>The clocks change before this alarm, so it would not ring at the time you chose. Set it to %1 instead?</source>
        <extracomment>%1 is the time one hour earlier.</extracomment>
        <translation>このアラームの前に時刻が変更されるため、選択した時刻には鳴りません。代わりに%1に設定しますか？</translation>
    </message>
    <message id="qtn_cloc_set_manually">
        <source>Choose another time</source>
        <translation>別の時刻を選択</translation>
    </message>
    <message id="qtn_comm_time_am">
        <source>AM</source>
        <translation>午前</translation>
    </message>
    <message id="qtn_comm_ok">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="qtn_comm_save">
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message id="qtn_comm_cancel">
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message id="qtn_comm_command_done">
        <source>Done</source>
        <extracomment>On the input method's key that ends the editing of the title.</extracomment>
        <translation>完了</translation>
    </message>
    <message id="qtn_comm_delete">
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message id="qtn_comm_back">
        <source>Back</source>
        <extracomment>Spoken name of the button that leads one page back.</extracomment>
        <translation>戻る</translation>
    </message>
    <message id="qtn_comm_home">
        <source>Home screen</source>
        <extracomment>Spoken name of the button that puts the window out of the way.</extracomment>
        <translation>ホーム画面</translation>
    </message>
    <message id="qtn_comm_navigation">
        <source>Navigation</source>
        <extracomment>Spoken name of the bar with a page's buttons and menu.</extracomment>
        <translation>ナビゲーション</translation>
    </message>
</context>
</TS>
