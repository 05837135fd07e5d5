<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR">
<context>
    <name>PrinterClass</name>
    <message>
        <source>Inkjet</source>
        <translation>Endüstriyel ink-jet</translation>
    </message>
    <message>
        <source>Plotter</source>
        <translation>Plotter</translation>
    </message>
    <message>
        <source>Engraver</source>
        <translation>Lazerli oyma makineleri</translation>
    </message>
    <message>
        <source>Dryjet</source>
        <translation>Endüstriyel kuru</translation>
    </message>
    <message>
        <source>Develop</source>
        <translation>Açılım</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Bilinmeyen</translation>
    </message>
</context>
</TS>
