<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_cloc_title">
        <source>Clock</source>
        <translation>Uhr</translation>
    </message>
    <message id="qtn_cloc_alarms_header">
        <source>Alarms</source>
        <translation>Wecker</translation>
    </message>
    <message id="qtn_cloc_new_alarm">
        <source>New alarm</source>
        <extracomment>Spoken name of the button with the plus sign.</extracomment>
        <translation>Neuer Wecker</translation>
    </message>
    <message id="qtn_cloc_no_alarms">
        <source>No alarms yet</source>
        <translation>Noch keine Wecker</translation>
    </message>
    <message id="qtn_cloc_no_alarms_hint">
        <source>Tap + to add your first one.</source>
        <translation>Tippe auf +, um den ersten zu stellen.</translation>
    </message>
    <message id="qtn_cloc_alarm_title">
        <source>Alarm</source>
        <extracomment>Title of an alarm that was saved without one.</extracomment>
        <translation>Wecker</translation>
    </message>
    <message id="qtn_cloc_alarm_title_tooltip">
        <source>Alarm name</source>
        <extracomment>Prompt in the empty title field.</extracomment>
        <translation>Name des Weckers</translation>
    </message>
    <message id="qtn_cloc_time_left_alarm">
        <source>Alarm in %1</source>
        <extracomment>%1 is a span of time, "07:05" or "about 3 days".</extracomment>
        <translation>Wecker klingelt in %1</translation>
    </message>
    <message id="qtn_cloc_about_days" numerus="yes">
        <source>about %n day(s)</source>
        <translation>
            <numerusform>etwa %n Tag</numerusform>
            <numerusform>etwa %n Tagen</numerusform>
        </translation>
    </message>
    <message id="qtn_cloc_set_repeat">
        <source>Repeat</source>
        <extracomment>Title of the dialog in which weekdays are chosen.</extracomment>
        <translation>Wiederholen</translation>
    </message>
    <message id="qtn_cloc_repeatalarm_rulenever">
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message id="qtn_cloc_repeatalarm_ruleeveryday">
        <source>Every day</source>
        <translation>Jeden Tag</translation>
    </message>
    <message id="qtn_cloc_more_options">
        <source>More options</source>
        <translation>Weitere Optionen</translation>
    </message>
    <message id="qtn_cloc_alarm_options">
        <source>Alarm options</source>
        <translation>Weckeroptionen</translation>
    </message>
    <message id="qtn_cloc_alarmeditor_repeattitle">
        <source>Repeat</source>
        <translation>Wiederholen</translation>
    </message>
    <message id="qtn_cloc_alarmeditor_snoozesetting">
        <source>Snooze</source>
        <translation>Schlummern</translation>
    </message>
    <message id="qtn_cloc_alarmeditor_snooze" numerus="yes">
        <source>%1 minute(s)</source>
        <extracomment>%1 is the number that the form is picked by.</extracomment>
        <translation>
            <numerusform>%1 Minute</numerusform>
            <numerusform>%1 Minuten</numerusform>
        </translation>
    </message>
    <message id="qtn_cloc_alarmeditor_tone">
        <source>Alarm tone</source>
        <translation>Weckton</translation>
    </message>
    <message id="qtn_cloc_alarm_save_error">
        <source>The alarm could not be saved</source>
        <translation>Der Wecker konnte nicht gespeichert werden</translation>
    </message>
    <message id="qtn_cloc_alarm_delete_error">
        <source>The alarm could not be deleted</source>
        <translation>Der Wecker konnte nicht gelöscht werden</translation>
    </message>
    <message id="qtn_cloc_reset_alarm">
        <source>Clocks go forward</source>
        <extracomment>Title of the question about an alarm at a time that summer time skips.</extracomment>
        <translation>Beginn der Sommerzeit</translation>
    </message>
    <message id="qtn_cloc_dst_transition_warning">
        <source>The clocks change before this alarm, so it would not ring at the time you chose. Set it to %1 instead?</source>
        <extracomment>%1 is the time one hour earlier.</extracomment>
        <translation>Vor diesem Wecker werden die Uhren umgestellt, er würde also nicht zur gewählten Zeit klingeln. Stattdessen auf %1 stellen?</translation>
    </message>
    <message id="qtn_cloc_set_manually">
        <source>Choose another time</source>
        <translation>Andere Zeit</translation>
    </message>
    <message id="qtn_comm_time_am">
        <source>AM</source>
        <translation>AM</translation>
    </message>
    <message id="qtn_comm_ok">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="qtn_comm_save">
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message id="qtn_comm_cancel">
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message id="qtn_comm_command_done">
        <source>Done</source>
        <extracomment>On the input method's key that ends the editing of the title.</extracomment>
        <translation>Fertig</translation>
    </message>
    <message id="qtn_comm_delete">
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message id="qtn_comm_back">
        <source>Back</source>
        <extracomment>Spoken name of the button that leads one page back.</extracomment>
        <translation>Zurück</translation>
    </message>
    <message id="qtn_comm_home">
        <source>Home screen</source>
        <extracomment>Spoken name of the button that puts the window out of the way.</extracomment>
        <translation>Startbildschirm</translation>
    </message>
    <message id="qtn_comm_navigation">
        <source>Navigation</source>
        <extracomment>Spoken name of the bar with a page's buttons and menu.</extracomment>
        <translation>Navigation</translation>
    </message>
</context>
</TS>
