<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>PrinterClass</name>
    <message>
        <source>Inkjet</source>
        <translation>Industriali a getto d&apos;inchiostro</translation>
    </message>
    <message>
        <source>Plotter</source>
        <translation>Plotter</translation>
    </message>
    <message>
        <source>Engraver</source>
        <translation>Incisori laser</translation>
    </message>
    <message>
        <source>Dryjet</source>
        <translation>Industriali a secco</translation>
    </message>
    <message>
        <source>Develop</source>
        <translation>Sviluppo</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Sconosciuto</translation>
    </message>
</context>
</TS>
