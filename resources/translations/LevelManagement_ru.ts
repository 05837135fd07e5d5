<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>LevelManagement</name>
    <message>
        <source>None</source>
        <translation>Отсутствует</translation>
    </message>
    <message>
        <source>Legacy</source>
        <translation>Шкала серого</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Автоматический (осуждается)</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Динамический</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Бинарный</translation>
    </message>
    <message>
        <source>BinaryCustom</source>
        <translation>Персонализированный путь</translation>
    </message>
    <message>
        <source>Trilevel</source>
        <translation>Шкала серого (S)</translation>
    </message>
    <message>
        <source>OctaGrayscale</source>
        <translation>Шкала серого</translation>
    </message>
    <message>
        <source>DodeGrayscale</source>
        <translation>Шкала серого</translation>
    </message>
    <message>
        <source>FiftGrayscale</source>
        <translation>Шкала серого</translation>
    </message>
    <message>
        <source>HexaGrayscale</source>
        <translation>Шкала серого</translation>
    </message>
</context>
</TS>
