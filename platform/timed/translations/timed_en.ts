<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="qtn_timed_application">
        <source>Alarms</source>
        <translation>Alarms</translation>
    </message>
    <message id="qtn_timed_untitled">
        <source>Alarm</source>
        <translation>Alarm</translation>
    </message>
    <message id="qtn_timed_day_and_time">
        <source>%1, %2</source>
        <extracomment>A day, such as Fri, Nov 20, and a time of day</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message id="qtn_timed_snoozed">
        <source>Snoozed, rings again at %1.</source>
        <extracomment>%1 is a time of day</extracomment>
        <translation>Snoozed, rings again at %1.</translation>
    </message>
    <message id="qtn_timed_stop">
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message id="qtn_timed_stopped">
        <source>Stopped.</source>
        <translation>Stopped.</translation>
    </message>
    <message id="qtn_timed_ring_again" numerus="yes">
        <source>Ring again in %n minute(s)</source>
        <translation>
            <numerusform>Ring again in %n minute</numerusform>
            <numerusform>Ring again in %n minutes</numerusform>
        </translation>
    </message>
    <message id="qtn_timed_missed" numerus="yes">
        <source>%n missed alarm(s)</source>
        <translation>
            <numerusform>Missed alarm</numerusform>
            <numerusform>%n missed alarms</numerusform>
        </translation>
    </message>
    <message id="qtn_timed_missed_line">
        <source>%1 (%2): %3</source>
        <extracomment>The title of an alarm, the day and the time at which it should have rung, and why it did not</extracomment>
        <translation>%1 (%2): %3</translation>
    </message>
    <message id="qtn_timed_missed_off">
        <source>the device was off</source>
        <translation>the device was off</translation>
    </message>
    <message id="qtn_timed_missed_slept">
        <source>the device did not wake up in time</source>
        <translation>the device did not wake up in time</translation>
    </message>
    <message id="qtn_timed_missed_clock_set">
        <source>the clock was set to a later time</source>
        <translation>the clock was set to a later time</translation>
    </message>
    <message id="qtn_timed_missed_late">
        <source>the device was not ready in time</source>
        <translation>the device was not ready in time</translation>
    </message>
    <message id="qtn_timed_missed_unanswered">
        <source>it rang, but nobody answered</source>
        <translation>it rang, but nobody answered</translation>
    </message>
    <message id="qtn_timed_missed_more" numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
    <message id="qtn_timed_ring_now">
        <source>Ring now</source>
        <translation>Ring now</translation>
    </message>
    <message id="qtn_timed_ring_title_now">
        <source>Ring now: %1</source>
        <extracomment>%1 is the title of an alarm</extracomment>
        <translation>Ring now: %1</translation>
    </message>
    <message id="qtn_timed_restored">
        <source>Alarms were restored</source>
        <translation>Alarms were restored</translation>
    </message>
    <message id="qtn_timed_restored_why">
        <source>The file of the alarms was damaged. An earlier copy took its place: the latest changes may be missing, please look through your alarms.</source>
        <translation>The file of the alarms was damaged. An earlier copy took its place: the latest changes may be missing, please look through your alarms.</translation>
    </message>
</context>
</TS>
