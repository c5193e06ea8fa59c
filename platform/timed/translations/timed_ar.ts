<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_timed_application">
        <source>Alarms</source>
        <translation>المنبّهات</translation>
    </message>
    <message id="qtn_timed_untitled">
        <source>Alarm</source>
        <translation>منبّه</translation>
    </message>
    <message id="qtn_timed_day_and_time">
        <source>%1, %2</source>
        <extracomment>A day, such as Fri, Nov 20, and a time of day</extracomment>
        <translation>%1، %2</translation>
    </message>
    <message id="qtn_timed_snoozed">
        <source>Snoozed, rings again at %1.</source>
        <extracomment>%1 is a time of day</extracomment>
        <translation>غفوة، سيرنّ مجددًا في %1.</translation>
    </message>
    <message id="qtn_timed_stop">
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message id="qtn_timed_stopped">
        <source>Stopped.</source>
        <translation>تم الإيقاف.</translation>
    </message>
    <message id="qtn_timed_ring_again" numerus="yes">
        <source>Ring again in %n minute(s)</source>
        <translation>
            <numerusform>الرنين مجددًا بعد %Ln دقيقة</numerusform>
            <numerusform>الرنين مجددًا بعد دقيقة واحدة</numerusform>
            <numerusform>الرنين مجددًا بعد دقيقتين</numerusform>
            <numerusform>الرنين مجددًا بعد %Ln دقائق</numerusform>
            <numerusform>الرنين مجددًا بعد %Ln دقيقة</numerusform>
            <numerusform>الرنين مجددًا بعد %Ln دقيقة</numerusform>
        </translation>
    </message>
    <message id="qtn_timed_missed" numerus="yes">
        <source>%n missed alarm(s)</source>
        <translation>
            <numerusform>%Ln منبّه فائت</numerusform>
            <numerusform>منبّه فائت</numerusform>
            <numerusform>منبّهان فائتان</numerusform>
            <numerusform>%Ln منبّهات فائتة</numerusform>
            <numerusform>%Ln منبّهًا فائتًا</numerusform>
            <numerusform>%Ln منبّه فائت</numerusform>
        </translation>
    </message>
    <message id="qtn_timed_missed_line">
        <source>%1 (%2): %3</source>
        <extracomment>The title of an alarm, the day and the time at which it should have rung, and why it did not</extracomment>
        <translation>%1 (%2): %3</translation>
    </message>
    <message id="qtn_timed_missed_off">
        <source>the device was off</source>
        <translation>كان الجهاز مطفأً</translation>
    </message>
    <message id="qtn_timed_missed_slept">
        <source>the device did not wake up in time</source>
        <translation>لم يستيقظ الجهاز في الوقت المناسب</translation>
    </message>
    <message id="qtn_timed_missed_clock_set">
        <source>the clock was set to a later time</source>
        <translation>جرى تقديم الساعة</translation>
    </message>
    <message id="qtn_timed_missed_late">
        <source>the device was not ready in time</source>
        <translation>لم يكن الجهاز جاهزًا في الوقت المناسب</translation>
    </message>
    <message id="qtn_timed_missed_unanswered">
        <source>it rang, but nobody answered</source>
        <translation>رنّ ولم يستجب أحد</translation>
    </message>
    <message id="qtn_timed_missed_more" numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>و%Ln منبّه آخر</numerusform>
            <numerusform>ومنبّه آخر</numerusform>
            <numerusform>ومنبّهان آخران</numerusform>
            <numerusform>و%Ln منبّهات أخرى</numerusform>
            <numerusform>و%Ln منبّهًا آخر</numerusform>
            <numerusform>و%Ln منبّه آخر</numerusform>
        </translation>
    </message>
    <message id="qtn_timed_ring_now">
        <source>Ring now</source>
        <translation>الرنين الآن</translation>
    </message>
    <message id="qtn_timed_ring_title_now">
        <source>Ring now: %1</source>
        <extracomment>%1 is the title of an alarm</extracomment>
        <translation>الرنين الآن: %1</translation>
    </message>
    <message id="qtn_timed_restored">
        <source>Alarms were restored</source>
        <translation>تمت استعادة المنبّهات</translation>
    </message>
    <message id="qtn_timed_restored_why">
        <source>The file of the alarms was damaged. An earlier copy took its place: the latest changes may be missing, please look through your alarms.</source>
        <translation>كان ملف المنبّهات تالفًا. حلّت محلّه نسخة أقدم: قد تكون آخر التغييرات مفقودة، يُرجى مراجعة منبّهاتك.</translation>
    </message>
</context>
</TS>
