<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name></name>
    <message id="planet_earth">
        <source></source>
        <translation>Erde</translation>
    </message>
    <message id="planet_mars">
        <source></source>
        <translation>Mars auf Deutsch</translation>
    </message>
</context>
</TS>
