<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>PrinterClass</name>
    <message>
        <source>Inkjet</source>
        <translation>Industriales de chorro de tinta</translation>
    </message>
    <message>
        <source>Plotter</source>
        <translation>Plotter</translation>
    </message>
    <message>
        <source>Engraver</source>
        <translation>Grabadores láser</translation>
    </message>
    <message>
        <source>Dryjet</source>
        <translation>Industriales de seco</translation>
    </message>
    <message>
        <source>Develop</source>
        <translation>Desarrollo</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
</context>
</TS>
