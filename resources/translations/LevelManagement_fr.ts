<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>LevelManagement</name>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Legacy</source>
        <translation>Échelle de gris</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Automatique (déconseillé)</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dynamique</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>Binaire</translation>
    </message>
    <message>
        <source>BinaryCustom</source>
        <translation>Binaire personnalisé</translation>
    </message>
    <message>
        <source>Trilevel</source>
        <translation>Échelle de gris (S)</translation>
    </message>
    <message>
        <source>OctaGrayscale</source>
        <translation>Échelle de gris</translation>
    </message>
    <message>
        <source>DodeGrayscale</source>
        <translation>Échelle de gris</translation>
    </message>
    <message>
        <source>FiftGrayscale</source>
        <translation>Échelle de gris</translation>
    </message>
    <message>
        <source>HexaGrayscale</source>
        <translation>Échelle de gris</translation>
    </message>
</context>
</TS>
