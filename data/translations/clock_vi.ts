<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="vi" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_cloc_title">
        <source>Clock</source>
        <translation>Đồng hồ</translation>
    </message>
    <message id="qtn_cloc_alarms_header">
        <source>Alarms</source>
        <translation>Báo thức</translation>
    </message>
    <message id="qtn_cloc_new_alarm">
        <source>New alarm</source>
        <extracomment>Spoken name of the button with the plus sign.</extracomment>
        <translation>Báo thức mới</translation>
    </message>
    <message id="qtn_cloc_no_alarms">
        <source>No alarms yet</source>
        <translation>Chưa có báo thức nào</translation>
    </message>
    <message id="qtn_cloc_no_alarms_hint">
        <source>Tap + to add your first one.</source>
        <translation>Chạm vào + để thêm báo thức đầu tiên.</translation>
    </message>
    <message id="qtn_cloc_alarm_title">
        <source>Alarm</source>
        <extracomment>Title of an alarm that was saved without one.</extracomment>
        <translation>Báo thức</translation>
    </message>
    <message id="qtn_cloc_alarm_title_tooltip">
        <source>Alarm name</source>
        <extracomment>Prompt in the empty title field.</extracomment>
        <translation>Tên báo thức</translation>
    </message>
    <message id="qtn_cloc_time_left_alarm">
        <source>Alarm in %1</source>
        <extracomment>%1 is a span of time, "07:05" or "about 3 days".</extracomment>
        <translation>Báo thức sau %1</translation>
    </message>
    <message id="qtn_cloc_about_days" numerus="yes">
        <source>about %n day(s)</source>
        <translation>
            <numerusform>khoảng %n ngày</numerusform>
        </translation>
    </message>
    <message id="qtn_cloc_set_repeat">
        <source>Repeat</source>
        <extracomment>Title of the dialog in which weekdays are chosen.</extracomment>
        <translation>Lặp lại</translation>
    </message>
    <message id="qtn_cloc_repeatalarm_rulenever">
        <source>Never</source>
        <translation>Không bao giờ</translation>
    </message>
    <message id="qtn_cloc_repeatalarm_ruleeveryday">
        <source>Every day</source>
        <translation>Hằng ngày</translation>
    </message>
    <message id="qtn_cloc_more_options">
        <source>More options</source>
        <translation>Tùy chọn khác</translation>
    </message>
    <message id="qtn_cloc_alarm_options">
        <source>Alarm options</source>
        <translation>Tùy chọn báo thức</translation>
    </message>
    <message id="qtn_cloc_alarmeditor_repeattitle">
        <source>Repeat</source>
        <translation>Lặp lại</translation>
    </message>
    <message id="qtn_cloc_alarmeditor_snoozesetting">
        <source>Snooze</source>
        <translation>Báo lại</translation>
    </message>
    <message id="qtn_cloc_alarmeditor_snooze" numerus="yes">
        <source>%1 minute(s)</source>
        <extracomment>%1 is the number that the form is picked by.</extracomment>
        <translation>
            <numerusform>%1 phút</numerusform>
        </translation>
    </message>
    <message id="qtn_cloc_alarmeditor_tone">
        <source>Alarm tone</source>
        <translation>Âm báo thức</translation>
    </message>
    <message id="qtn_cloc_alarm_save_error">
        <source>The alarm could not be saved</source>
        <translation>Không lưu được báo thức</translation>
    </message>
    <message id="qtn_cloc_alarm_delete_error">
        <source>The alarm could not be deleted</source>
        <translation>Không xóa được báo thức</translation>
    </message>
    <message id="qtn_cloc_reset_alarm">
        <source>Clocks go forward</source>
        <extracomment>Title of the question about an alarm at a time that summer time skips.</extracomment>
        <translation>Chuyển sang giờ mùa hè</translation>
    </message>
    <message id="qtn_cloc_dst_transition_warning">
        <source>The clocks change before this alarm, so it would not ring at the time you chose. Set it to %1 instead?</source>
        <extracomment>%1 is the time one hour earlier.</extracomment>
        <translation>Giờ sẽ thay đổi trước báo thức này nên nó sẽ không reo vào giờ bạn đã chọn. Bạn có muốn đặt thành %1 không?</translation>
    </message>
    <message id="qtn_cloc_set_manually">
        <source>Choose another time</source>
        <translation>Chọn giờ khác</translation>
    </message>
    <message id="qtn_comm_time_am">
        <source>AM</source>
        <translation>SA</translation>
    </message>
    <message id="qtn_comm_ok">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="qtn_comm_save">
        <source>Save</source>
        <translation>Lưu</translation>
    </message>
    <message id="qtn_comm_cancel">
        <source>Cancel</source>
        <translation>Hủy</translation>
    </message>
    <message id="qtn_comm_command_done">
        <source>Done</source>
        <extracomment>On the input method's key that ends the editing of the title.</extracomment>
        <translation>Xong</translation>
    </message>
    <message id="qtn_comm_delete">
        <source>Delete</source>
        <translation>Xóa</translation>
    </message>
    <message id="qtn_comm_back">
        <source>Back</source>
        <extracomment>Spoken name of the button that leads one page back.</extracomment>
        <translation>Quay lại</translation>
    </message>
    <message id="qtn_comm_home">
        <source>Home screen</source>
        <extracomment>Spoken name of the button that puts the window out of the way.</extracomment>
        <translation>Màn hình chính</translation>
    </message>
    <message id="qtn_comm_navigation">
        <source>Navigation</source>
        <extracomment>Spoken name of the bar with a page's buttons and menu.</extracomment>
        <translation>Điều hướng</translation>
    </message>
</context>
</TS>
