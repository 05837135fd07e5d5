<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs_CZ">
<context>
    <name>PrinterClass</name>
    <message>
        <source>Inkjet</source>
        <translation>Průmyslové inkoustové</translation>
    </message>
    <message>
        <source>Plotter</source>
        <translation>Plotter</translation>
    </message>
    <message>
        <source>Engraver</source>
        <translation>Laserové nože</translation>
    </message>
    <message>
        <source>Dryjet</source>
        <translation>Průmyslové čištění</translation>
    </message>
    <message>
        <source>Develop</source>
        <translation>Vývoj</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Neznámo</translation>
    </message>
</context>
</TS>
