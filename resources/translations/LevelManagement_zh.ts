<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>LevelManagement</name>
    <message>
        <source>None</source>
        <translation>没有</translation>
    </message>
    <message>
        <source>Legacy</source>
        <translation>灰阶</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>自动 (弃用)</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>动态</translation>
    </message>
    <message>
        <source>Binary</source>
        <translation>二进制</translation>
    </message>
    <message>
        <source>BinaryCustom</source>
        <translation>自定义的二进制</translation>
    </message>
    <message>
        <source>Trilevel</source>
        <translation>灰阶 (S)</translation>
    </message>
    <message>
        <source>OctaGrayscale</source>
        <translation>灰阶</translation>
    </message>
    <message>
        <source>DodeGrayscale</source>
        <translation>灰阶</translation>
    </message>
    <message>
        <source>FiftGrayscale</source>
        <translation>灰阶</translation>
    </message>
    <message>
        <source>HexaGrayscale</source>
        <translation>灰阶</translation>
    </message>
</context>
</TS>
