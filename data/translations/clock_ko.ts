<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_cloc_title">
        <source>Clock</source>
        <translation>시계</translation>
    </message>
    <message id="qtn_cloc_alarms_header">
        <source>Alarms</source>
        <translation>알람</translation>
    </message>
    <message id="qtn_cloc_new_alarm">
        <source>New alarm</source>
        <extracomment>Spoken name of the button with the plus sign.</extracomment>
        <translation>새 알람</translation>
    </message>
    <message id="qtn_cloc_no_alarms">
        <source>No alarms yet</source>
        <translation>아직 알람이 없음</translation>
    </message>
    <message id="qtn_cloc_no_alarms_hint">
        <source>Tap + to add your first one.</source>
        <translation>+를 탭하여 첫 알람을 추가하세요.</translation>
    </message>
    <message id="qtn_cloc_alarm_title">
        <source>Alarm</source>
        <extracomment>Title of an alarm that was saved without one.</extracomment>
        <translation>알람</translation>
    </message>
    <message id="qtn_cloc_alarm_title_tooltip">
        <source>Alarm name</source>
        <extracomment>Prompt in the empty title field.</extracomment>
        <translation>알람 이름</translation>
    </message>
    <message id="qtn_cloc_time_left_alarm">
        <source>Alarm in %1</source>
        <extracomment>%1 is a span of time, "07:05" or "about 3 days".</extracomment>
        <translation>%1 후에 알람이 울립니다</translation>
    </message>
    <message id="qtn_cloc_about_days" numerus="yes">
        <source>about %n day(s)</source>
        <translation>
            <numerusform>약 %n일</numerusform>
        </translation>
    </message>
    <message id="qtn_cloc_set_repeat">
        <source>Repeat</source>
        <extracomment>Title of the dialog in which weekdays are chosen.</extracomment>
        <translation>반복</translation>
    </message>
    <message id="qtn_cloc_repeatalarm_rulenever">
        <source>Never</source>
        <translation>안 함</translation>
    </message>
    <message id="qtn_cloc_repeatalarm_ruleeveryday">
        <source>Every day</source>
        <translation>매일</translation>
    </message>
    <message id="qtn_cloc_more_options">
        <source>More options</source>
        <translation>추가 옵션</translation>
    </message>
    <message id="qtn_cloc_alarm_options">
        <source>Alarm options</source>
        <translation>알람 옵션</translation>
    </message>
    <message id="qtn_cloc_alarmeditor_repeattitle">
        <source>Repeat</source>
        <translation>반복</translation>
    </message>
    <message id="qtn_cloc_alarmeditor_snoozesetting">
        <source>Snooze</source>
        <translation>다시 알림</translation>
    </message>
    <message id="qtn_cloc_alarmeditor_snooze" numerus="yes">
        <source>%1 minute(s)</source>
        <extracomment>%1 is the number that the form is picked by.</extracomment>
        <translation>
            <numerusform>%1분</numerusform>
        </translation>
    </message>
    <message id="qtn_cloc_alarmeditor_tone">
        <source>Alarm tone</source>
        <translation>알람음</translation>
    </message>
    <message id="qtn_cloc_alarm_save_error">
        <source>The alarm could not be saved</source>
        <translation>알람을 저장할 수 없습니다</translation>
    </message>
    <message id="qtn_cloc_alarm_delete_error">
        <source>The alarm could not be deleted</source>
        <translation>알람을 삭제할 수 없습니다</translation>
    </message>
    <message id="qtn_cloc_reset_alarm">
        <source>Clocks go forward</source>
        <extracomment>Title of the question about an alarm at a time that summer time skips.</extracomment>
        <translation>서머타임 시작</translation>
    </message>
    <message id="qtn_cloc_dst_transition_warning">
        <source>The clocks change before this alarm, so it would not ring at the time you chose. Set it to %1 instead?</source>
        <extracomment>%1 is the time one hour earlier.</extracomment>
        <translation>이 알람 전에 시각이 바뀌므로 선택한 시각에 울리지 않습니다. 대신 %1(으)로 설정할까요?</translation>
    </message>
    <message id="qtn_cloc_set_manually">
        <source>Choose another time</source>
        <translation>다른 시각 선택</translation>
    </message>
    <message id="qtn_comm_time_am">
        <source>AM</source>
        <translation>오전</translation>
    </message>
    <message id="qtn_comm_ok">
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message id="qtn_comm_save">
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message id="qtn_comm_cancel">
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message id="qtn_comm_command_done">
        <source>Done</source>
        <extracomment>On the input method's key that ends the editing of the title.</extracomment>
        <translation>완료</translation>
    </message>
    <message id="qtn_comm_delete">
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message id="qtn_comm_back">
        <source>Back</source>
        <extracomment>Spoken name of the button that leads one page back.</extracomment>
        <translation>뒤로</translation>
    </message>
    <message id="qtn_comm_home">
        <source>Home screen</source>
        <extracomment>Spoken name of the button that puts the window out of the way.</extracomment>
        <translation>홈 화면</translation>
    </message>
    <message id="qtn_comm_navigation">
        <source>Navigation</source>
        <extracomment>Spoken name of the bar with a page's buttons and menu.</extracomment>
        <translation>탐색</translation>
    </message>
</context>
</TS>
