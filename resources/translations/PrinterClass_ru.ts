<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>PrinterClass</name>
    <message>
        <source>Inkjet</source>
        <translation>Промышленные струйные</translation>
    </message>
    <message>
        <source>Plotter</source>
        <translation>Плоттер</translation>
    </message>
    <message>
        <source>Engraver</source>
        <translation>Лазерные резаки</translation>
    </message>
    <message>
        <source>Dryjet</source>
        <translation>Промышленные с сухими красителями</translation>
    </message>
    <message>
        <source>Develop</source>
        <translation>Протяжённость</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Неизвестен</translation>
    </message>
</context>
</TS>
