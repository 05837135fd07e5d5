<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>PrinterClass</name>
    <message>
        <source>Inkjet</source>
        <translation>Industriels à jet d&apos;encre</translation>
    </message>
    <message>
        <source>Plotter</source>
        <translation>Plotter</translation>
    </message>
    <message>
        <source>Engraver</source>
        <translation>Inciseurs laser</translation>
    </message>
    <message>
        <source>Dryjet</source>
        <translation>Industriels à sec</translation>
    </message>
    <message>
        <source>Develop</source>
        <translation>Développement</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
</context>
</TS>
