<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>Application</name>
    <message>
        <source>Could not remove temp directory.</source>
        <translation>无法删除临时目录。</translation>
    </message>
    <message>
        <source>Could not create temp directory.</source>
        <translation>无法创建临时目录。</translation>
    </message>
    <message>
        <source>Could not set language: Unknown language: %1</source>
        <translation>无法设置语言：未知语言：%1</translation>
    </message>
    <message>
        <source>%1 has been successfully loaded.</source>
        <translation>%1 已成功加载。</translation>
    </message>
    <message>
        <source>%1 failed to load.</source>
        <translation>%1 加载失败。</translation>
    </message>
    <message>
        <source>Script debugger attached.</source>
        <translation>脚本调试器已连接。</translation>
    </message>
    <message>
        <source>Script debugger detached.</source>
        <translation>脚本调试器已断开。</translation>
    </message>
    <message>
        <source>Supported OpenGL Versions:</source>
        <translation>支持的 OpenGL 版本：</translation>
    </message>
</context>
<context>
    <name>GraphicsView</name>
    <message>
        <source>OpenGL is not available here; the view draws without it.</source>
        <translation>此处无法使用 OpenGL；视图将不使用 OpenGL 进行绘制。</translation>
    </message>
</context>
<context>
    <name>PolygonClipper</name>
    <message>
        <source>Clipper Failed...</source>
        <translation>Clipper 失败...</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Version: %1</source>
        <translation>版本：%1</translation>
    </message>
    <message>
        <source>Made by the Brivane Project</source>
        <translation>由 Brivane 项目制作</translation>
    </message>
</context>
<context>
    <name>XPolygonF</name>
    <message>
        <source>Skipped %1 triangles</source>
        <translation>已跳过 %1 个三角形</translation>
    </message>
</context>
</TS>
