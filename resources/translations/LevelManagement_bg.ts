<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="bg_BG">
<context>
    <name>LevelManagement</name>
    <message>
        <source>None</source>
        <translation>Няма</translation>
    </message>
    <message>
        <source>Legacy</source>
        <translation>Скала на сивото</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Автоматично (отхвърлена)</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Динамично</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Бинарно</translation>
    </message>
    <message>
        <source>BinaryCustom</source>
        <translation>Персонализирано бинарно</translation>
    </message>
    <message>
        <source>Trilevel</source>
        <translation>Скала на сивото (S)</translation>
    </message>
    <message>
        <source>OctaGrayscale</source>
        <translation>Скала на сивото</translation>
    </message>
    <message>
        <source>DodeGrayscale</source>
        <translation>Скала на сивото</translation>
    </message>
    <message>
        <source>FiftGrayscale</source>
        <translation>Скала на сивото</translation>
    </message>
    <message>
        <source>HexaGrayscale</source>
        <translation>Скала на сивото</translation>
    </message>
</context>
</TS>
