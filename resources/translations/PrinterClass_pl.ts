<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL">
<context>
    <name>PrinterClass</name>
    <message>
        <source>Inkjet</source>
        <translation>Przemysłowe atramentowe</translation>
    </message>
    <message>
        <source>Plotter</source>
        <translation>Ploter</translation>
    </message>
    <message>
        <source>Engraver</source>
        <translation>Grawery laserowe</translation>
    </message>
    <message>
        <source>Dryjet</source>
        <translation>Przemysłowe na sucho</translation>
    </message>
    <message>
        <source>Develop</source>
        <translation>Rozwinięcie</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Nieznany</translation>
    </message>
</context>
</TS>
