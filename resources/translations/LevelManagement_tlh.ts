<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>LevelManagement</name>
    <message>
        <source>None</source>
        <translation>pagh</translation>
    </message>
    <message>
        <source>Legacy</source>
        <translation>grayscale</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>automatic (deprecated)</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>dynamic</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>binary</translation>
    </message>
    <message>
        <source>BinaryCustom</source>
        <translation>tIgh ghoch</translation>
    </message>
    <message>
        <source>Trilevel</source>
        <translation>greyscale (s)</translation>
    </message>
    <message>
        <source>OctaGrayscale</source>
        <translation>grayscale</translation>
    </message>
    <message>
        <source>DodeGrayscale</source>
        <translation>grayscale</translation>
    </message>
    <message>
        <source>FiftGrayscale</source>
        <translation>grayscale</translation>
    </message>
    <message>
        <source>HexaGrayscale</source>
        <translation>grayscale</translation>
    </message>
</context>
</TS>
