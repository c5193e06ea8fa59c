<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_AT">
<context>
    <name></name>
    <message id="planet_earth">
        <source></source>
        <translation>Heimat</translation>
    </message>
</context>
</TS>
