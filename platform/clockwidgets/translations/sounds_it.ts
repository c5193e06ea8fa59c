<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_sond_browser_title">
        <source>Alarm tone</source>
        <extracomment>Spoken name of the sheet in which a tone is chosen.</extracomment>
        <translation>Suoneria</translation>
    </message>
    <message id="qtn_sond_ringtone_nosound">
        <source>No sound</source>
        <extracomment>The tone of an alarm that only shows itself and vibrates.</extracomment>
        <translation>Nessun suono</translation>
    </message>
    <message id="qtn_sond_own_music">
        <source>My music</source>
        <extracomment>Stands below the title of a tone that is a file of the user's own.</extracomment>
        <translation>La mia musica</translation>
    </message>
    <message id="qtn_sond_selected">
        <source>selected</source>
        <extracomment>Spoken after the title of the chosen tone.</extracomment>
        <translation>selezionata</translation>
    </message>
    <message id="qtn_sond_done">
        <source>Done</source>
        <translation>Fine</translation>
    </message>
    <message id="qtn_sond_cancel">
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message id="qtn_sond_choose_file">
        <source>Choose a file…</source>
        <extracomment>The row above the tones that leads to one’s own files, and the spoken name of where it leads.</extracomment>
        <translation>Scegli un file…</translation>
    </message>
    <message id="qtn_sond_places">
        <source>Places</source>
        <extracomment>Title of the list of places where sound files may lie: music, downloads, home, memory cards.</extracomment>
        <translation>Posizioni</translation>
    </message>
    <message id="qtn_sond_place_music">
        <source>Music</source>
        <extracomment>The user’s folder for music.</extracomment>
        <translation>Musica</translation>
    </message>
    <message id="qtn_sond_place_downloads">
        <source>Downloads</source>
        <extracomment>The user’s folder for what was downloaded.</extracomment>
        <translation>Download</translation>
    </message>
    <message id="qtn_sond_place_home">
        <source>Home folder</source>
        <extracomment>The folder with all of the user’s own folders.</extracomment>
        <translation>Cartella personale</translation>
    </message>
    <message id="qtn_sond_folder_up">
        <source>Up to %1</source>
        <extracomment>Leads one folder up; %1 is the name of that folder, or “Places”.</extracomment>
        <translation>Sali a %1</translation>
    </message>
    <message id="qtn_sond_folder">
        <source>%1, folder</source>
        <extracomment>Spoken for a folder; %1 is its name.</extracomment>
        <translation>%1, cartella</translation>
    </message>
    <message id="qtn_sond_folder_empty">
        <source>No sound files here</source>
        <translation>Nessun file audio qui</translation>
    </message>
    <message id="qtn_sond_file_unplayable">
        <source>“%1” cannot be played. The tone stays as it was.</source>
        <extracomment>%1 is the title of a sound file.</extracomment>
        <translation>Impossibile riprodurre “%1”. La suoneria resta com’era.</translation>
    </message>
    <message id="qtn_sond_file_silent">
        <source>“%1” starts with silence and would not wake you. The tone stays as it was.</source>
        <extracomment>%1 is the title of a sound file.</extracomment>
        <translation>“%1” inizia con un silenzio e non ti sveglierebbe. La suoneria resta com’era.</translation>
    </message>
</context>
</TS>
