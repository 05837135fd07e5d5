<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE">
<context>
    <name>PrinterClass</name>
    <message>
        <source>Inkjet</source>
        <translation>Industriell bläckstråle</translation>
    </message>
    <message>
        <source>Plotter</source>
        <translation>Plotter</translation>
    </message>
    <message>
        <source>Engraver</source>
        <translation>Laserlab</translation>
    </message>
    <message>
        <source>Dryjet</source>
        <translation>Torr industriell</translation>
    </message>
    <message>
        <source>Develop</source>
        <translation>Utveckla</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Okänd</translation>
    </message>
</context>
</TS>
