<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>Application</name>
    <message>
        <source>Could not remove temp directory.</source>
        <translation>一時ディレクトリを削除できませんでした。</translation>
    </message>
    <message>
        <source>Could not create temp directory.</source>
        <translation>一時ディレクトリを作成できませんでした。</translation>
    </message>
    <message>
        <source>Could not set language: Unknown language: %1</source>
        <translation>言語を設定できませんでした: 不明な言語: %1</translation>
    </message>
    <message>
        <source>%1 has been successfully loaded.</source>
        <translation>%1 を正常に読み込みました。</translation>
    </message>
    <message>
        <source>%1 failed to load.</source>
        <translation>%1 の読み込みに失敗しました。</translation>
    </message>
    <message>
        <source>Script debugger attached.</source>
        <translation>スクリプトデバッガーが接続されました。</translation>
    </message>
    <message>
        <source>Script debugger detached.</source>
        <translation>スクリプトデバッガーが切断されました。</translation>
    </message>
    <message>
        <source>Supported OpenGL Versions:</source>
        <translation>サポートされている OpenGL のバージョン:</translation>
    </message>
</context>
<context>
    <name>GraphicsView</name>
    <message>
        <source>OpenGL is not available here; the view draws without it.</source>
        <translation>この環境では OpenGL を利用できません。ビューは OpenGL を使わずに描画されます。</translation>
    </message>
</context>
<context>
    <name>PolygonClipper</name>
    <message>
        <source>Clipper Failed...</source>
        <translation>Clipper が失敗しました...</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Version: %1</source>
        <translation>バージョン: %1</translation>
    </message>
    <message>
        <source>Made by the Brivane Project</source>
        <translation>制作: Brivane プロジェクト</translation>
    </message>
</context>
<context>
    <name>XPolygonF</name>
    <message>
        <source>Skipped %1 triangles</source>
        <translation>%1 個の三角形をスキップしました</translation>
    </message>
</context>
</TS>
