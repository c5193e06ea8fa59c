<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name></name>
    <message id="qtn_timed_application">
        <source>Alarms</source>
        <translation>Будильники</translation>
    </message>
    <message id="qtn_timed_untitled">
        <source>Alarm</source>
        <translation>Будильник</translation>
    </message>
    <message id="qtn_timed_day_and_time">
        <source>%1, %2</source>
        <extracomment>A day, such as Fri, Nov 20, and a time of day</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message id="qtn_timed_snoozed">
        <source>Snoozed, rings again at %1.</source>
        <extracomment>%1 is a time of day</extracomment>
        <translation>Отложен, прозвенит снова в %1.</translation>
    </message>
    <message id="qtn_timed_stop">
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message id="qtn_timed_stopped">
        <source>Stopped.</source>
        <translation>Остановлен.</translation>
    </message>
    <message id="qtn_timed_ring_again" numerus="yes">
        <source>Ring again in %n minute(s)</source>
        <translation>
            <numerusform>Повторить через %n минуту</numerusform>
            <numerusform>Повторить через %n минуты</numerusform>
            <numerusform>Повторить через %n минут</numerusform>
        </translation>
    </message>
    <message id="qtn_timed_missed" numerus="yes">
        <source>%n missed alarm(s)</source>
        <translation>
            <numerusform>%n пропущенный будильник</numerusform>
            <numerusform>%n пропущенных будильника</numerusform>
            <numerusform>%n пропущенных будильников</numerusform>
        </translation>
    </message>
    <message id="qtn_timed_missed_line">
        <source>%1 (%2): %3</source>
        <extracomment>The title of an alarm, the day and the time at which it should have rung, and why it did not</extracomment>
        <translation>%1 (%2): %3</translation>
    </message>
    <message id="qtn_timed_missed_off">
        <source>the device was off</source>
        <translation>устройство было выключено</translation>
    </message>
    <message id="qtn_timed_missed_slept">
        <source>the device did not wake up in time</source>
        <translation>устройство вовремя не вышло из спящего режима</translation>
    </message>
    <message id="qtn_timed_missed_clock_set">
        <source>the clock was set to a later time</source>
        <translation>часы перевели вперёд</translation>
    </message>
    <message id="qtn_timed_missed_late">
        <source>the device was not ready in time</source>
        <translation>устройство не было готово вовремя</translation>
    </message>
    <message id="qtn_timed_missed_unanswered">
        <source>it rang, but nobody answered</source>
        <translation>будильник звонил, но никто не отреагировал</translation>
    </message>
    <message id="qtn_timed_missed_more" numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>и ещё %n</numerusform>
            <numerusform>и ещё %n</numerusform>
            <numerusform>и ещё %n</numerusform>
        </translation>
    </message>
    <message id="qtn_timed_ring_now">
        <source>Ring now</source>
        <translation>Включить сейчас</translation>
    </message>
    <message id="qtn_timed_ring_title_now">
        <source>Ring now: %1</source>
        <extracomment>%1 is the title of an alarm</extracomment>
        <translation>Включить сейчас: %1</translation>
    </message>
    <message id="qtn_timed_restored">
        <source>Alarms were restored</source>
        <translation>Будильники восстановлены</translation>
    </message>
    <message id="qtn_timed_restored_why">
        <source>The file of the alarms was damaged. An earlier copy took its place: the latest changes may be missing, please look through your alarms.</source>
        <translation>Файл будильников был повреждён. Вместо него взята более ранняя копия: последних изменений может не быть, проверьте свои будильники.</translation>
    </message>
</context>
</TS>
