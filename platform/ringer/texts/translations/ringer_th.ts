<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="th" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_ring_window">
        <source>Clock</source>
        <translation>นาฬิกา</translation>
    </message>
    <message id="qtn_ring_snooze_plain">
        <source>Snooze</source>
        <translation>เลื่อนปลุก</translation>
    </message>
    <message id="qtn_ring_stop">
        <source>Stop</source>
        <translation>หยุด</translation>
    </message>
    <message id="qtn_ring_slide_to_stop">
        <source>Slide to stop</source>
        <translation>เลื่อนเพื่อหยุด</translation>
    </message>
    <message id="qtn_ring_hold_to_stop">
        <source>Hold to stop</source>
        <translation>กดค้างเพื่อหยุด</translation>
    </message>
    <message id="qtn_ring_untitled">
        <source>Alarm</source>
        <translation>นาฬิกาปลุก</translation>
    </message>
    <message id="qtn_ring_snooze" numerus="yes">
        <source>Snooze · %n min</source>
        <translation>
            <numerusform>เลื่อนปลุก · %n นาที</numerusform>
        </translation>
    </message>
    <message id="qtn_ring_more" numerus="yes">
        <source>%n more alarm(s)</source>
        <translation>
            <numerusform>การปลุกอีก %n รายการ</numerusform>
        </translation>
    </message>
</context>
</TS>
