<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>Application</name>
    <message>
        <source>Could not remove temp directory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not create temp directory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not set language: Unknown language: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has been successfully loaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 failed to load.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Script debugger attached.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Script debugger detached.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Supported OpenGL Versions:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GraphicsView</name>
    <message>
        <source>OpenGL is not available here; the view draws without it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PolygonClipper</name>
    <message>
        <source>Clipper Failed...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Version: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Made by the Brivane Project</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>XPolygonF</name>
    <message>
        <source>Skipped %1 triangles</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
