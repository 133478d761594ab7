<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>Application</name>
    <message>
        <source>Could not remove temp directory.</source>
        <translation>No se pudo eliminar el directorio temporal.</translation>
    </message>
    <message>
        <source>Could not create temp directory.</source>
        <translation>No se pudo crear el directorio temporal.</translation>
    </message>
    <message>
        <source>Could not set language: Unknown language: %1</source>
        <translation>No se pudo establecer el idioma: idioma desconocido: %1</translation>
    </message>
    <message>
        <source>%1 has been successfully loaded.</source>
        <translation>%1 se ha cargado correctamente.</translation>
    </message>
    <message>
        <source>%1 failed to load.</source>
        <translation>No se pudo cargar %1.</translation>
    </message>
    <message>
        <source>Script debugger attached.</source>
        <translation>Depurador de scripts conectado.</translation>
    </message>
    <message>
        <source>Script debugger detached.</source>
        <translation>Depurador de scripts desconectado.</translation>
    </message>
    <message>
        <source>Supported OpenGL Versions:</source>
        <translation>Versiones de OpenGL compatibles:</translation>
    </message>
</context>
<context>
    <name>GraphicsView</name>
    <message>
        <source>OpenGL is not available here; the view draws without it.</source>
        <translation>OpenGL no está disponible aquí; la vista se dibuja sin él.</translation>
    </message>
</context>
<context>
    <name>PolygonClipper</name>
    <message>
        <source>Clipper Failed...</source>
        <translation>Clipper ha fallado...</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Version: %1</source>
        <translation>Versión: %1</translation>
    </message>
    <message>
        <source>Made by the Brivane Project</source>
        <translation>Creado por el Proyecto Brivane</translation>
    </message>
</context>
<context>
    <name>XPolygonF</name>
    <message>
        <source>Skipped %1 triangles</source>
        <translation>Se omitieron %1 triángulos</translation>
    </message>
</context>
</TS>
