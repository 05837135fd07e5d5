<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL">
<context>
    <name>LevelManagement</name>
    <message>
        <source>None</source>
        <translation>Geen</translation>
    </message>
    <message>
        <source>Legacy</source>
        <translation>Grijswaarden</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Automatisch (afgeschaft)</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dynamisch</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Binair</translation>
    </message>
    <message>
        <source>BinaryCustom</source>
        <translation>Aangepast binair</translation>
    </message>
    <message>
        <source>Trilevel</source>
        <translation>Grijswaarden (S)</translation>
    </message>
    <message>
        <source>OctaGrayscale</source>
        <translation>Grijswaarden</translation>
    </message>
    <message>
        <source>DodeGrayscale</source>
        <translation>Grijswaarden</translation>
    </message>
    <message>
        <source>FiftGrayscale</source>
        <translation>Grijswaarden</translation>
    </message>
    <message>
        <source>HexaGrayscale</source>
        <translation>Grijswaarden</translation>
    </message>
</context>
</TS>
