<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="hi" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_ring_window">
        <source>Clock</source>
        <translation>घड़ी</translation>
    </message>
    <message id="qtn_ring_snooze_plain">
        <source>Snooze</source>
        <translation>स्नूज़</translation>
    </message>
    <message id="qtn_ring_stop">
        <source>Stop</source>
        <translation>रोकें</translation>
    </message>
    <message id="qtn_ring_slide_to_stop">
        <source>Slide to stop</source>
        <translation>रोकने के लिए खिसकाएँ</translation>
    </message>
    <message id="qtn_ring_hold_to_stop">
        <source>Hold to stop</source>
        <translation>रोकने के लिए दबाए रखें</translation>
    </message>
    <message id="qtn_ring_untitled">
        <source>Alarm</source>
        <translation>अलार्म</translation>
    </message>
    <message id="qtn_ring_snooze" numerus="yes">
        <source>Snooze · %n min</source>
        <translation>
            <numerusform>स्नूज़ · %n मिनट</numerusform>
            <numerusform>स्नूज़ · %n मिनट</numerusform>
        </translation>
    </message>
    <message id="qtn_ring_more" numerus="yes">
        <source>%n more alarm(s)</source>
        <translation>
            <numerusform>%n और अलार्म</numerusform>
            <numerusform>%n और अलार्म</numerusform>
        </translation>
    </message>
</context>
</TS>
