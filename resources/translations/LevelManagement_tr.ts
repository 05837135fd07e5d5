<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR">
<context>
    <name>LevelManagement</name>
    <message>
        <source>None</source>
        <translation>Hiçbiri</translation>
    </message>
    <message>
        <source>Legacy</source>
        <translation>Gri ton skalası</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Otomatik (eski)</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dinamik</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>İkili</translation>
    </message>
    <message>
        <source>BinaryCustom</source>
        <translation>Kişiselleştirilmiş ikili</translation>
    </message>
    <message>
        <source>Trilevel</source>
        <translation>Gri ton skalası (S)</translation>
    </message>
    <message>
        <source>OctaGrayscale</source>
        <translation>Gri ton skalası</translation>
    </message>
    <message>
        <source>DodeGrayscale</source>
        <translation>Gri ton skalası</translation>
    </message>
    <message>
        <source>FiftGrayscale</source>
        <translation>Gri ton skalası</translation>
    </message>
    <message>
        <source>HexaGrayscale</source>
        <translation>Gri ton skalası</translation>
    </message>
</context>
</TS>
