<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL">
<context>
    <name>PrinterClass</name>
    <message>
        <source>Inkjet</source>
        <translation>Industriële inkjet</translation>
    </message>
    <message>
        <source>Plotter</source>
        <translation>Plotter</translation>
    </message>
    <message>
        <source>Engraver</source>
        <translation>Lasergravers</translation>
    </message>
    <message>
        <source>Dryjet</source>
        <translation>Industrieel droog</translation>
    </message>
    <message>
        <source>Develop</source>
        <translation>Ontwikkelen</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Onbekend</translation>
    </message>
</context>
</TS>
