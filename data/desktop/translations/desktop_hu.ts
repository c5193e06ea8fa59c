<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: CC0-1.0 -->
<TS version="2.1" language="hu" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_desk_generic_name">
        <source>Alarm Clock</source>
        <extracomment>What the menu of programs calls it where the name alone would say little.</extracomment>
        <translation>Ébresztőóra</translation>
    </message>
    <message id="qtn_desk_comment">
        <source>See the time and set alarms that ring</source>
        <extracomment>One line, without a full stop, in the menu of programs and in software centres.</extracomment>
        <translation>Pontos idő és ébresztések, amelyek megszólalnak</translation>
    </message>
    <message id="qtn_desk_keywords">
        <source>alarm;wake;time;snooze;</source>
        <extracomment>What the menu finds it by, each with a semicolon after it.</extracomment>
        <translation>ébresztő;ébresztés;idő;szundi;</translation>
    </message>
    <message id="qtn_desk_about">
        <source>A clock face and your alarms, made for a touch screen and at home on a desktop. The alarms live in a daemon of their own: they ring whether the clock is open or not, go by local time through summer time and journeys, and ring aloud even if their tone is missing or broken.</source>
        <extracomment>The first paragraph in software centres; the lines below it follow as a list.</extracomment>
        <translation>Számlap és az ébresztései, érintőképernyőre készítve, de asztali gépen is otthon. Az ébresztések saját szolgáltatásban élnek: megszólalnak, akár nyitva van az óra, akár nincs, nyári időszámításkor és utazáskor is a helyi időt követik, és hangosan szólnak akkor is, ha a hangjuk hiányzik vagy sérült.</translation>
    </message>
    <message id="qtn_desk_repeats">
        <source>Alarms that repeat on the days you choose, with thirteen tones of their own or any file of yours</source>
        <translation>A választott napokon ismétlődő ébresztések tizenhárom saját hanggal vagy bármely fájljával</translation>
    </message>
    <message id="qtn_desk_answers">
        <source>Stop is a slide and Snooze is large, so that no alarm ends by accident</source>
        <translation>Leállítani csúsztatással lehet, a Szundi pedig nagy, így egyetlen ébresztés sem ér véget véletlenül</translation>
    </message>
    <message id="qtn_desk_honest">
        <source>Tells what was missed, and why; the command alarmctl proves beforehand that the next alarm will be heard</source>
        <translation>Megmondja, mi maradt el és miért; az alarmctl parancs előre igazolja, hogy a következő ébresztés hallható lesz</translation>
    </message>
    <message id="qtn_desk_everyone">
        <source>Light and dark, large text, right-to-left languages, keyboard and screen reader</source>
        <translation>Világos és sötét megjelenés, nagy betűk, jobbról balra író nyelvek, billentyűzet és képernyőolvasó</translation>
    </message>
    <message id="qtn_desk_picture_main">
        <source>The main page: clock face and four alarms</source>
        <extracomment>Below a picture, as the three that follow.</extracomment>
        <translation>A főoldal: számlap és négy ébresztés</translation>
    </message>
    <message id="qtn_desk_picture_editor">
        <source>The editor: a dial for the time</source>
        <translation>A szerkesztő: tárcsa az időponthoz</translation>
    </message>
    <message id="qtn_desk_picture_ring">
        <source>An alarm rings: snooze, or slide to stop</source>
        <translation>Egy ébresztés szól: szundi vagy csúsztatás a leállításhoz</translation>
    </message>
    <message id="qtn_desk_picture_dark">
        <source>The main page in the dark</source>
        <translation>A főoldal sötétben</translation>
    </message>
</context>
</TS>
