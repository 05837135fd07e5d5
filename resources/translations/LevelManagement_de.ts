<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>LevelManagement</name>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>Legacy</source>
        <translation>Grauskala</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Automatisch (veraltet)</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dynamisch</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Binär</translation>
    </message>
    <message>
        <source>BinaryCustom</source>
        <translation>Benutzerdefinierter Binärmodus</translation>
    </message>
    <message>
        <source>Trilevel</source>
        <translation>Grauskala (S)</translation>
    </message>
    <message>
        <source>OctaGrayscale</source>
        <translation>Grauskala</translation>
    </message>
    <message>
        <source>DodeGrayscale</source>
        <translation>Grauskala</translation>
    </message>
    <message>
        <source>FiftGrayscale</source>
        <translation>Grauskala</translation>
    </message>
    <message>
        <source>HexaGrayscale</source>
        <translation>Grauskala</translation>
    </message>
</context>
</TS>
