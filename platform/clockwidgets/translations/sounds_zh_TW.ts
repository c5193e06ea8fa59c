<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_sond_browser_title">
        <source>Alarm tone</source>
        <extracomment>Spoken name of the sheet in which a tone is chosen.</extracomment>
        <translation>鬧鐘鈴聲</translation>
    </message>
    <message id="qtn_sond_ringtone_nosound">
        <source>No sound</source>
        <extracomment>The tone of an alarm that only shows itself and vibrates.</extracomment>
        <translation>無聲</translation>
    </message>
    <message id="qtn_sond_own_music">
        <source>My music</source>
        <extracomment>Stands below the title of a tone that is a file of the user's own.</extracomment>
        <translation>我的音樂</translation>
    </message>
    <message id="qtn_sond_selected">
        <source>selected</source>
        <extracomment>Spoken after the title of the chosen tone.</extracomment>
        <translation>已選取</translation>
    </message>
    <message id="qtn_sond_done">
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message id="qtn_sond_cancel">
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
</TS>
