<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL">
<context>
    <name>LevelManagement</name>
    <message>
        <source>None</source>
        <translation>Brak</translation>
    </message>
    <message>
        <source>Legacy</source>
        <translation>Skala szarości</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Automatyczny (przestarzałe)</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dynamiczny</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Binarny</translation>
    </message>
    <message>
        <source>BinaryCustom</source>
        <translation>Tor spersonalizowany</translation>
    </message>
    <message>
        <source>Trilevel</source>
        <translation>Skala szarości (S)</translation>
    </message>
    <message>
        <source>OctaGrayscale</source>
        <translation>Skala szarości</translation>
    </message>
    <message>
        <source>DodeGrayscale</source>
        <translation>Skala szarości</translation>
    </message>
    <message>
        <source>FiftGrayscale</source>
        <translation>Skala szarości</translation>
    </message>
    <message>
        <source>HexaGrayscale</source>
        <translation>Skala szarości</translation>
    </message>
</context>
</TS>
