<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>PrinterClass</name>
    <message>
        <source>Inkjet</source>
        <translation>industrial inkjet</translation>
    </message>
    <message>
        <source>Plotter</source>
        <translation>plotter</translation>
    </message>
    <message>
        <source>Engraver</source>
        <translation>laserlab</translation>
    </message>
    <message>
        <source>Dryjet</source>
        <translation>industrial QaD</translation>
    </message>
    <message>
        <source>Develop</source>
        <translation>development</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Sovbe&apos;lu&apos;bogh Qoylu&apos;</translation>
    </message>
    <message>
        <source>Laserlab</source>
        <translation>laserlab</translation>
    </message>
</context>
</TS>
