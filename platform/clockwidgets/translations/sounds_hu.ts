<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="hu" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_sond_browser_title">
        <source>Alarm tone</source>
        <extracomment>Spoken name of the sheet in which a tone is chosen.</extracomment>
        <translation>Ébresztőhang</translation>
    </message>
    <message id="qtn_sond_ringtone_nosound">
        <source>No sound</source>
        <extracomment>The tone of an alarm that only shows itself and vibrates.</extracomment>
        <translation>Nincs hang</translation>
    </message>
    <message id="qtn_sond_own_music">
        <source>My music</source>
        <extracomment>Stands below the title of a tone that is a file of the user's own.</extracomment>
        <translation>Saját zene</translation>
    </message>
    <message id="qtn_sond_selected">
        <source>selected</source>
        <extracomment>Spoken after the title of the chosen tone.</extracomment>
        <translation>kiválasztva</translation>
    </message>
    <message id="qtn_sond_done">
        <source>Done</source>
        <translation>Kész</translation>
    </message>
    <message id="qtn_sond_cancel">
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message id="qtn_sond_choose_file">
        <source>Choose a file…</source>
        <extracomment>The row above the tones that leads to one’s own files, and the spoken name of where it leads.</extracomment>
        <translation>Fájl választása…</translation>
    </message>
    <message id="qtn_sond_places">
        <source>Places</source>
        <extracomment>Title of the list of places where sound files may lie: music, downloads, home, memory cards.</extracomment>
        <translation>Helyek</translation>
    </message>
    <message id="qtn_sond_place_music">
        <source>Music</source>
        <extracomment>The user’s folder for music.</extracomment>
        <translation>Zene</translation>
    </message>
    <message id="qtn_sond_place_downloads">
        <source>Downloads</source>
        <extracomment>The user’s folder for what was downloaded.</extracomment>
        <translation>Letöltések</translation>
    </message>
    <message id="qtn_sond_place_home">
        <source>Home folder</source>
        <extracomment>The folder with all of the user’s own folders.</extracomment>
        <translation>Saját mappa</translation>
    </message>
    <message id="qtn_sond_folder_up">
        <source>Up to %1</source>
        <extracomment>Leads one folder up; %1 is the name of that folder, or “Places”.</extracomment>
        <translation>Fel ide: %1</translation>
    </message>
    <message id="qtn_sond_folder">
        <source>%1, folder</source>
        <extracomment>Spoken for a folder; %1 is its name.</extracomment>
        <translation>%1, mappa</translation>
    </message>
    <message id="qtn_sond_folder_empty">
        <source>No sound files here</source>
        <translation>Nincs itt hangfájl</translation>
    </message>
    <message id="qtn_sond_file_unplayable">
        <source>“%1” cannot be played. The tone stays as it was.</source>
        <extracomment>%1 is the title of a sound file.</extracomment>
        <translation>A(z) „%1” nem játszható le. Az ébresztőhang nem változik.</translation>
    </message>
    <message id="qtn_sond_file_silent">
        <source>“%1” starts with silence and would not wake you. The tone stays as it was.</source>
        <extracomment>%1 is the title of a sound file.</extracomment>
        <translation>A(z) „%1” csenddel kezdődik, és nem ébresztené fel. Az ébresztőhang nem változik.</translation>
    </message>
</context>
</TS>
