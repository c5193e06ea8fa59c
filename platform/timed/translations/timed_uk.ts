<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="uk" sourcelanguage="en">
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
        <translation>Відкладено, наступний сигнал: %1.</translation>
    </message>
    <message id="qtn_timed_stop">
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message id="qtn_timed_stopped">
        <source>Stopped.</source>
        <translation>Зупинено.</translation>
    </message>
    <message id="qtn_timed_ring_again" numerus="yes">
        <source>Ring again in %n minute(s)</source>
        <translation>
            <numerusform>Повторити через %n хвилину</numerusform>
            <numerusform>Повторити через %n хвилини</numerusform>
            <numerusform>Повторити через %n хвилин</numerusform>
        </translation>
    </message>
    <message id="qtn_timed_missed" numerus="yes">
        <source>%n missed alarm(s)</source>
        <translation>
            <numerusform>%n пропущений будильник</numerusform>
            <numerusform>%n пропущені будильники</numerusform>
            <numerusform>%n пропущених будильників</numerusform>
        </translation>
    </message>
    <message id="qtn_timed_missed_line">
        <source>%1 (%2): %3</source>
        <extracomment>The title of an alarm, the day and the time at which it should have rung, and why it did not</extracomment>
        <translation>%1 (%2): %3</translation>
    </message>
    <message id="qtn_timed_missed_off">
        <source>the device was off</source>
        <translation>пристрій було вимкнено</translation>
    </message>
    <message id="qtn_timed_missed_slept">
        <source>the device did not wake up in time</source>
        <translation>пристрій вчасно не вийшов зі сплячого режиму</translation>
    </message>
    <message id="qtn_timed_missed_clock_set">
        <source>the clock was set to a later time</source>
        <translation>годинник перевели вперед</translation>
    </message>
    <message id="qtn_timed_missed_late">
        <source>the device was not ready in time</source>
        <translation>пристрій не був готовий вчасно</translation>
    </message>
    <message id="qtn_timed_missed_unanswered">
        <source>it rang, but nobody answered</source>
        <translation>будильник дзвонив, але ніхто не відреагував</translation>
    </message>
    <message id="qtn_timed_missed_more" numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>і ще %n</numerusform>
            <numerusform>і ще %n</numerusform>
            <numerusform>і ще %n</numerusform>
        </translation>
    </message>
    <message id="qtn_timed_ring_now">
        <source>Ring now</source>
        <translation>Увімкнути зараз</translation>
    </message>
    <message id="qtn_timed_ring_title_now">
        <source>Ring now: %1</source>
        <extracomment>%1 is the title of an alarm</extracomment>
        <translation>Увімкнути зараз: %1</translation>
    </message>
    <message id="qtn_timed_restored">
        <source>Alarms were restored</source>
        <translation>Будильники відновлено</translation>
    </message>
    <message id="qtn_timed_restored_why">
        <source>The file of the alarms was damaged. An earlier copy took its place: the latest changes may be missing, please look through your alarms.</source>
        <translation>Файл будильників було пошкоджено. Його замінила раніша копія: останніх змін може бракувати, перегляньте свої будильники.</translation>
    </message>
</context>
</TS>
