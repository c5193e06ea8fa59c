<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="uk" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_ring_window">
        <source>Clock</source>
        <translation>Годинник</translation>
    </message>
    <message id="qtn_ring_snooze_plain">
        <source>Snooze</source>
        <translation>Відкласти</translation>
    </message>
    <message id="qtn_ring_stop">
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message id="qtn_ring_slide_to_stop">
        <source>Slide to stop</source>
        <translation>Посуньте, щоб зупинити</translation>
    </message>
    <message id="qtn_ring_hold_to_stop">
        <source>Hold to stop</source>
        <translation>Утримуйте, щоб зупинити</translation>
    </message>
    <message id="qtn_ring_untitled">
        <source>Alarm</source>
        <translation>Будильник</translation>
    </message>
    <message id="qtn_ring_snooze" numerus="yes">
        <source>Snooze · %n min</source>
        <translation>
            <numerusform>Відкласти · %n хв</numerusform>
            <numerusform>Відкласти · %n хв</numerusform>
            <numerusform>Відкласти · %n хв</numerusform>
        </translation>
    </message>
    <message id="qtn_ring_more" numerus="yes">
        <source>%n more alarm(s)</source>
        <translation>
            <numerusform>Ще %n будильник</numerusform>
            <numerusform>Ще %n будильники</numerusform>
            <numerusform>Ще %n будильників</numerusform>
        </translation>
    </message>
</context>
</TS>
