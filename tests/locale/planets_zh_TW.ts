<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name></name>
    <message id="planet_earth">
        <source></source>
        <translation>地球，繁體</translation>
    </message>
</context>
</TS>
