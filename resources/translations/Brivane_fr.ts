<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>Application</name>
    <message>
        <source>Could not remove temp directory.</source>
        <translation>Impossible de supprimer le répertoire temporaire.</translation>
    </message>
    <message>
        <source>Could not create temp directory.</source>
        <translation>Impossible de créer le répertoire temporaire.</translation>
    </message>
    <message>
        <source>Could not set language: Unknown language: %1</source>
        <translation>Impossible de définir la langue : langue inconnue : %1</translation>
    </message>
    <message>
        <source>%1 has been successfully loaded.</source>
        <translation>%1 a été chargé avec succès.</translation>
    </message>
    <message>
        <source>%1 failed to load.</source>
        <translation>Échec du chargement de %1.</translation>
    </message>
    <message>
        <source>Script debugger attached.</source>
        <translation>Débogueur de scripts attaché.</translation>
    </message>
    <message>
        <source>Script debugger detached.</source>
        <translation>Débogueur de scripts détaché.</translation>
    </message>
    <message>
        <source>Supported OpenGL Versions:</source>
        <translation>Versions d'OpenGL prises en charge :</translation>
    </message>
</context>
<context>
    <name>GraphicsView</name>
    <message>
        <source>OpenGL is not available here; the view draws without it.</source>
        <translation>OpenGL n'est pas disponible ici ; la vue est dessinée sans OpenGL.</translation>
    </message>
</context>
<context>
    <name>PolygonClipper</name>
    <message>
        <source>Clipper Failed...</source>
        <translation>Échec de Clipper...</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Version: %1</source>
        <translation>Version : %1</translation>
    </message>
    <message>
        <source>Made by the Brivane Project</source>
        <translation>Réalisé par le projet Brivane</translation>
    </message>
</context>
<context>
    <name>XPolygonF</name>
    <message>
        <source>Skipped %1 triangles</source>
        <translation>Triangles ignorés : %1</translation>
    </message>
</context>
</TS>
