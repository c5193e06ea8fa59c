<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_ring_window">
        <source>Clock</source>
        <translation>Hodiny</translation>
    </message>
    <message id="qtn_ring_snooze_plain">
        <source>Snooze</source>
        <translation>Odložit</translation>
    </message>
    <message id="qtn_ring_stop">
        <source>Stop</source>
        <translation>Zastavit</translation>
    </message>
    <message id="qtn_ring_slide_to_stop">
        <source>Slide to stop</source>
        <translation>Zastavíte posunutím</translation>
    </message>
    <message id="qtn_ring_hold_to_stop">
        <source>Hold to stop</source>
        <translation>Zastavíte podržením</translation>
    </message>
    <message id="qtn_ring_untitled">
        <source>Alarm</source>
        <translation>Budík</translation>
    </message>
    <message id="qtn_ring_snooze" numerus="yes">
        <source>Snooze · %n min</source>
        <translation>
            <numerusform>Odložit · %n min</numerusform>
            <numerusform>Odložit · %n min</numerusform>
            <numerusform>Odložit · %n min</numerusform>
        </translation>
    </message>
    <message id="qtn_ring_more" numerus="yes">
        <source>%n more alarm(s)</source>
        <translation>
            <numerusform>Ještě %n budík</numerusform>
            <numerusform>Ještě %n budíky</numerusform>
            <numerusform>Ještě %n budíků</numerusform>
        </translation>
    </message>
</context>
</TS>
