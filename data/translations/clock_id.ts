<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="id" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_cloc_title">
        <source>Clock</source>
        <translation>Jam</translation>
    </message>
    <message id="qtn_cloc_alarms_header">
        <source>Alarms</source>
        <translation>Alarm</translation>
    </message>
    <message id="qtn_cloc_new_alarm">
        <source>New alarm</source>
        <extracomment>Spoken name of the button with the plus sign.</extracomment>
        <translation>Alarm baru</translation>
    </message>
    <message id="qtn_cloc_no_alarms">
        <source>No alarms yet</source>
        <translation>Belum ada alarm</translation>
    </message>
    <message id="qtn_cloc_no_alarms_hint">
        <source>Tap + to add your first one.</source>
        <translation>Ketuk + untuk menambahkan yang pertama.</translation>
    </message>
    <message id="qtn_cloc_alarm_title">
        <source>Alarm</source>
        <extracomment>Title of an alarm that was saved without one.</extracomment>
        <translation>Alarm</translation>
    </message>
    <message id="qtn_cloc_alarm_title_tooltip">
        <source>Alarm name</source>
        <extracomment>Prompt in the empty title field.</extracomment>
        <translation>Nama alarm</translation>
    </message>
    <message id="qtn_cloc_time_left_alarm">
        <source>Alarm in %1</source>
        <extracomment>%1 is a span of time, "07:05" or "about 3 days".</extracomment>
        <translation>Alarm dalam %1</translation>
    </message>
    <message id="qtn_cloc_about_days" numerus="yes">
        <source>about %n day(s)</source>
        <translation>
            <numerusform>sekitar %n hari</numerusform>
        </translation>
    </message>
    <message id="qtn_cloc_set_repeat">
        <source>Repeat</source>
        <extracomment>Title of the dialog in which weekdays are chosen.</extracomment>
        <translation>Ulangi</translation>
    </message>
    <message id="qtn_cloc_repeatalarm_rulenever">
        <source>Never</source>
        <translation>Tidak pernah</translation>
    </message>
    <message id="qtn_cloc_repeatalarm_ruleeveryday">
        <source>Every day</source>
        <translation>Setiap hari</translation>
    </message>
    <message id="qtn_cloc_more_options">
        <source>More options</source>
        <translation>Opsi lainnya</translation>
    </message>
    <message id="qtn_cloc_alarm_options">
        <source>Alarm options</source>
        <translation>Opsi alarm</translation>
    </message>
    <message id="qtn_cloc_alarmeditor_repeattitle">
        <source>Repeat</source>
        <translation>Ulangi</translation>
    </message>
    <message id="qtn_cloc_alarmeditor_snoozesetting">
        <source>Snooze</source>
        <translation>Tunda</translation>
    </message>
    <message id="qtn_cloc_alarmeditor_snooze" numerus="yes">
        <source>%1 minute(s)</source>
        <extracomment>%1 is the number that the form is picked by.</extracomment>
        <translation>
            <numerusform>%1 menit</numerusform>
        </translation>
    </message>
    <message id="qtn_cloc_alarmeditor_tone">
        <source>Alarm tone</source>
        <translation>Nada alarm</translation>
    </message>
    <message id="qtn_cloc_alarm_save_error">
        <source>The alarm could not be saved</source>
        <translation>Alarm tidak dapat disimpan</translation>
    </message>
    <message id="qtn_cloc_alarm_delete_error">
        <source>The alarm could not be deleted</source>
        <translation>Alarm tidak dapat dihapus</translation>
    </message>
    <message id="qtn_cloc_reset_alarm">
        <source>Clocks go forward</source>
        <extracomment>Title of the question about an alarm at a time that summer time skips.</extracomment>
        <translation>Jam dimajukan</translation>
    </message>
    <message id="qtn_cloc_dst_transition_warning">
        <source>The clocks change before this alarm, so it would not ring at the time you chose. Set it to %1 instead?</source>
        <extracomment>%1 is the time one hour earlier.</extracomment>
        <translation>Waktu berubah sebelum alarm ini, jadi alarm tidak akan berbunyi pada waktu yang Anda pilih. Setel ke %1 saja?</translation>
    </message>
    <message id="qtn_cloc_set_manually">
        <source>Choose another time</source>
        <translation>Pilih waktu lain</translation>
    </message>
    <message id="qtn_comm_time_am">
        <source>AM</source>
        <translation>AM</translation>
    </message>
    <message id="qtn_comm_ok">
        <source>OK</source>
        <translation>Oke</translation>
    </message>
    <message id="qtn_comm_save">
        <source>Save</source>
        <translation>Simpan</translation>
    </message>
    <message id="qtn_comm_cancel">
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
    <message id="qtn_comm_command_done">
        <source>Done</source>
        <extracomment>On the input method's key that ends the editing of the title.</extracomment>
        <translation>Selesai</translation>
    </message>
    <message id="qtn_comm_delete">
        <source>Delete</source>
        <translation>Hapus</translation>
    </message>
    <message id="qtn_comm_back">
        <source>Back</source>
        <extracomment>Spoken name of the button that leads one page back.</extracomment>
        <translation>Kembali</translation>
    </message>
    <message id="qtn_comm_home">
        <source>Home screen</source>
        <extracomment>Spoken name of the button that puts the window out of the way.</extracomment>
        <translation>Layar utama</translation>
    </message>
    <message id="qtn_comm_navigation">
        <source>Navigation</source>
        <extracomment>Spoken name of the bar with a page's buttons and menu.</extracomment>
        <translation>Navigasi</translation>
    </message>
</context>
</TS>
