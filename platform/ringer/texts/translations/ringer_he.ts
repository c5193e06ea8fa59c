<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="he" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_ring_window">
        <source>Clock</source>
        <translation>שעון</translation>
    </message>
    <message id="qtn_ring_snooze_plain">
        <source>Snooze</source>
        <translation>נודניק</translation>
    </message>
    <message id="qtn_ring_stop">
        <source>Stop</source>
        <translation>עצירה</translation>
    </message>
    <message id="qtn_ring_slide_to_stop">
        <source>Slide to stop</source>
        <translation>החלקה לעצירה</translation>
    </message>
    <message id="qtn_ring_hold_to_stop">
        <source>Hold to stop</source>
        <translation>לחיצה ארוכה לעצירה</translation>
    </message>
    <message id="qtn_ring_untitled">
        <source>Alarm</source>
        <translation>שעון מעורר</translation>
    </message>
    <message id="qtn_ring_snooze" numerus="yes">
        <source>Snooze · %n min</source>
        <translation>
            <numerusform>נודניק · דקה</numerusform>
            <numerusform>נודניק · %n דק׳</numerusform>
        </translation>
    </message>
    <message id="qtn_ring_more" numerus="yes">
        <source>%n more alarm(s)</source>
        <translation>
            <numerusform>עוד שעון מעורר אחד</numerusform>
            <numerusform>עוד %n שעונים מעוררים</numerusform>
        </translation>
    </message>
</context>
</TS>
