<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>Application</name>
    <message>
        <source>Could not remove temp directory.</source>
        <translation>Не удалось удалить временный каталог.</translation>
    </message>
    <message>
        <source>Could not create temp directory.</source>
        <translation>Не удалось создать временный каталог.</translation>
    </message>
    <message>
        <source>Could not set language: Unknown language: %1</source>
        <translation>Не удалось установить язык: неизвестный язык: %1</translation>
    </message>
    <message>
        <source>%1 has been successfully loaded.</source>
        <translation>%1 успешно загружен.</translation>
    </message>
    <message>
        <source>%1 failed to load.</source>
        <translation>Не удалось загрузить %1.</translation>
    </message>
    <message>
        <source>Script debugger attached.</source>
        <translation>Отладчик скриптов подключён.</translation>
    </message>
    <message>
        <source>Script debugger detached.</source>
        <translation>Отладчик скриптов отключён.</translation>
    </message>
    <message>
        <source>Supported OpenGL Versions:</source>
        <translation>Поддерживаемые версии OpenGL:</translation>
    </message>
</context>
<context>
    <name>GraphicsView</name>
    <message>
        <source>OpenGL is not available here; the view draws without it.</source>
        <translation>OpenGL здесь недоступен; вид отрисовывается без него.</translation>
    </message>
</context>
<context>
    <name>PolygonClipper</name>
    <message>
        <source>Clipper Failed...</source>
        <translation>Ошибка Clipper...</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Version: %1</source>
        <translation>Версия: %1</translation>
    </message>
    <message>
        <source>Made by the Brivane Project</source>
        <translation>Создано проектом Brivane</translation>
    </message>
</context>
<context>
    <name>XPolygonF</name>
    <message>
        <source>Skipped %1 triangles</source>
        <translation>Пропущено треугольников: %1</translation>
    </message>
</context>
</TS>
