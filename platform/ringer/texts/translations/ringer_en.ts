<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="qtn_ring_window">
        <source>Clock</source>
        <translation>Clock</translation>
    </message>
    <message id="qtn_ring_snooze_plain">
        <source>Snooze</source>
        <translation>Snooze</translation>
    </message>
    <message id="qtn_ring_stop">
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message id="qtn_ring_slide_to_stop">
        <source>Slide to stop</source>
        <translation>Slide to stop</translation>
    </message>
    <message id="qtn_ring_hold_to_stop">
        <source>Hold to stop</source>
        <translation>Hold to stop</translation>
    </message>
    <message id="qtn_ring_untitled">
        <source>Alarm</source>
        <translation>Alarm</translation>
    </message>
    <message id="qtn_ring_snooze" numerus="yes">
        <source>Snooze · %n min</source>
        <translation>
            <numerusform>Snooze · %n min</numerusform>
            <numerusform>Snooze · %n min</numerusform>
        </translation>
    </message>
    <message id="qtn_ring_more" numerus="yes">
        <source>%n more alarm(s)</source>
        <translation>
            <numerusform>%n more alarm</numerusform>
            <numerusform>%n more alarms</numerusform>
        </translation>
    </message>
</context>
</TS>
