<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: CC0-1.0 -->
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_desk_generic_name">
        <source>Alarm Clock</source>
        <extracomment>What the menu of programs calls it where the name alone would say little.</extracomment>
        <translation>Wecker</translation>
    </message>
    <message id="qtn_desk_comment">
        <source>See the time and set alarms that ring</source>
        <extracomment>One line, without a full stop, in the menu of programs and in software centres.</extracomment>
        <translation>Die Uhrzeit sehen und Wecker stellen, die klingeln</translation>
    </message>
    <message id="qtn_desk_keywords">
        <source>alarm;wake;time;snooze;</source>
        <extracomment>What the menu finds it by, each with a semicolon after it.</extracomment>
        <translation>Wecker;Wecken;Uhrzeit;Schlummern;</translation>
    </message>
    <message id="qtn_desk_about">
        <source>A clock face and your alarms, made for a touch screen and at home on a desktop. The alarms live in a daemon of their own: they ring whether the clock is open or not, go by local time through summer time and journeys, and ring aloud even if their tone is missing or broken.</source>
        <extracomment>The first paragraph in software centres; the lines below it follow as a list.</extracomment>
        <translation>Ein Zifferblatt und deine Wecker, für den Touchscreen gemacht und auf dem Desktop zu Hause. Die Wecker leben in einem eigenen Dienst: Sie klingeln, ob die Uhr offen ist oder nicht, richten sich bei Sommerzeit und auf Reisen nach der Ortszeit und klingeln laut, selbst wenn ihr Ton fehlt oder beschädigt ist.</translation>
    </message>
    <message id="qtn_desk_repeats">
        <source>Alarms that repeat on the days you choose, with thirteen tones of their own or any file of yours</source>
        <translation>Wecker, die sich an den gewählten Tagen wiederholen, mit dreizehn eigenen Tönen oder jeder deiner Dateien</translation>
    </message>
    <message id="qtn_desk_answers">
        <source>Stop is a slide and Snooze is large, so that no alarm ends by accident</source>
        <translation>Zum Stoppen wird geschoben, und Schlummern ist groß, damit kein Wecker aus Versehen endet</translation>
    </message>
    <message id="qtn_desk_honest">
        <source>Tells what was missed, and why; the command alarmctl proves beforehand that the next alarm will be heard</source>
        <translation>Sagt, was verpasst wurde und warum; der Befehl alarmctl belegt vorab, dass der nächste Wecker zu hören sein wird</translation>
    </message>
    <message id="qtn_desk_everyone">
        <source>Light and dark, large text, right-to-left languages, keyboard and screen reader</source>
        <translation>Hell und dunkel, große Schrift, Sprachen von rechts nach links, Tastatur und Bildschirmleser</translation>
    </message>
    <message id="qtn_desk_picture_main">
        <source>The main page: clock face and four alarms</source>
        <extracomment>Below a picture, as the three that follow.</extracomment>
        <translation>Die Hauptseite: Zifferblatt und vier Wecker</translation>
    </message>
    <message id="qtn_desk_picture_editor">
        <source>The editor: a dial for the time</source>
        <translation>Der Editor: ein Drehrad für die Uhrzeit</translation>
    </message>
    <message id="qtn_desk_picture_ring">
        <source>An alarm rings: snooze, or slide to stop</source>
        <translation>Ein Wecker klingelt: schlummern oder zum Stoppen schieben</translation>
    </message>
    <message id="qtn_desk_picture_dark">
        <source>The main page in the dark</source>
        <translation>Die Hauptseite im Dunkeln</translation>
    </message>
</context>
</TS>
