<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Application</name>
    <message>
        <source>Could not remove temp directory.</source>
        <translation>Das temporäre Verzeichnis konnte nicht entfernt werden.</translation>
    </message>
    <message>
        <source>Could not create temp directory.</source>
        <translation>Das temporäre Verzeichnis konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>Could not set language: Unknown language: %1</source>
        <translation>Sprache konnte nicht eingestellt werden: Unbekannte Sprache: %1</translation>
    </message>
    <message>
        <source>%1 has been successfully loaded.</source>
        <translation>%1 wurde erfolgreich geladen.</translation>
    </message>
    <message>
        <source>%1 failed to load.</source>
        <translation>%1 konnte nicht geladen werden.</translation>
    </message>
    <message>
        <source>Script debugger attached.</source>
        <translation>Skript-Debugger verbunden.</translation>
    </message>
    <message>
        <source>Script debugger detached.</source>
        <translation>Skript-Debugger getrennt.</translation>
    </message>
    <message>
        <source>Supported OpenGL Versions:</source>
        <translation>Unterstützte OpenGL-Versionen:</translation>
    </message>
</context>
<context>
    <name>GraphicsView</name>
    <message>
        <source>OpenGL is not available here; the view draws without it.</source>
        <translation>OpenGL ist hier nicht verfügbar; die Ansicht wird ohne OpenGL gezeichnet.</translation>
    </message>
</context>
<context>
    <name>PolygonClipper</name>
    <message>
        <source>Clipper Failed...</source>
        <translation>Clipper fehlgeschlagen...</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Version: %1</source>
        <translation>Version: %1</translation>
    </message>
    <message>
        <source>Made by the Brivane Project</source>
        <translation>Erstellt vom Brivane-Projekt</translation>
    </message>
</context>
<context>
    <name>XPolygonF</name>
    <message>
        <source>Skipped %1 triangles</source>
        <translation>%1 Dreiecke übersprungen</translation>
    </message>
</context>
</TS>
