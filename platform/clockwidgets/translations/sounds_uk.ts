<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="uk" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_sond_browser_title">
        <source>Alarm tone</source>
        <extracomment>Spoken name of the sheet in which a tone is chosen.</extracomment>
        <translation>Мелодія</translation>
    </message>
    <message id="qtn_sond_ringtone_nosound">
        <source>No sound</source>
        <extracomment>The tone of an alarm that only shows itself and vibrates.</extracomment>
        <translation>Без звуку</translation>
    </message>
    <message id="qtn_sond_own_music">
        <source>My music</source>
        <extracomment>Stands below the title of a tone that is a file of the user's own.</extracomment>
        <translation>Моя музика</translation>
    </message>
    <message id="qtn_sond_selected">
        <source>selected</source>
        <extracomment>Spoken after the title of the chosen tone.</extracomment>
        <translation>вибрано</translation>
    </message>
    <message id="qtn_sond_done">
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message id="qtn_sond_cancel">
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message id="qtn_sond_choose_file">
        <source>Choose a file…</source>
        <extracomment>The row above the tones that leads to one’s own files, and the spoken name of where it leads.</extracomment>
        <translation>Вибрати файл…</translation>
    </message>
    <message id="qtn_sond_places">
        <source>Places</source>
        <extracomment>Title of the list of places where sound files may lie: music, downloads, home, memory cards.</extracomment>
        <translation>Місця</translation>
    </message>
    <message id="qtn_sond_place_music">
        <source>Music</source>
        <extracomment>The user’s folder for music.</extracomment>
        <translation>Музика</translation>
    </message>
    <message id="qtn_sond_place_downloads">
        <source>Downloads</source>
        <extracomment>The user’s folder for what was downloaded.</extracomment>
        <translation>Завантаження</translation>
    </message>
    <message id="qtn_sond_place_home">
        <source>Home folder</source>
        <extracomment>The folder with all of the user’s own folders.</extracomment>
        <translation>Домашня папка</translation>
    </message>
    <message id="qtn_sond_folder_up">
        <source>Up to %1</source>
        <extracomment>Leads one folder up; %1 is the name of that folder, or “Places”.</extracomment>
        <translation>Угору: %1</translation>
    </message>
    <message id="qtn_sond_folder">
        <source>%1, folder</source>
        <extracomment>Spoken for a folder; %1 is its name.</extracomment>
        <translation>%1, папка</translation>
    </message>
    <message id="qtn_sond_folder_empty">
        <source>No sound files here</source>
        <translation>Тут немає звукових файлів</translation>
    </message>
    <message id="qtn_sond_file_unplayable">
        <source>“%1” cannot be played. The tone stays as it was.</source>
        <extracomment>%1 is the title of a sound file.</extracomment>
        <translation>Не вдається відтворити «%1». Мелодія залишається без змін.</translation>
    </message>
    <message id="qtn_sond_file_silent">
        <source>“%1” starts with silence and would not wake you. The tone stays as it was.</source>
        <extracomment>%1 is the title of a sound file.</extracomment>
        <translation>«%1» починається з тиші й не розбудить вас. Мелодія залишається без змін.</translation>
    </message>
</context>
</TS>
