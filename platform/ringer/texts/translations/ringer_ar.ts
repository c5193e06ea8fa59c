<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_ring_window">
        <source>Clock</source>
        <translation>الساعة</translation>
    </message>
    <message id="qtn_ring_snooze_plain">
        <source>Snooze</source>
        <translation>غفوة</translation>
    </message>
    <message id="qtn_ring_stop">
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message id="qtn_ring_slide_to_stop">
        <source>Slide to stop</source>
        <translation>اسحب للإيقاف</translation>
    </message>
    <message id="qtn_ring_hold_to_stop">
        <source>Hold to stop</source>
        <translation>اضغط مطوّلاً للإيقاف</translation>
    </message>
    <message id="qtn_ring_untitled">
        <source>Alarm</source>
        <translation>منبّه</translation>
    </message>
    <message id="qtn_ring_snooze" numerus="yes">
        <source>Snooze · %n min</source>
        <translation>
            <numerusform>غفوة · %Ln دقيقة</numerusform>
            <numerusform>غفوة · دقيقة</numerusform>
            <numerusform>غفوة · دقيقتان</numerusform>
            <numerusform>غفوة · %Ln دقائق</numerusform>
            <numerusform>غفوة · %Ln دقيقة</numerusform>
            <numerusform>غفوة · %Ln دقيقة</numerusform>
        </translation>
    </message>
    <message id="qtn_ring_more" numerus="yes">
        <source>%n more alarm(s)</source>
        <translation>
            <numerusform>%Ln منبّه آخر</numerusform>
            <numerusform>منبّه آخر</numerusform>
            <numerusform>منبّهان آخران</numerusform>
            <numerusform>%Ln منبّهات أخرى</numerusform>
            <numerusform>%Ln منبّهًا آخر</numerusform>
            <numerusform>%Ln منبّه آخر</numerusform>
        </translation>
    </message>
</context>
</TS>
