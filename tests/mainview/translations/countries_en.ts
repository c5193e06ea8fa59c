<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The Clock authors -->
<!-- SPDX-License-Identifier: LGPL-2.1-or-later -->
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="test_countries">
        <source></source>
        <translation>from countries</translation>
    </message>
    <message id="test_both">
        <source></source>
        <translation>countries first</translation>
    </message>
</context>
</TS>
