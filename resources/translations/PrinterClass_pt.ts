<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>PrinterClass</name>
    <message>
        <source>Inkjet</source>
        <translation>Industriais com jato de tinta</translation>
    </message>
    <message>
        <source>Plotter</source>
        <translation>Plotter</translation>
    </message>
    <message>
        <source>Engraver</source>
        <translation>Incisores a laser</translation>
    </message>
    <message>
        <source>Dryjet</source>
        <translation>Industriais com seco</translation>
    </message>
    <message>
        <source>Develop</source>
        <translation>Desenvolvimento</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconhecido</translation>
    </message>
</context>
</TS>
