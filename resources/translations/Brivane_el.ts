<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="el_GR">
<context>
    <name>Application</name>
    <message>
        <source>Could not remove temp directory.</source>
        <translation>Δεν ήταν δυνατή η διαγραφή του προσωρινού φακέλου.</translation>
    </message>
    <message>
        <source>Could not create temp directory.</source>
        <translation>Δεν ήταν δυνατή η δημιουργία του προσωρινού φακέλου.</translation>
    </message>
    <message>
        <source>Could not set language: Unknown language: %1</source>
        <translation>Δεν ήταν δυνατός ο ορισμός της γλώσσας: Άγνωστη γλώσσα: %1</translation>
    </message>
    <message>
        <source>%1 has been successfully loaded.</source>
        <translation>Το %1 φορτώθηκε με επιτυχία.</translation>
    </message>
    <message>
        <source>%1 failed to load.</source>
        <translation>Αποτυχία φόρτωσης του %1.</translation>
    </message>
    <message>
        <source>Script debugger attached.</source>
        <translation>Ο αποσφαλματωτής σεναρίων συνδέθηκε.</translation>
    </message>
    <message>
        <source>Script debugger detached.</source>
        <translation>Ο αποσφαλματωτής σεναρίων αποσυνδέθηκε.</translation>
    </message>
    <message>
        <source>Supported OpenGL Versions:</source>
        <translation>Υποστηριζόμενες εκδόσεις OpenGL:</translation>
    </message>
</context>
<context>
    <name>GraphicsView</name>
    <message>
        <source>OpenGL is not available here; the view draws without it.</source>
        <translation>Το OpenGL δεν είναι διαθέσιμο εδώ· η προβολή σχεδιάζεται χωρίς αυτό.</translation>
    </message>
</context>
<context>
    <name>PolygonClipper</name>
    <message>
        <source>Clipper Failed...</source>
        <translation>Αποτυχία του Clipper...</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Version: %1</source>
        <translation>Έκδοση: %1</translation>
    </message>
    <message>
        <source>Made by the Brivane Project</source>
        <translation>Δημιουργήθηκε από το Έργο Brivane</translation>
    </message>
</context>
<context>
    <name>XPolygonF</name>
    <message>
        <source>Skipped %1 triangles</source>
        <translation>Τρίγωνα που παραλείφθηκαν: %1</translation>
    </message>
</context>
</TS>
