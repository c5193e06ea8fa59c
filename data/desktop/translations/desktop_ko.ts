<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: CC0-1.0 -->
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_desk_generic_name">
        <source>Alarm Clock</source>
        <extracomment>What the menu of programs calls it where the name alone would say little.</extracomment>
        <translation>알람 시계</translation>
    </message>
    <message id="qtn_desk_comment">
        <source>See the time and set alarms that ring</source>
        <extracomment>One line, without a full stop, in the menu of programs and in software centres.</extracomment>
        <translation>시각을 확인하고 울리는 알람을 설정</translation>
    </message>
    <message id="qtn_desk_keywords">
        <source>alarm;wake;time;snooze;</source>
        <extracomment>What the menu finds it by, each with a semicolon after it.</extracomment>
        <translation>알람;기상;시각;다시 알림;</translation>
    </message>
    <message id="qtn_desk_about">
        <source>A clock face and your alarms, made for a touch screen and at home on a desktop. The alarms live in a daemon of their own: they ring whether the clock is open or not, go by local time through summer time and journeys, and ring aloud even if their tone is missing or broken.</source>
        <extracomment>The first paragraph in software centres; the lines below it follow as a list.</extracomment>
        <translation>시계 화면과 알람으로, 터치스크린에 맞게 만들어졌고 데스크톱에서도 편합니다. 알람은 전용 서비스에서 동작합니다. 시계가 열려 있지 않아도 울리고, 서머타임과 여행 중에도 현지 시각을 따르며, 알람 소리가 없거나 손상되어도 크게 울립니다.</translation>
    </message>
    <message id="qtn_desk_repeats">
        <source>Alarms that repeat on the days you choose, with thirteen tones of their own or any file of yours</source>
        <translation>선택한 요일마다 반복되는 알람, 열세 가지 기본 소리 또는 내 파일 사용</translation>
    </message>
    <message id="qtn_desk_answers">
        <source>Stop is a slide and Snooze is large, so that no alarm ends by accident</source>
        <translation>중단은 밀어서 하고 다시 알림 버튼은 커서, 실수로 알람이 끝나지 않음</translation>
    </message>
    <message id="qtn_desk_honest">
        <source>Tells what was missed, and why; the command alarmctl proves beforehand that the next alarm will be heard</source>
        <translation>무엇을 놓쳤고 왜 그런지 알려 주며, alarmctl 명령이 다음 알람이 들릴 것을 미리 확인</translation>
    </message>
    <message id="qtn_desk_everyone">
        <source>Light and dark, large text, right-to-left languages, keyboard and screen reader</source>
        <translation>밝은 모양과 어두운 모양, 큰 글자, 오른쪽에서 왼쪽으로 쓰는 언어, 키보드, 화면 낭독기 지원</translation>
    </message>
    <message id="qtn_desk_picture_main">
        <source>The main page: clock face and four alarms</source>
        <extracomment>Below a picture, as the three that follow.</extracomment>
        <translation>기본 화면: 시계 화면과 알람 네 개</translation>
    </message>
    <message id="qtn_desk_picture_editor">
        <source>The editor: a dial for the time</source>
        <translation>편집 화면: 시각을 고르는 다이얼</translation>
    </message>
    <message id="qtn_desk_picture_ring">
        <source>An alarm rings: snooze, or slide to stop</source>
        <translation>알람이 울릴 때: 다시 알림 또는 밀어서 중단</translation>
    </message>
    <message id="qtn_desk_picture_dark">
        <source>The main page in the dark</source>
        <translation>어두운 모양의 기본 화면</translation>
    </message>
</context>
</TS>
