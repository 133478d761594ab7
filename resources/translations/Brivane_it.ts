<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>Application</name>
    <message>
        <source>Could not remove temp directory.</source>
        <translation>Impossibile rimuovere la cartella temporanea.</translation>
    </message>
    <message>
        <source>Could not create temp directory.</source>
        <translation>Impossibile creare la cartella temporanea.</translation>
    </message>
    <message>
        <source>Could not set language: Unknown language: %1</source>
        <translation>Impossibile impostare la lingua: lingua sconosciuta: %1</translation>
    </message>
    <message>
        <source>%1 has been successfully loaded.</source>
        <translation>%1 è stato caricato correttamente.</translation>
    </message>
    <message>
        <source>%1 failed to load.</source>
        <translation>Impossibile caricare %1.</translation>
    </message>
    <message>
        <source>Script debugger attached.</source>
        <translation>Debugger degli script collegato.</translation>
    </message>
    <message>
        <source>Script debugger detached.</source>
        <translation>Debugger degli script scollegato.</translation>
    </message>
    <message>
        <source>Supported OpenGL Versions:</source>
        <translation>Versioni di OpenGL supportate:</translation>
    </message>
</context>
<context>
    <name>GraphicsView</name>
    <message>
        <source>OpenGL is not available here; the view draws without it.</source>
        <translation>OpenGL non è disponibile qui; la vista viene disegnata senza di esso.</translation>
    </message>
</context>
<context>
    <name>PolygonClipper</name>
    <message>
        <source>Clipper Failed...</source>
        <translation>Clipper non riuscito...</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Version: %1</source>
        <translation>Versione: %1</translation>
    </message>
    <message>
        <source>Made by the Brivane Project</source>
        <translation>Realizzato dal Progetto Brivane</translation>
    </message>
</context>
<context>
    <name>XPolygonF</name>
    <message>
        <source>Skipped %1 triangles</source>
        <translation>Triangoli saltati: %1</translation>
    </message>
</context>
</TS>
