<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: CC0-1.0 -->
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_desk_generic_name">
        <source>Alarm Clock</source>
        <extracomment>What the menu of programs calls it where the name alone would say little.</extracomment>
        <translation>Budzik</translation>
    </message>
    <message id="qtn_desk_comment">
        <source>See the time and set alarms that ring</source>
        <extracomment>One line, without a full stop, in the menu of programs and in software centres.</extracomment>
        <translation>Sprawdzaj godzinę i ustawiaj alarmy, które dzwonią</translation>
    </message>
    <message id="qtn_desk_keywords">
        <source>alarm;wake;time;snooze;</source>
        <extracomment>What the menu finds it by, each with a semicolon after it.</extracomment>
        <translation>alarm;budzik;godzina;drzemka;</translation>
    </message>
    <message id="qtn_desk_about">
        <source>A clock face and your alarms, made for a touch screen and at home on a desktop. The alarms live in a daemon of their own: they ring whether the clock is open or not, go by local time through summer time and journeys, and ring aloud even if their tone is missing or broken.</source>
        <extracomment>The first paragraph in software centres; the lines below it follow as a list.</extracomment>
        <translation>Tarcza zegara i twoje alarmy, stworzone na ekran dotykowy i wygodne na komputerze. Alarmy żyją we własnej usłudze: dzwonią niezależnie od tego, czy zegar jest otwarty, trzymają się czasu miejscowego przy zmianie na czas letni i w podróży, i dzwonią głośno, nawet gdy ich dźwięku brakuje lub jest uszkodzony.</translation>
    </message>
    <message id="qtn_desk_repeats">
        <source>Alarms that repeat on the days you choose, with thirteen tones of their own or any file of yours</source>
        <translation>Alarmy powtarzane w wybrane dni, z trzynastoma własnymi dźwiękami lub dowolnym twoim plikiem</translation>
    </message>
    <message id="qtn_desk_answers">
        <source>Stop is a slide and Snooze is large, so that no alarm ends by accident</source>
        <translation>Zatrzymuje się przesunięciem, a Drzemka jest duża, żeby żaden alarm nie skończył się przypadkiem</translation>
    </message>
    <message id="qtn_desk_honest">
        <source>Tells what was missed, and why; the command alarmctl proves beforehand that the next alarm will be heard</source>
        <translation>Mówi, co zostało pominięte i dlaczego; polecenie alarmctl z góry dowodzi, że następny alarm będzie słychać</translation>
    </message>
    <message id="qtn_desk_everyone">
        <source>Light and dark, large text, right-to-left languages, keyboard and screen reader</source>
        <translation>Jasny i ciemny wygląd, duży tekst, języki pisane od prawej do lewej, klawiatura i czytnik ekranu</translation>
    </message>
    <message id="qtn_desk_picture_main">
        <source>The main page: clock face and four alarms</source>
        <extracomment>Below a picture, as the three that follow.</extracomment>
        <translation>Strona główna: tarcza zegara i cztery alarmy</translation>
    </message>
    <message id="qtn_desk_picture_editor">
        <source>The editor: a dial for the time</source>
        <translation>Edytor: tarcza do wyboru godziny</translation>
    </message>
    <message id="qtn_desk_picture_ring">
        <source>An alarm rings: snooze, or slide to stop</source>
        <translation>Alarm dzwoni: drzemka albo przesunięcie, by zatrzymać</translation>
    </message>
    <message id="qtn_desk_picture_dark">
        <source>The main page in the dark</source>
        <translation>Strona główna w ciemnym wyglądzie</translation>
    </message>
</context>
</TS>
