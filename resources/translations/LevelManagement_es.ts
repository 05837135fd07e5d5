<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>LevelManagement</name>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Legacy</source>
        <translation>Escala de gris</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Automático (obsoleto)</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dinámico</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Binario</translation>
    </message>
    <message>
        <source>BinaryCustom</source>
        <translation>Binario costumbre</translation>
    </message>
    <message>
        <source>Trilevel</source>
        <translation>Escala de gris (S)</translation>
    </message>
    <message>
        <source>OctaGrayscale</source>
        <translation>Escala de gris</translation>
    </message>
    <message>
        <source>DodeGrayscale</source>
        <translation>Escala de gris</translation>
    </message>
    <message>
        <source>FiftGrayscale</source>
        <translation>Escala de gris</translation>
    </message>
    <message>
        <source>HexaGrayscale</source>
        <translation>Escala de gris</translation>
    </message>
</context>
</TS>
