<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: CC0-1.0 -->
<TS version="2.1" language="he" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_desk_generic_name">
        <source>Alarm Clock</source>
        <extracomment>What the menu of programs calls it where the name alone would say little.</extracomment>
        <translation>שעון מעורר</translation>
    </message>
    <message id="qtn_desk_comment">
        <source>See the time and set alarms that ring</source>
        <extracomment>One line, without a full stop, in the menu of programs and in software centres.</extracomment>
        <translation>לראות את השעה ולכוון שעונים מעוררים שמצלצלים</translation>
    </message>
    <message id="qtn_desk_keywords">
        <source>alarm;wake;time;snooze;</source>
        <extracomment>What the menu finds it by, each with a semicolon after it.</extracomment>
        <translation>שעון מעורר;השכמה;שעה;נודניק;</translation>
    </message>
    <message id="qtn_desk_about">
        <source>A clock face and your alarms, made for a touch screen and at home on a desktop. The alarms live in a daemon of their own: they ring whether the clock is open or not, go by local time through summer time and journeys, and ring aloud even if their tone is missing or broken.</source>
        <extracomment>The first paragraph in software centres; the lines below it follow as a list.</extracomment>
        <translation>לוח שעון והשעונים המעוררים שלך, לשימוש במסך מגע ונוח גם בשולחן העבודה. השעונים המעוררים נמצאים בשירות משלהם: הם מצלצלים בין שהשעון פתוח ובין שלא, פועלים לפי השעה המקומית בשעון קיץ ובנסיעות, ומצלצלים בקול גם אם הצליל שלהם חסר או פגום.</translation>
    </message>
    <message id="qtn_desk_repeats">
        <source>Alarms that repeat on the days you choose, with thirteen tones of their own or any file of yours</source>
        <translation>שעונים מעוררים שחוזרים בימים הרצויים, עם שלושה־עשר צלילים משלהם או כל קובץ שלך</translation>
    </message>
    <message id="qtn_desk_answers">
        <source>Stop is a slide and Snooze is large, so that no alarm ends by accident</source>
        <translation>עוצרים בהחלקה ולחצן הנודניק גדול, כדי ששום שעון מעורר לא ייגמר בטעות</translation>
    </message>
    <message id="qtn_desk_honest">
        <source>Tells what was missed, and why; the command alarmctl proves beforehand that the next alarm will be heard</source>
        <translation>מספר מה הוחמץ ולמה; הפקודה alarmctl מוכיחה מראש שהשעון המעורר הבא יישמע</translation>
    </message>
    <message id="qtn_desk_everyone">
        <source>Light and dark, large text, right-to-left languages, keyboard and screen reader</source>
        <translation>בהיר וכהה, טקסט גדול, שפות מימין לשמאל, מקלדת וקורא מסך</translation>
    </message>
    <message id="qtn_desk_picture_main">
        <source>The main page: clock face and four alarms</source>
        <extracomment>Below a picture, as the three that follow.</extracomment>
        <translation>העמוד הראשי: לוח השעון וארבעה שעונים מעוררים</translation>
    </message>
    <message id="qtn_desk_picture_editor">
        <source>The editor: a dial for the time</source>
        <translation>העורך: חוגה לבחירת השעה</translation>
    </message>
    <message id="qtn_desk_picture_ring">
        <source>An alarm rings: snooze, or slide to stop</source>
        <translation>שעון מעורר מצלצל: נודניק, או החלקה לעצירה</translation>
    </message>
    <message id="qtn_desk_picture_dark">
        <source>The main page in the dark</source>
        <translation>העמוד הראשי בתצוגה כהה</translation>
    </message>
</context>
</TS>
