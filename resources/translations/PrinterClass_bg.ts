<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="bg_BG">
<context>
    <name>PrinterClass</name>
    <message>
        <source>Inkjet</source>
        <translation>Индустриални мастилено-струйни</translation>
    </message>
    <message>
        <source>Plotter</source>
        <translation>Плотери</translation>
    </message>
    <message>
        <source>Engraver</source>
        <translation>Лазерни гравири</translation>
    </message>
    <message>
        <source>Dryjet</source>
        <translation>Индустриални сухи</translation>
    </message>
    <message>
        <source>Develop</source>
        <translation>Проявяване</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Неизвестно</translation>
    </message>
</context>
</TS>
