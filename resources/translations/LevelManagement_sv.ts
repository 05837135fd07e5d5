<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE">
<context>
    <name>LevelManagement</name>
    <message>
        <source>None</source>
        <translation>Ingen</translation>
    </message>
    <message>
        <source>Legacy</source>
        <translation>Gråskala</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Automatisk (avstängd)</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dynamisk</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Binär</translation>
    </message>
    <message>
        <source>BinaryCustom</source>
        <translation>Anpassad binär</translation>
    </message>
    <message>
        <source>Trilevel</source>
        <translation>Gråskala (S)</translation>
    </message>
    <message>
        <source>OctaGrayscale</source>
        <translation>Gråskala</translation>
    </message>
    <message>
        <source>DodeGrayscale</source>
        <translation>Gråskala</translation>
    </message>
    <message>
        <source>FiftGrayscale</source>
        <translation>Gråskala</translation>
    </message>
    <message>
        <source>HexaGrayscale</source>
        <translation>Gråskala</translation>
    </message>
</context>
</TS>
