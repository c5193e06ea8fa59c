<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: CC0-1.0 -->
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_desk_generic_name">
        <source>Alarm Clock</source>
        <extracomment>What the menu of programs calls it where the name alone would say little.</extracomment>
        <translation>目覚まし時計</translation>
    </message>
    <message id="qtn_desk_comment">
        <source>See the time and set alarms that ring</source>
        <extracomment>One line, without a full stop, in the menu of programs and in software centres.</extracomment>
        <translation>時刻の確認と、きちんと鳴るアラームの設定</translation>
    </message>
    <message id="qtn_desk_keywords">
        <source>alarm;wake;time;snooze;</source>
        <extracomment>What the menu finds it by, each with a semicolon after it.</extracomment>
        <translation>アラーム;目覚まし;時刻;スヌーズ;</translation>
    </message>
    <message id="qtn_desk_about">
        <source>A clock face and your alarms, made for a touch screen and at home on a desktop. The alarms live in a daemon of their own: they ring whether the clock is open or not, go by local time through summer time and journeys, and ring aloud even if their tone is missing or broken.</source>
        <extracomment>The first paragraph in software centres; the lines below it follow as a list.</extracomment>
        <translation>時計の文字盤とアラーム。タッチ画面のために作られ、デスクトップでも快適に使えます。アラームは専用のサービスで動きます。時計を開いていなくても鳴り、夏時間や旅行先でも現地の時刻に従い、アラーム音がなくなったり壊れたりしていても音を鳴らします。</translation>
    </message>
    <message id="qtn_desk_repeats">
        <source>Alarms that repeat on the days you choose, with thirteen tones of their own or any file of yours</source>
        <translation>選んだ曜日に繰り返すアラーム。13種類の専用の音、またはお持ちのファイルを使えます</translation>
    </message>
    <message id="qtn_desk_answers">
        <source>Stop is a slide and Snooze is large, so that no alarm ends by accident</source>
        <translation>停止はスライド、スヌーズは大きなボタンなので、誤ってアラームが終わることはありません</translation>
    </message>
    <message id="qtn_desk_honest">
        <source>Tells what was missed, and why; the command alarmctl proves beforehand that the next alarm will be heard</source>
        <translation>鳴らなかったアラームとその理由を知らせます。コマンド alarmctl は次のアラームが聞こえることを事前に確かめます</translation>
    </message>
    <message id="qtn_desk_everyone">
        <source>Light and dark, large text, right-to-left languages, keyboard and screen reader</source>
        <translation>ライトとダーク、大きな文字、右から左へ書く言語、キーボード、スクリーンリーダーに対応</translation>
    </message>
    <message id="qtn_desk_picture_main">
        <source>The main page: clock face and four alarms</source>
        <extracomment>Below a picture, as the three that follow.</extracomment>
        <translation>メイン画面：時計の文字盤と4つのアラーム</translation>
    </message>
    <message id="qtn_desk_picture_editor">
        <source>The editor: a dial for the time</source>
        <translation>編集画面：時刻を選ぶダイヤル</translation>
    </message>
    <message id="qtn_desk_picture_ring">
        <source>An alarm rings: snooze, or slide to stop</source>
        <translation>アラームが鳴った画面：スヌーズ、またはスライドで停止</translation>
    </message>
    <message id="qtn_desk_picture_dark">
        <source>The main page in the dark</source>
        <translation>ダーク表示のメイン画面</translation>
    </message>
</context>
</TS>
