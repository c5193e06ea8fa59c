<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: CC0-1.0 -->
<TS version="2.1" language="bn" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_desk_generic_name">
        <source>Alarm Clock</source>
        <extracomment>What the menu of programs calls it where the name alone would say little.</extracomment>
        <translation>অ্যালার্ম ঘড়ি</translation>
    </message>
    <message id="qtn_desk_comment">
        <source>See the time and set alarms that ring</source>
        <extracomment>One line, without a full stop, in the menu of programs and in software centres.</extracomment>
        <translation>সময় দেখুন এবং বাজে এমন অ্যালার্ম সেট করুন</translation>
    </message>
    <message id="qtn_desk_keywords">
        <source>alarm;wake;time;snooze;</source>
        <extracomment>What the menu finds it by, each with a semicolon after it.</extracomment>
        <translation>অ্যালার্ম;জাগা;সময়;স্নুজ;</translation>
    </message>
    <message id="qtn_desk_about">
        <source>A clock face and your alarms, made for a touch screen and at home on a desktop. The alarms live in a daemon of their own: they ring whether the clock is open or not, go by local time through summer time and journeys, and ring aloud even if their tone is missing or broken.</source>
        <extracomment>The first paragraph in software centres; the lines below it follow as a list.</extracomment>
        <translation>একটি ঘড়ির ডায়াল ও আপনার অ্যালার্ম, টাচ স্ক্রিনের জন্য তৈরি, ডেস্কটপেও মানানসই। অ্যালার্মগুলি নিজস্ব একটি সেবায় থাকে: ঘড়ি খোলা থাকুক বা না থাকুক সেগুলি বাজে, গ্রীষ্মকালীন সময় ও ভ্রমণেও স্থানীয় সময় মেনে চলে, এবং টোন না থাকলে বা নষ্ট হলেও জোরে বাজে।</translation>
    </message>
    <message id="qtn_desk_repeats">
        <source>Alarms that repeat on the days you choose, with thirteen tones of their own or any file of yours</source>
        <translation>আপনার বেছে নেওয়া দিনে পুনরাবৃত্ত অ্যালার্ম, তেরোটি নিজস্ব টোন বা আপনার যেকোনো ফাইল দিয়ে</translation>
    </message>
    <message id="qtn_desk_answers">
        <source>Stop is a slide and Snooze is large, so that no alarm ends by accident</source>
        <translation>থামাতে স্লাইড করতে হয় আর স্নুজ বোতাম বড়, তাই কোনো অ্যালার্ম ভুল করে শেষ হয় না</translation>
    </message>
    <message id="qtn_desk_honest">
        <source>Tells what was missed, and why; the command alarmctl proves beforehand that the next alarm will be heard</source>
        <translation>কী বাদ গেছে ও কেন, তা জানায়; alarmctl কমান্ড আগেই প্রমাণ করে যে পরের অ্যালার্ম শোনা যাবে</translation>
    </message>
    <message id="qtn_desk_everyone">
        <source>Light and dark, large text, right-to-left languages, keyboard and screen reader</source>
        <translation>হালকা ও গাঢ় রূপ, বড় লেখা, ডান থেকে বামে লেখা ভাষা, কীবোর্ড ও স্ক্রিন রিডার</translation>
    </message>
    <message id="qtn_desk_picture_main">
        <source>The main page: clock face and four alarms</source>
        <extracomment>Below a picture, as the three that follow.</extracomment>
        <translation>মূল পৃষ্ঠা: ঘড়ির ডায়াল ও চারটি অ্যালার্ম</translation>
    </message>
    <message id="qtn_desk_picture_editor">
        <source>The editor: a dial for the time</source>
        <translation>সম্পাদক: সময়ের জন্য একটি ডায়াল</translation>
    </message>
    <message id="qtn_desk_picture_ring">
        <source>An alarm rings: snooze, or slide to stop</source>
        <translation>অ্যালার্ম বাজছে: স্নুজ, বা থামাতে স্লাইড</translation>
    </message>
    <message id="qtn_desk_picture_dark">
        <source>The main page in the dark</source>
        <translation>গাঢ় রূপে মূল পৃষ্ঠা</translation>
    </message>
</context>
</TS>
