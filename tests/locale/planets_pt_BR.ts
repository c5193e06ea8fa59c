<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name></name>
    <message id="planet_earth">
        <source></source>
        <translation>Terra</translation>
    </message>
</context>
</TS>
