<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="bn" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_ring_window">
        <source>Clock</source>
        <translation>ঘড়ি</translation>
    </message>
    <message id="qtn_ring_snooze_plain">
        <source>Snooze</source>
        <translation>স্নুজ</translation>
    </message>
    <message id="qtn_ring_stop">
        <source>Stop</source>
        <translation>বন্ধ করুন</translation>
    </message>
    <message id="qtn_ring_slide_to_stop">
        <source>Slide to stop</source>
        <translation>বন্ধ করতে স্লাইড করুন</translation>
    </message>
    <message id="qtn_ring_hold_to_stop">
        <source>Hold to stop</source>
        <translation>বন্ধ করতে ধরে রাখুন</translation>
    </message>
    <message id="qtn_ring_untitled">
        <source>Alarm</source>
        <translation>অ্যালার্ম</translation>
    </message>
    <message id="qtn_ring_snooze" numerus="yes">
        <source>Snooze · %n min</source>
        <translation>
            <numerusform>স্নুজ · %Ln মিনিট</numerusform>
            <numerusform>স্নুজ · %Ln মিনিট</numerusform>
        </translation>
    </message>
    <message id="qtn_ring_more" numerus="yes">
        <source>%n more alarm(s)</source>
        <translation>
            <numerusform>আরও %Lnটি অ্যালার্ম</numerusform>
            <numerusform>আরও %Lnটি অ্যালার্ম</numerusform>
        </translation>
    </message>
</context>
</TS>
