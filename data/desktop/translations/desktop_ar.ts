<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: CC0-1.0 -->
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_desk_generic_name">
        <source>Alarm Clock</source>
        <extracomment>What the menu of programs calls it where the name alone would say little.</extracomment>
        <translation>منبّه</translation>
    </message>
    <message id="qtn_desk_comment">
        <source>See the time and set alarms that ring</source>
        <extracomment>One line, without a full stop, in the menu of programs and in software centres.</extracomment>
        <translation>اعرف الوقت واضبط منبّهات ترنّ</translation>
    </message>
    <message id="qtn_desk_keywords">
        <source>alarm;wake;time;snooze;</source>
        <extracomment>What the menu finds it by, each with a semicolon after it.</extracomment>
        <translation>منبّه;إيقاظ;وقت;غفوة;</translation>
    </message>
    <message id="qtn_desk_about">
        <source>A clock face and your alarms, made for a touch screen and at home on a desktop. The alarms live in a daemon of their own: they ring whether the clock is open or not, go by local time through summer time and journeys, and ring aloud even if their tone is missing or broken.</source>
        <extracomment>The first paragraph in software centres; the lines below it follow as a list.</extracomment>
        <translation>واجهة ساعة ومنبّهاتك، صُمّمت لشاشات اللمس وتناسب سطح المكتب أيضًا. تعيش المنبّهات في خدمة خاصة بها: ترنّ سواء أكانت الساعة مفتوحة أم لا، وتتبع التوقيت المحلي في التوقيت الصيفي وفي السفر، وترنّ بصوت مسموع حتى لو كانت نغمتها مفقودة أو تالفة.</translation>
    </message>
    <message id="qtn_desk_repeats">
        <source>Alarms that repeat on the days you choose, with thirteen tones of their own or any file of yours</source>
        <translation>منبّهات تتكرر في الأيام التي تختارها، بثلاث عشرة نغمة مرفقة أو بأي ملف لديك</translation>
    </message>
    <message id="qtn_desk_answers">
        <source>Stop is a slide and Snooze is large, so that no alarm ends by accident</source>
        <translation>الإيقاف بالسحب وزر الغفوة كبير، فلا ينتهي أي منبّه عن طريق الخطأ</translation>
    </message>
    <message id="qtn_desk_honest">
        <source>Tells what was missed, and why; the command alarmctl proves beforehand that the next alarm will be heard</source>
        <translation>يخبرك بما فاتك وسببه؛ والأمر alarmctl يثبت مسبقًا أن المنبّه التالي سيُسمع</translation>
    </message>
    <message id="qtn_desk_everyone">
        <source>Light and dark, large text, right-to-left languages, keyboard and screen reader</source>
        <translation>مظهر فاتح وداكن، ونص كبير، ولغات من اليمين إلى اليسار، ولوحة مفاتيح، وقارئ شاشة</translation>
    </message>
    <message id="qtn_desk_picture_main">
        <source>The main page: clock face and four alarms</source>
        <extracomment>Below a picture, as the three that follow.</extracomment>
        <translation>الصفحة الرئيسية: واجهة الساعة وأربعة منبّهات</translation>
    </message>
    <message id="qtn_desk_picture_editor">
        <source>The editor: a dial for the time</source>
        <translation>المحرّر: قرص لاختيار الوقت</translation>
    </message>
    <message id="qtn_desk_picture_ring">
        <source>An alarm rings: snooze, or slide to stop</source>
        <translation>منبّه يرنّ: غفوة أو سحب للإيقاف</translation>
    </message>
    <message id="qtn_desk_picture_dark">
        <source>The main page in the dark</source>
        <translation>الصفحة الرئيسية بالمظهر الداكن</translation>
    </message>
</context>
</TS>
