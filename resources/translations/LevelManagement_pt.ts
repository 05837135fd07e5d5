<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>LevelManagement</name>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>Legacy</source>
        <translation>Escala de cinza</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Automático (obsoleta)</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dinâmico</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Binário</translation>
    </message>
    <message>
        <source>BinaryCustom</source>
        <translation>Personalizado binário</translation>
    </message>
    <message>
        <source>Trilevel</source>
        <translation>Escala de cinza (S)</translation>
    </message>
    <message>
        <source>OctaGrayscale</source>
        <translation>Escala de cinza</translation>
    </message>
    <message>
        <source>DodeGrayscale</source>
        <translation>Escala de cinza</translation>
    </message>
    <message>
        <source>FiftGrayscale</source>
        <translation>Escala de cinza</translation>
    </message>
    <message>
        <source>HexaGrayscale</source>
        <translation>Escala de cinza</translation>
    </message>
</context>
</TS>
