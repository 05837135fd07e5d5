<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>PrinterClass</name>
    <message>
        <source>Inkjet</source>
        <translation>工业喷墨</translation>
    </message>
    <message>
        <source>Plotter</source>
        <translation>绘图仪</translation>
    </message>
    <message>
        <source>Engraver</source>
        <translation>激光雕刻机</translation>
    </message>
    <message>
        <source>Dryjet</source>
        <translation>工业清洗</translation>
    </message>
    <message>
        <source>Develop</source>
        <translation>研发</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
</context>
</TS>
