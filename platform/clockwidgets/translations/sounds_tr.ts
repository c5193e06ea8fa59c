<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_sond_browser_title">
        <source>Alarm tone</source>
        <extracomment>Spoken name of the sheet in which a tone is chosen.</extracomment>
        <translation>Alarm sesi</translation>
    </message>
    <message id="qtn_sond_ringtone_nosound">
        <source>No sound</source>
        <extracomment>The tone of an alarm that only shows itself and vibrates.</extracomment>
        <translation>Ses yok</translation>
    </message>
    <message id="qtn_sond_own_music">
        <source>My music</source>
        <extracomment>Stands below the title of a tone that is a file of the user's own.</extracomment>
        <translation>Müziğim</translation>
    </message>
    <message id="qtn_sond_selected">
        <source>selected</source>
        <extracomment>Spoken after the title of the chosen tone.</extracomment>
        <translation>seçili</translation>
    </message>
    <message id="qtn_sond_done">
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
    <message id="qtn_sond_cancel">
        <source>Cancel</source>
        <translation>Vazgeç</translation>
    </message>
</context>
</TS>
