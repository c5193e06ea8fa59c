<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: CC0-1.0 -->
<TS version="2.1" language="hi" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_desk_generic_name">
        <source>Alarm Clock</source>
        <extracomment>What the menu of programs calls it where the name alone would say little.</extracomment>
        <translation>अलार्म घड़ी</translation>
    </message>
    <message id="qtn_desk_comment">
        <source>See the time and set alarms that ring</source>
        <extracomment>One line, without a full stop, in the menu of programs and in software centres.</extracomment>
        <translation>समय देखें और बजने वाले अलार्म लगाएँ</translation>
    </message>
    <message id="qtn_desk_keywords">
        <source>alarm;wake;time;snooze;</source>
        <extracomment>What the menu finds it by, each with a semicolon after it.</extracomment>
        <translation>अलार्म;जगाना;समय;स्नूज़;</translation>
    </message>
    <message id="qtn_desk_about">
        <source>A clock face and your alarms, made for a touch screen and at home on a desktop. The alarms live in a daemon of their own: they ring whether the clock is open or not, go by local time through summer time and journeys, and ring aloud even if their tone is missing or broken.</source>
        <extracomment>The first paragraph in software centres; the lines below it follow as a list.</extracomment>
        <translation>घड़ी का डायल और आपके अलार्म, टच स्क्रीन के लिए बने और डेस्कटॉप पर भी सहज। अलार्म अपनी अलग सेवा में रहते हैं: घड़ी खुली हो या नहीं, वे बजते हैं, ग्रीष्मकालीन समय और यात्रा में स्थानीय समय के अनुसार चलते हैं, और टोन न हो या ख़राब हो तब भी ज़ोर से बजते हैं।</translation>
    </message>
    <message id="qtn_desk_repeats">
        <source>Alarms that repeat on the days you choose, with thirteen tones of their own or any file of yours</source>
        <translation>चुने हुए दिनों पर दोहराने वाले अलार्म, तेरह अपनी टोन या आपकी किसी भी फ़ाइल के साथ</translation>
    </message>
    <message id="qtn_desk_answers">
        <source>Stop is a slide and Snooze is large, so that no alarm ends by accident</source>
        <translation>रोकने के लिए खिसकाना होता है और स्नूज़ बड़ा है, ताकि कोई अलार्म गलती से बंद न हो</translation>
    </message>
    <message id="qtn_desk_honest">
        <source>Tells what was missed, and why; the command alarmctl proves beforehand that the next alarm will be heard</source>
        <translation>बताता है कि क्या छूटा और क्यों; alarmctl कमांड पहले ही साबित करती है कि अगला अलार्म सुनाई देगा</translation>
    </message>
    <message id="qtn_desk_everyone">
        <source>Light and dark, large text, right-to-left languages, keyboard and screen reader</source>
        <translation>हल्का और गहरा रूप, बड़ा टेक्स्ट, दाएँ से बाएँ लिखी जाने वाली भाषाएँ, कीबोर्ड और स्क्रीन रीडर</translation>
    </message>
    <message id="qtn_desk_picture_main">
        <source>The main page: clock face and four alarms</source>
        <extracomment>Below a picture, as the three that follow.</extracomment>
        <translation>मुख्य पेज: घड़ी का डायल और चार अलार्म</translation>
    </message>
    <message id="qtn_desk_picture_editor">
        <source>The editor: a dial for the time</source>
        <translation>संपादक: समय के लिए एक डायल</translation>
    </message>
    <message id="qtn_desk_picture_ring">
        <source>An alarm rings: snooze, or slide to stop</source>
        <translation>अलार्म बज रहा है: स्नूज़ करें, या रोकने के लिए खिसकाएँ</translation>
    </message>
    <message id="qtn_desk_picture_dark">
        <source>The main page in the dark</source>
        <translation>गहरे रूप में मुख्य पेज</translation>
    </message>
</context>
</TS>
