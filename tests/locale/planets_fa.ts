<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fa">
<context>
    <name></name>
    <message id="planet_place">
        <source></source>
        <translation>سیارهٔ %L1</translation>
    </message>
    <message id="planet_count" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%Ln سیاره</numerusform>
        </translation>
    </message>
</context>
</TS>
