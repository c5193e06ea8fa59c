<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name></name>
    <message id="planet_count" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n планета</numerusform>
            <numerusform>%n планеты</numerusform>
            <numerusform>%n планет</numerusform>
        </translation>
    </message>
</context>
</TS>
