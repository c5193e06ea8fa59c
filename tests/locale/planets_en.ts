<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name></name>
    <message id="planet_earth">
        <source></source>
        <translation>Earth</translation>
    </message>
    <message id="planet_mars">
        <source></source>
        <translation>Mars in English</translation>
    </message>
    <message id="planet_venus">
        <source></source>
        <translation>Venus in English</translation>
    </message>
    <message id="planet_count" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n planet</numerusform>
            <numerusform>%n planets</numerusform>
        </translation>
    </message>
</context>
</TS>
