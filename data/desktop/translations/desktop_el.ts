<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: CC0-1.0 -->
<TS version="2.1" language="el" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_desk_generic_name">
        <source>Alarm Clock</source>
        <extracomment>What the menu of programs calls it where the name alone would say little.</extracomment>
        <translation>Ξυπνητήρι</translation>
    </message>
    <message id="qtn_desk_comment">
        <source>See the time and set alarms that ring</source>
        <extracomment>One line, without a full stop, in the menu of programs and in software centres.</extracomment>
        <translation>Δείτε την ώρα και βάλτε ξυπνητήρια που χτυπούν</translation>
    </message>
    <message id="qtn_desk_keywords">
        <source>alarm;wake;time;snooze;</source>
        <extracomment>What the menu finds it by, each with a semicolon after it.</extracomment>
        <translation>ξυπνητήρι;αφύπνιση;ώρα;αναβολή;</translation>
    </message>
    <message id="qtn_desk_about">
        <source>A clock face and your alarms, made for a touch screen and at home on a desktop. The alarms live in a daemon of their own: they ring whether the clock is open or not, go by local time through summer time and journeys, and ring aloud even if their tone is missing or broken.</source>
        <extracomment>The first paragraph in software centres; the lines below it follow as a list.</extracomment>
        <translation>Ένα ρολόι με δείκτες και τα ξυπνητήριά σας, φτιαγμένο για οθόνη αφής και άνετο στον υπολογιστή. Τα ξυπνητήρια ζουν σε δική τους υπηρεσία: χτυπούν είτε το ρολόι είναι ανοιχτό είτε όχι, ακολουθούν την τοπική ώρα στη θερινή ώρα και στα ταξίδια, και χτυπούν δυνατά ακόμα κι αν ο ήχος τους λείπει ή έχει χαλάσει.</translation>
    </message>
    <message id="qtn_desk_repeats">
        <source>Alarms that repeat on the days you choose, with thirteen tones of their own or any file of yours</source>
        <translation>Ξυπνητήρια που επαναλαμβάνονται τις ημέρες που επιλέγετε, με δεκατρείς δικούς τους ήχους ή οποιοδήποτε αρχείο σας</translation>
    </message>
    <message id="qtn_desk_answers">
        <source>Stop is a slide and Snooze is large, so that no alarm ends by accident</source>
        <translation>Η διακοπή γίνεται με σύρσιμο και η αναβολή είναι μεγάλη, ώστε κανένα ξυπνητήρι να μη σταματά κατά λάθος</translation>
    </message>
    <message id="qtn_desk_honest">
        <source>Tells what was missed, and why; the command alarmctl proves beforehand that the next alarm will be heard</source>
        <translation>Λέει τι χάθηκε και γιατί· η εντολή alarmctl αποδεικνύει εκ των προτέρων ότι το επόμενο ξυπνητήρι θα ακουστεί</translation>
    </message>
    <message id="qtn_desk_everyone">
        <source>Light and dark, large text, right-to-left languages, keyboard and screen reader</source>
        <translation>Φωτεινή και σκούρα όψη, μεγάλα γράμματα, γλώσσες από δεξιά προς αριστερά, πληκτρολόγιο και αναγνώστης οθόνης</translation>
    </message>
    <message id="qtn_desk_picture_main">
        <source>The main page: clock face and four alarms</source>
        <extracomment>Below a picture, as the three that follow.</extracomment>
        <translation>Η κύρια σελίδα: ρολόι και τέσσερα ξυπνητήρια</translation>
    </message>
    <message id="qtn_desk_picture_editor">
        <source>The editor: a dial for the time</source>
        <translation>Η επεξεργασία: ένα καντράν για την ώρα</translation>
    </message>
    <message id="qtn_desk_picture_ring">
        <source>An alarm rings: snooze, or slide to stop</source>
        <translation>Ένα ξυπνητήρι χτυπά: αναβολή ή σύρσιμο για διακοπή</translation>
    </message>
    <message id="qtn_desk_picture_dark">
        <source>The main page in the dark</source>
        <translation>Η κύρια σελίδα στο σκοτάδι</translation>
    </message>
</context>
</TS>
