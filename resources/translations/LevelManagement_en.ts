<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>LevelManagement</name>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Legacy</source>
        <translation>Grayscale</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Automatic (deprecated)</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dynamic</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Binary</translation>
    </message>
    <message>
        <source>BinaryCustom</source>
        <translation>Custom binary</translation>
    </message>
    <message>
        <source>Trilevel</source>
        <translation>Grayscale (S)</translation>
    </message>
    <message>
        <source>TetraL3Masking</source>
        <translation>Masking</translation>
    </message>
    <message>
        <source>OctaGrayscale</source>
        <translation>Grayscale</translation>
    </message>
    <message>
        <source>DodeGrayscale</source>
        <translation>Grayscale</translation>
    </message>
    <message>
        <source>FiftGrayscale</source>
        <translation>Grayscale</translation>
    </message>
    <message>
        <source>HexaGrayscale</source>
        <translation>Grayscale</translation>
    </message>
</context>
</TS>
