<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name></name>
    <message id="planet_earth">
        <source></source>
        <translation>地球，简体</translation>
    </message>
</context>
</TS>
