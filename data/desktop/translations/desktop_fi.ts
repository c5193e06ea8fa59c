<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: CC0-1.0 -->
<TS version="2.1" language="fi" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_desk_generic_name">
        <source>Alarm Clock</source>
        <extracomment>What the menu of programs calls it where the name alone would say little.</extracomment>
        <translation>Herätyskello</translation>
    </message>
    <message id="qtn_desk_comment">
        <source>See the time and set alarms that ring</source>
        <extracomment>One line, without a full stop, in the menu of programs and in software centres.</extracomment>
        <translation>Katso aika ja aseta herätyksiä, jotka soivat</translation>
    </message>
    <message id="qtn_desk_keywords">
        <source>alarm;wake;time;snooze;</source>
        <extracomment>What the menu finds it by, each with a semicolon after it.</extracomment>
        <translation>herätys;herätyskello;aika;torkku;</translation>
    </message>
    <message id="qtn_desk_about">
        <source>A clock face and your alarms, made for a touch screen and at home on a desktop. The alarms live in a daemon of their own: they ring whether the clock is open or not, go by local time through summer time and journeys, and ring aloud even if their tone is missing or broken.</source>
        <extracomment>The first paragraph in software centres; the lines below it follow as a list.</extracomment>
        <translation>Kellotaulu ja herätyksesi, tehty kosketusnäytölle ja kotonaan työpöydällä. Herätykset elävät omassa palvelussaan: ne soivat, oli kello auki tai ei, noudattavat paikallista aikaa kesäajan vaihtuessa ja matkoilla ja soivat kuuluvasti, vaikka niiden ääni puuttuisi tai olisi rikki.</translation>
    </message>
    <message id="qtn_desk_repeats">
        <source>Alarms that repeat on the days you choose, with thirteen tones of their own or any file of yours</source>
        <translation>Herätyksiä, jotka toistuvat valitsemina päivinäsi, kolmellatoista omalla äänellä tai millä tahansa tiedostollasi</translation>
    </message>
    <message id="qtn_desk_answers">
        <source>Stop is a slide and Snooze is large, so that no alarm ends by accident</source>
        <translation>Pysäytys on liu’utus ja Torkku on suuri, jottei mikään herätys lopu vahingossa</translation>
    </message>
    <message id="qtn_desk_honest">
        <source>Tells what was missed, and why; the command alarmctl proves beforehand that the next alarm will be heard</source>
        <translation>Kertoo, mitä jäi väliin ja miksi; komento alarmctl osoittaa etukäteen, että seuraava herätys kuuluu</translation>
    </message>
    <message id="qtn_desk_everyone">
        <source>Light and dark, large text, right-to-left languages, keyboard and screen reader</source>
        <translation>Vaalea ja tumma, suuri teksti, oikealta vasemmalle kirjoitettavat kielet, näppäimistö ja ruudunlukija</translation>
    </message>
    <message id="qtn_desk_picture_main">
        <source>The main page: clock face and four alarms</source>
        <extracomment>Below a picture, as the three that follow.</extracomment>
        <translation>Pääsivu: kellotaulu ja neljä herätystä</translation>
    </message>
    <message id="qtn_desk_picture_editor">
        <source>The editor: a dial for the time</source>
        <translation>Muokkain: kiekko kellonajalle</translation>
    </message>
    <message id="qtn_desk_picture_ring">
        <source>An alarm rings: snooze, or slide to stop</source>
        <translation>Herätys soi: torkku tai liu’uta pysäyttääksesi</translation>
    </message>
    <message id="qtn_desk_picture_dark">
        <source>The main page in the dark</source>
        <translation>Pääsivu tummana</translation>
    </message>
</context>
</TS>
