<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id_ID">
<context>
    <name>Application</name>
    <message>
        <source>Could not remove temp directory.</source>
        <translation>Tidak dapat menghapus direktori sementara.</translation>
    </message>
    <message>
        <source>Could not create temp directory.</source>
        <translation>Tidak dapat membuat direktori sementara.</translation>
    </message>
    <message>
        <source>Could not set language: Unknown language: %1</source>
        <translation>Tidak dapat mengatur bahasa: Bahasa tidak dikenal: %1</translation>
    </message>
    <message>
        <source>%1 has been successfully loaded.</source>
        <translation>%1 berhasil dimuat.</translation>
    </message>
    <message>
        <source>%1 failed to load.</source>
        <translation>%1 gagal dimuat.</translation>
    </message>
    <message>
        <source>Script debugger attached.</source>
        <translation>Debugger skrip terpasang.</translation>
    </message>
    <message>
        <source>Script debugger detached.</source>
        <translation>Debugger skrip dilepas.</translation>
    </message>
    <message>
        <source>Supported OpenGL Versions:</source>
        <translation>Versi OpenGL yang Didukung:</translation>
    </message>
</context>
<context>
    <name>GraphicsView</name>
    <message>
        <source>OpenGL is not available here; the view draws without it.</source>
        <translation>OpenGL tidak tersedia di sini; tampilan digambar tanpa OpenGL.</translation>
    </message>
</context>
<context>
    <name>PolygonClipper</name>
    <message>
        <source>Clipper Failed...</source>
        <translation>Clipper Gagal...</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Version: %1</source>
        <translation>Versi: %1</translation>
    </message>
    <message>
        <source>Made by the Brivane Project</source>
        <translation>Dibuat oleh Proyek Brivane</translation>
    </message>
</context>
<context>
    <name>XPolygonF</name>
    <message>
        <source>Skipped %1 triangles</source>
        <translation>%1 segitiga dilewati</translation>
    </message>
</context>
</TS>
