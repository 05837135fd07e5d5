<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>PrinterClass</name>
    <message>
        <source>Inkjet</source>
        <translation>Industrielle Tintenstrahldrucker</translation>
    </message>
    <message>
        <source>Plotter</source>
        <translation>Plotter</translation>
    </message>
    <message>
        <source>Engraver</source>
        <translation>Lasergraveur</translation>
    </message>
    <message>
        <source>Dryjet</source>
        <translation>Industrielle Trockendrucker</translation>
    </message>
    <message>
        <source>Develop</source>
        <translation>Entwicklung</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
</context>
</TS>
