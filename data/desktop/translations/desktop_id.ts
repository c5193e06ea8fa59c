<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: CC0-1.0 -->
<TS version="2.1" language="id" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_desk_generic_name">
        <source>Alarm Clock</source>
        <extracomment>What the menu of programs calls it where the name alone would say little.</extracomment>
        <translation>Jam alarm</translation>
    </message>
    <message id="qtn_desk_comment">
        <source>See the time and set alarms that ring</source>
        <extracomment>One line, without a full stop, in the menu of programs and in software centres.</extracomment>
        <translation>Lihat waktu dan setel alarm yang berbunyi</translation>
    </message>
    <message id="qtn_desk_keywords">
        <source>alarm;wake;time;snooze;</source>
        <extracomment>What the menu finds it by, each with a semicolon after it.</extracomment>
        <translation>alarm;bangun;waktu;tunda;</translation>
    </message>
    <message id="qtn_desk_about">
        <source>A clock face and your alarms, made for a touch screen and at home on a desktop. The alarms live in a daemon of their own: they ring whether the clock is open or not, go by local time through summer time and journeys, and ring aloud even if their tone is missing or broken.</source>
        <extracomment>The first paragraph in software centres; the lines below it follow as a list.</extracomment>
        <translation>Muka jam dan alarm Anda, dibuat untuk layar sentuh dan nyaman di desktop. Alarm berada di layanan tersendiri: alarm berbunyi baik jam terbuka maupun tidak, mengikuti waktu setempat pada waktu musim panas dan dalam perjalanan, serta berbunyi keras meskipun nadanya hilang atau rusak.</translation>
    </message>
    <message id="qtn_desk_repeats">
        <source>Alarms that repeat on the days you choose, with thirteen tones of their own or any file of yours</source>
        <translation>Alarm yang berulang pada hari pilihan Anda, dengan tiga belas nada bawaan atau berkas apa pun milik Anda</translation>
    </message>
    <message id="qtn_desk_answers">
        <source>Stop is a slide and Snooze is large, so that no alarm ends by accident</source>
        <translation>Hentikan dengan menggeser dan tombol Tunda berukuran besar, agar tidak ada alarm yang berakhir tanpa sengaja</translation>
    </message>
    <message id="qtn_desk_honest">
        <source>Tells what was missed, and why; the command alarmctl proves beforehand that the next alarm will be heard</source>
        <translation>Memberi tahu apa yang terlewat dan sebabnya; perintah alarmctl membuktikan sebelumnya bahwa alarm berikutnya akan terdengar</translation>
    </message>
    <message id="qtn_desk_everyone">
        <source>Light and dark, large text, right-to-left languages, keyboard and screen reader</source>
        <translation>Terang dan gelap, teks besar, bahasa kanan-ke-kiri, papan ketik, dan pembaca layar</translation>
    </message>
    <message id="qtn_desk_picture_main">
        <source>The main page: clock face and four alarms</source>
        <extracomment>Below a picture, as the three that follow.</extracomment>
        <translation>Halaman utama: muka jam dan empat alarm</translation>
    </message>
    <message id="qtn_desk_picture_editor">
        <source>The editor: a dial for the time</source>
        <translation>Penyunting: putaran untuk memilih waktu</translation>
    </message>
    <message id="qtn_desk_picture_ring">
        <source>An alarm rings: snooze, or slide to stop</source>
        <translation>Alarm berbunyi: tunda, atau geser untuk menghentikan</translation>
    </message>
    <message id="qtn_desk_picture_dark">
        <source>The main page in the dark</source>
        <translation>Halaman utama dalam tampilan gelap</translation>
    </message>
</context>
</TS>
