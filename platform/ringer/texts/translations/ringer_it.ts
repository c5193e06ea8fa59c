<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_ring_window">
        <source>Clock</source>
        <translation>Orologio</translation>
    </message>
    <message id="qtn_ring_snooze_plain">
        <source>Snooze</source>
        <translation>Posticipa</translation>
    </message>
    <message id="qtn_ring_stop">
        <source>Stop</source>
        <translation>Interrompi</translation>
    </message>
    <message id="qtn_ring_slide_to_stop">
        <source>Slide to stop</source>
        <translation>Scorri per interrompere</translation>
    </message>
    <message id="qtn_ring_hold_to_stop">
        <source>Hold to stop</source>
        <translation>Tieni premuto per interrompere</translation>
    </message>
    <message id="qtn_ring_untitled">
        <source>Alarm</source>
        <translation>Sveglia</translation>
    </message>
    <message id="qtn_ring_snooze" numerus="yes">
        <source>Snooze · %n min</source>
        <translation>
            <numerusform>Posticipa · %n min</numerusform>
            <numerusform>Posticipa · %n min</numerusform>
        </translation>
    </message>
    <message id="qtn_ring_more" numerus="yes">
        <source>%n more alarm(s)</source>
        <translation>
            <numerusform>Un’altra sveglia</numerusform>
            <numerusform>Altre %n sveglie</numerusform>
        </translation>
    </message>
</context>
</TS>
