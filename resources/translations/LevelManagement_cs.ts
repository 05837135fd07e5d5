<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs_CZ">
<context>
    <name>LevelManagement</name>
    <message>
        <source>None</source>
        <translation>Žádný</translation>
    </message>
    <message>
        <source>Legacy</source>
        <translation>Stupnice šedé</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Automatický (zastaralé)</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dynamický</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Binární</translation>
    </message>
    <message>
        <source>BinaryCustom</source>
        <translation>Personalizovaná kolej</translation>
    </message>
    <message>
        <source>Trilevel</source>
        <translation>Stupnice šedé (S)</translation>
    </message>
    <message>
        <source>OctaGrayscale</source>
        <translation>Stupnice šedé</translation>
    </message>
    <message>
        <source>DodeGrayscale</source>
        <translation>Stupnice šedé</translation>
    </message>
    <message>
        <source>FiftGrayscale</source>
        <translation>Stupnice šedé</translation>
    </message>
    <message>
        <source>HexaGrayscale</source>
        <translation>Stupnice šedé</translation>
    </message>
</context>
</TS>
