<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="fi" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_ring_window">
        <source>Clock</source>
        <translation>Kello</translation>
    </message>
    <message id="qtn_ring_snooze_plain">
        <source>Snooze</source>
        <translation>Torkku</translation>
    </message>
    <message id="qtn_ring_stop">
        <source>Stop</source>
        <translation>Pysäytä</translation>
    </message>
    <message id="qtn_ring_slide_to_stop">
        <source>Slide to stop</source>
        <translation>Pysäytä liu’uttamalla</translation>
    </message>
    <message id="qtn_ring_hold_to_stop">
        <source>Hold to stop</source>
        <translation>Pysäytä pitämällä pohjassa</translation>
    </message>
    <message id="qtn_ring_untitled">
        <source>Alarm</source>
        <translation>Herätys</translation>
    </message>
    <message id="qtn_ring_snooze" numerus="yes">
        <source>Snooze · %n min</source>
        <translation>
            <numerusform>Torkku · %n min</numerusform>
            <numerusform>Torkku · %n min</numerusform>
        </translation>
    </message>
    <message id="qtn_ring_more" numerus="yes">
        <source>%n more alarm(s)</source>
        <translation>
            <numerusform>%n muu herätys</numerusform>
            <numerusform>%n muuta herätystä</numerusform>
        </translation>
    </message>
</context>
</TS>
