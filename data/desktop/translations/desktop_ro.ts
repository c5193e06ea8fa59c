<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: CC0-1.0 -->
<TS version="2.1" language="ro" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_desk_generic_name">
        <source>Alarm Clock</source>
        <extracomment>What the menu of programs calls it where the name alone would say little.</extracomment>
        <translation>Ceas deșteptător</translation>
    </message>
    <message id="qtn_desk_comment">
        <source>See the time and set alarms that ring</source>
        <extracomment>One line, without a full stop, in the menu of programs and in software centres.</extracomment>
        <translation>Vedeți ora și setați alarme care sună</translation>
    </message>
    <message id="qtn_desk_keywords">
        <source>alarm;wake;time;snooze;</source>
        <extracomment>What the menu finds it by, each with a semicolon after it.</extracomment>
        <translation>alarmă;deșteptător;oră;amânare;</translation>
    </message>
    <message id="qtn_desk_about">
        <source>A clock face and your alarms, made for a touch screen and at home on a desktop. The alarms live in a daemon of their own: they ring whether the clock is open or not, go by local time through summer time and journeys, and ring aloud even if their tone is missing or broken.</source>
        <extracomment>The first paragraph in software centres; the lines below it follow as a list.</extracomment>
        <translation>Un cadran și alarmele dumneavoastră, făcute pentru ecranul tactil și potrivite și pe calculator. Alarmele trăiesc într-un serviciu al lor: sună fie că ceasul este deschis, fie că nu, urmează ora locală la ora de vară și în călătorii și sună tare chiar dacă tonul lor lipsește sau este deteriorat.</translation>
    </message>
    <message id="qtn_desk_repeats">
        <source>Alarms that repeat on the days you choose, with thirteen tones of their own or any file of yours</source>
        <translation>Alarme care se repetă în zilele alese, cu treisprezece tonuri proprii sau orice fișier al dumneavoastră</translation>
    </message>
    <message id="qtn_desk_answers">
        <source>Stop is a slide and Snooze is large, so that no alarm ends by accident</source>
        <translation>Oprirea se face prin glisare, iar Amânare este mare, ca nicio alarmă să nu se încheie din greșeală</translation>
    </message>
    <message id="qtn_desk_honest">
        <source>Tells what was missed, and why; the command alarmctl proves beforehand that the next alarm will be heard</source>
        <translation>Spune ce s-a pierdut și de ce; comanda alarmctl dovedește dinainte că următoarea alarmă se va auzi</translation>
    </message>
    <message id="qtn_desk_everyone">
        <source>Light and dark, large text, right-to-left languages, keyboard and screen reader</source>
        <translation>Aspect luminos și întunecat, text mare, limbi de la dreapta la stânga, tastatură și cititor de ecran</translation>
    </message>
    <message id="qtn_desk_picture_main">
        <source>The main page: clock face and four alarms</source>
        <extracomment>Below a picture, as the three that follow.</extracomment>
        <translation>Pagina principală: cadranul și patru alarme</translation>
    </message>
    <message id="qtn_desk_picture_editor">
        <source>The editor: a dial for the time</source>
        <translation>Editorul: un cadran pentru oră</translation>
    </message>
    <message id="qtn_desk_picture_ring">
        <source>An alarm rings: snooze, or slide to stop</source>
        <translation>O alarmă sună: amânați sau glisați pentru a opri</translation>
    </message>
    <message id="qtn_desk_picture_dark">
        <source>The main page in the dark</source>
        <translation>Pagina principală pe întuneric</translation>
    </message>
</context>
</TS>
