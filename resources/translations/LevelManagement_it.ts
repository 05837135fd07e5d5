<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>LevelManagement</name>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Legacy</source>
        <translation>Scala di grigio</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Automatico (deprecato)</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dinamico</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Binario</translation>
    </message>
    <message>
        <source>BinaryCustom</source>
        <translation>Binario personalizzato</translation>
    </message>
    <message>
        <source>Trilevel</source>
        <translation>Scala di grigio (S)</translation>
    </message>
    <message>
        <source>TetraL3Masking</source>
        <translation>Mascheramento</translation>
    </message>
    <message>
        <source>OctaGrayscale</source>
        <translation>Scala di grigio</translation>
    </message>
    <message>
        <source>DodeGrayscale</source>
        <translation>Scala di grigio</translation>
    </message>
    <message>
        <source>FiftGrayscale</source>
        <translation>Scala di grigio</translation>
    </message>
    <message>
        <source>HexaGrayscale</source>
        <translation>Scala di grigio</translation>
    </message>
</context>
</TS>
