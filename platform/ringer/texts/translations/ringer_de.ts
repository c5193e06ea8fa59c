<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_ring_window">
        <source>Clock</source>
        <translation>Uhr</translation>
    </message>
    <message id="qtn_ring_snooze_plain">
        <source>Snooze</source>
        <translation>Schlummern</translation>
    </message>
    <message id="qtn_ring_stop">
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message id="qtn_ring_slide_to_stop">
        <source>Slide to stop</source>
        <translation>Zum Stoppen schieben</translation>
    </message>
    <message id="qtn_ring_hold_to_stop">
        <source>Hold to stop</source>
        <translation>Zum Stoppen gedrückt halten</translation>
    </message>
    <message id="qtn_ring_untitled">
        <source>Alarm</source>
        <translation>Wecker</translation>
    </message>
    <message id="qtn_ring_snooze" numerus="yes">
        <source>Snooze · %n min</source>
        <translation>
            <numerusform>Schlummern · %n Min.</numerusform>
            <numerusform>Schlummern · %n Min.</numerusform>
        </translation>
    </message>
    <message id="qtn_ring_more" numerus="yes">
        <source>%n more alarm(s)</source>
        <translation>
            <numerusform>%n weiterer Wecker</numerusform>
            <numerusform>%n weitere Wecker</numerusform>
        </translation>
    </message>
</context>
</TS>
