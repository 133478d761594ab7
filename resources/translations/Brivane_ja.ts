<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>クレジット</translation>
    </message>
    <message>
        <source>ChangeLog</source>
        <translation>変更履歴</translation>
    </message>
    <message>
        <source>About </source>
        <translation>情報: </translation>
    </message>
</context>
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
    <message>
        <source>%1 is not evaluated: a script file may hold at most %2 MB.</source>
        <translation>%1 は評価されません: スクリプトファイルは最大 %2 MB までです。</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>読み込み中...</translation>
    </message>
    <message>
        <source>The script was stopped.</source>
        <translation>スクリプトを停止しました。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Could not open the scene %1.</source>
        <translation>シーン %1 を開けませんでした。</translation>
    </message>
</context>
<context>
    <name>BalloonAction</name>
    <message>
        <source>Create Balloon</source>
        <translation>風船を作成</translation>
    </message>
</context>
<context>
    <name>BrushAction</name>
    <message>
        <source>Create freehand shape</source>
        <translation>フリーハンド図形を作成</translation>
    </message>
</context>
<context>
    <name>BrushContextWidget</name>
    <message>
        <source>Brush Size</source>
        <translation>ブラシの大きさ</translation>
    </message>
</context>
<context>
    <name>BrushDialog</name>
    <message>
        <source>Select Brush</source>
        <translation>ブラシの選択</translation>
    </message>
    <message>
        <source>Color/Pattern</source>
        <translation>色/パターン</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>選択...</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>パターン</translation>
    </message>
    <message>
        <source>No Brush</source>
        <translation>ブラシなし</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>塗りつぶし</translation>
    </message>
    <message>
        <source>Dense1</source>
        <translation>密度 1</translation>
    </message>
    <message>
        <source>Dense2</source>
        <translation>密度 2</translation>
    </message>
    <message>
        <source>Dense3</source>
        <translation>密度 3</translation>
    </message>
    <message>
        <source>Dense4</source>
        <translation>密度 4</translation>
    </message>
    <message>
        <source>Dense5</source>
        <translation>密度 5</translation>
    </message>
    <message>
        <source>Dense6</source>
        <translation>密度 6</translation>
    </message>
    <message>
        <source>Dense7</source>
        <translation>密度 7</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>垂直</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>十字</translation>
    </message>
    <message>
        <source>Backward diagonal</source>
        <translation>逆斜線</translation>
    </message>
    <message>
        <source>Forward diagonal</source>
        <translation>順斜線</translation>
    </message>
    <message>
        <source>Crossing diagonal</source>
        <translation>斜め格子</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>テクスチャ</translation>
    </message>
    <message>
        <source>Auto Adjust</source>
        <translation>自動調整</translation>
    </message>
    <message>
        <source>Horizontal scale</source>
        <translation>水平スケール</translation>
    </message>
    <message>
        <source>Vertical scale</source>
        <translation>垂直スケール</translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation>水平オフセット</translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation>垂直オフセット</translation>
    </message>
    <message>
        <source>Select Texture</source>
        <translation>テクスチャの選択</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp *.gif)</source>
        <translation>画像ファイル (*.png *.jpg *.bmp *.gif)</translation>
    </message>
</context>
<context>
    <name>CameraAction</name>
    <message>
        <source>Create Camera</source>
        <translation>カメラを作成</translation>
    </message>
</context>
<context>
    <name>CameraContextWidget</name>
    <message>
        <source>Camera Mode</source>
        <translation>カメラモード</translation>
    </message>
    <message>
        <source>Remove All Cameras</source>
        <translation>すべてのカメラを削除</translation>
    </message>
    <message>
        <source>Use Default Viewport</source>
        <translation>メインビューを使う</translation>
    </message>
    <message>
        <source>Create New Viewport</source>
        <translation>新しいビューを作成</translation>
    </message>
</context>
<context>
    <name>CameraGraphicsView</name>
    <message>
        <source>Camera for %1</source>
        <translation>%1 のカメラ</translation>
    </message>
</context>
<context>
    <name>ChainAction</name>
    <message>
        <source>Create Chain</source>
        <translation>チェーンを作成</translation>
    </message>
</context>
<context>
    <name>ChainContextWidget</name>
    <message>
        <source>Circle Radius</source>
        <translation>円の半径</translation>
    </message>
</context>
<context>
    <name>CircleAction</name>
    <message>
        <source>Create Circle</source>
        <translation>円を作成</translation>
    </message>
    <message>
        <source>radius=%1</source>
        <translation>半径=%1</translation>
    </message>
</context>
<context>
    <name>ColorContextWidget</name>
    <message>
        <source>Color</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>選択...</translation>
    </message>
</context>
<context>
    <name>DifferenceAction</name>
    <message>
        <source>Difference</source>
        <translation>差分</translation>
    </message>
</context>
<context>
    <name>DistanceJointAction</name>
    <message>
        <source>Create Distance Joint</source>
        <translation>距離ジョイントを作成</translation>
    </message>
</context>
<context>
    <name>DownloadDialog</name>
    <message>
        <source>Maximum number of scenes to download</source>
        <translation>ダウンロードするシーンの最大数</translation>
    </message>
    <message>
        <source>Save to</source>
        <translation>保存先</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>参照...</translation>
    </message>
    <message>
        <source>Download scenes from %1</source>
        <translation>%1 からシーンをダウンロード</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>フォルダーを選択</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Failed to retrieve file list from server.</source>
        <translation>サーバーからファイル一覧を取得できませんでした。</translation>
    </message>
</context>
<context>
    <name>DownloadProgressDialog</name>
    <message>
        <source>Scene Filename</source>
        <translation>シーンのファイル名</translation>
    </message>
    <message>
        <source>Download Information</source>
        <translation>ダウンロード情報</translation>
    </message>
    <message>
        <source>Refused: not a file of this folder.</source>
        <translation>拒否: このフォルダーのファイルではありません。</translation>
    </message>
    <message>
        <source>Download Progress</source>
        <translation>ダウンロードの進行状況</translation>
    </message>
    <message>
        <source>Successfully downloaded.</source>
        <translation>ダウンロードしました。</translation>
    </message>
    <message>
        <source>Already downloaded.</source>
        <translation>ダウンロード済みです。</translation>
    </message>
    <message>
        <source>Failed to open file for writing.</source>
        <translation>書き込み用にファイルを開けませんでした。</translation>
    </message>
    <message>
        <source>Refused: larger than %1 MB.</source>
        <translation>拒否: %1 MB を超えています。</translation>
    </message>
</context>
<context>
    <name>EraseAction</name>
    <message>
        <source>Erase Item</source>
        <translation>アイテムを消去</translation>
    </message>
</context>
<context>
    <name>EraseContextWidget</name>
    <message>
        <source>Eraser Size</source>
        <translation>消しゴムの大きさ</translation>
    </message>
</context>
<context>
    <name>ExplodeAction</name>
    <message>
        <source>Explode Item</source>
        <translation>アイテムを爆発</translation>
    </message>
</context>
<context>
    <name>ExplodeContextWidget</name>
    <message>
        <source>Explode Method</source>
        <translation>分解の方法</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大きさ</translation>
    </message>
    <message>
        <source>Triangulate</source>
        <translation>三角形に分割</translation>
    </message>
    <message>
        <source>Squarify</source>
        <translation>正方形に分割</translation>
    </message>
    <message>
        <source>Circlify</source>
        <translation>円に分割</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>Image Export</source>
        <translation>画像のエクスポート</translation>
    </message>
    <message>
        <source>Directory</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>参照...</translation>
    </message>
    <message>
        <source>Filename</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>(without extension)</source>
        <translation>(拡張子なし)</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>形式</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>フォルダーを選択</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Please enter a file name.</source>
        <translation>ファイル名を入力してください。</translation>
    </message>
    <message>
        <source>File %1 already exists</source>
        <translation>ファイル %1 は既に存在します</translation>
    </message>
    <message>
        <source>Failed to save image</source>
        <translation>画像を保存できませんでした</translation>
    </message>
</context>
<context>
    <name>GearAction</name>
    <message>
        <source>Create Gear</source>
        <translation>歯車を作成</translation>
    </message>
</context>
<context>
    <name>GearContextWidget</name>
    <message>
        <source>Gear Tooth Size</source>
        <translation>歯の大きさ</translation>
    </message>
    <message>
        <source>Gear Tooth Count Divisor</source>
        <translation>歯数の除数</translation>
    </message>
    <message>
        <source>Create Revolute Joint</source>
        <translation>回転ジョイントを作成</translation>
    </message>
</context>
<context>
    <name>GraphicsView</name>
    <message>
        <source>OpenGL is not available here; the view draws without it.</source>
        <translation>この環境では OpenGL を利用できません。ビューは OpenGL を使わずに描画されます。</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>OpenGL draws in software here (%1); the view draws without it, which is faster.</source>
        <translation>ここでは OpenGL がソフトウェアで描画しています (%1)。ビューは OpenGL を使わずに描画します。そのほうが高速です。</translation>
    </message>
</context>
<context>
    <name>GraphicsViewPropertiesWidget</name>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>選択...</translation>
    </message>
    <message>
        <source>Body With Camera</source>
        <translation>カメラの物体</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>縮尺</translation>
    </message>
</context>
<context>
    <name>GunAction</name>
    <message>
        <source>Shoot Item</source>
        <translation>アイテムを発射</translation>
    </message>
</context>
<context>
    <name>HelpWidget</name>
    <message>
        <source>Brivane Help</source>
        <translation>Brivane ヘルプ</translation>
    </message>
</context>
<context>
    <name>ImageAction</name>
    <message>
        <source>Create Image</source>
        <translation>画像から作成</translation>
    </message>
</context>
<context>
    <name>ImageContextWidget</name>
    <message>
        <source>Image</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>選択...</translation>
    </message>
    <message>
        <source>Polygon Threshold</source>
        <translation>多角形のしきい値</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>縮尺</translation>
    </message>
    <message>
        <source>Select Image</source>
        <translation>画像を選択</translation>
    </message>
    <message>
        <source>Images (*.png *.xpm *.jpg)</source>
        <translation>画像 (*.png *.xpm *.jpg)</translation>
    </message>
</context>
<context>
    <name>IntersectionAction</name>
    <message>
        <source>Intersection</source>
        <translation>交差</translation>
    </message>
</context>
<context>
    <name>JSDialog</name>
    <message>
        <source>The program contains a syntax error.</source>
        <translation>プログラムに構文エラーがあります。</translation>
    </message>
    <message>
        <source>The program is incomplete.</source>
        <translation>プログラムが不完全です。</translation>
    </message>
    <message>
        <source>

[Line: %1, Column: %2]</source>
        <translation>

[行: %1, 列: %2]</translation>
    </message>
</context>
<context>
    <name>LinkContextWidget</name>
    <message>
        <source>Attach Point</source>
        <translation>固定する端</translation>
    </message>
    <message>
        <source>First</source>
        <translation>最初</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>最後</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>両方</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>New Scene</source>
        <translation>新しいシーン</translation>
    </message>
    <message>
        <source>Creates a new scene</source>
        <translation>新しいシーンを作成します</translation>
    </message>
    <message>
        <source>Save Scene</source>
        <translation>シーンを保存</translation>
    </message>
    <message>
        <source>Saves current scene</source>
        <translation>現在のシーンを保存します</translation>
    </message>
    <message>
        <source>Save Scene As...</source>
        <translation>名前を付けてシーンを保存...</translation>
    </message>
    <message>
        <source>Saves current scene as</source>
        <translation>現在のシーンに名前を付けて保存します</translation>
    </message>
    <message>
        <source>Load Scene...</source>
        <translation>シーンを読み込む...</translation>
    </message>
    <message>
        <source>Loads a scene</source>
        <translation>シーンを読み込みます</translation>
    </message>
    <message>
        <source>Upload Scene...</source>
        <translation>シーンをアップロード...</translation>
    </message>
    <message>
        <source>Uploads current scene to %1</source>
        <translation>現在のシーンを %1 にアップロードします</translation>
    </message>
    <message>
        <source>Download Scenes...</source>
        <translation>シーンをダウンロード...</translation>
    </message>
    <message>
        <source>Downloads scenes from %1</source>
        <translation>%1 からシーンをダウンロードします</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>エクスポート...</translation>
    </message>
    <message>
        <source>Exports current scene as an image</source>
        <translation>現在のシーンを画像としてエクスポートします</translation>
    </message>
    <message>
        <source>Evaluate Script...</source>
        <translation>スクリプトを実行...</translation>
    </message>
    <message>
        <source>Evaluates a .script file</source>
        <translation>.script ファイルを実行します</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Quits the application</source>
        <translation>アプリケーションを終了します</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直し</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Selects all items of the scene</source>
        <translation>シーン内のすべてのアイテムを選択します</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>ズームイン</translation>
    </message>
    <message>
        <source>Zooms in</source>
        <translation>表示を拡大します</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>ズームアウト</translation>
    </message>
    <message>
        <source>Zooms out</source>
        <translation>表示を縮小します</translation>
    </message>
    <message>
        <source>Zoom Extents</source>
        <translation>シーン全体を表示</translation>
    </message>
    <message>
        <source>Zooms in or out to fit the extents of the scene</source>
        <translation>シーン全体が収まるように表示を拡大または縮小します</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>すべて表示</translation>
    </message>
    <message>
        <source>Shows all toolbars</source>
        <translation>すべてのツールバーを表示します</translation>
    </message>
    <message>
        <source>Hide all</source>
        <translation>すべて非表示</translation>
    </message>
    <message>
        <source>Hides all toolbars</source>
        <translation>すべてのツールバーを非表示にします</translation>
    </message>
    <message>
        <source>Shows all dock widgets</source>
        <translation>すべてのドックウィジェットを表示します</translation>
    </message>
    <message>
        <source>Hides all dock widgets</source>
        <translation>すべてのドックウィジェットを非表示にします</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>全画面表示</translation>
    </message>
    <message>
        <source>Toggles fullscreen mode</source>
        <translation>全画面モードを切り替えます</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Shows the application&apos;s help file</source>
        <translation>アプリケーションのヘルプファイルを表示します</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>バージョン情報...</translation>
    </message>
    <message>
        <source>Shows the application&apos;s About box</source>
        <translation>アプリケーションのバージョン情報を表示します</translation>
    </message>
    <message>
        <source>About Qt...</source>
        <translation>Qt について...</translation>
    </message>
    <message>
        <source>Shows the Qt library&apos;s About box</source>
        <translation>Qt ライブラリのバージョン情報を表示します</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>再生/一時停止</translation>
    </message>
    <message>
        <source>Starts/Pauses the simulation</source>
        <translation>シミュレーションを開始または一時停止します</translation>
    </message>
    <message>
        <source>Select/Move</source>
        <translation>選択/移動</translation>
    </message>
    <message>
        <source>Selects and/or moves an item</source>
        <translation>アイテムを選択または移動します</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Removes an item or a selection of items from the scene</source>
        <translation>アイテムまたは選択したアイテムをシーンから削除します</translation>
    </message>
    <message>
        <source>Explode Item</source>
        <translation>アイテムを爆発</translation>
    </message>
    <message>
        <source>Explodes an item</source>
        <translation>アイテムを爆発させます</translation>
    </message>
    <message>
        <source>Erase Item</source>
        <translation>アイテムを消去</translation>
    </message>
    <message>
        <source>Erases parts of an item</source>
        <translation>アイテムの一部を消去します</translation>
    </message>
    <message>
        <source>Create Camera</source>
        <translation>カメラを作成</translation>
    </message>
    <message>
        <source>Creates a camera that follows an item</source>
        <translation>アイテムを追従するカメラを作成します</translation>
    </message>
    <message>
        <source>Create Tracer</source>
        <translation>トレーサーを作成</translation>
    </message>
    <message>
        <source>Creates a tracer that follows an item</source>
        <translation>アイテムを追従するトレーサーを作成します</translation>
    </message>
    <message>
        <source>Shoot Item</source>
        <translation>アイテムを発射</translation>
    </message>
    <message>
        <source>Shoots an item</source>
        <translation>アイテムを発射します</translation>
    </message>
    <message>
        <source>Create Plot</source>
        <translation>グラフを作成</translation>
    </message>
    <message>
        <source>Creates a plot for a given item</source>
        <translation>指定したアイテムのグラフを作成します</translation>
    </message>
    <message>
        <source>Create Rectangle</source>
        <translation>長方形を作成</translation>
    </message>
    <message>
        <source>Creates a rectangle</source>
        <translation>長方形を作成します</translation>
    </message>
    <message>
        <source>Create Circle</source>
        <translation>円を作成</translation>
    </message>
    <message>
        <source>Creates a circle</source>
        <translation>円を作成します</translation>
    </message>
    <message>
        <source>Create Polygon</source>
        <translation>多角形を作成</translation>
    </message>
    <message>
        <source>Creates a polygon</source>
        <translation>多角形を作成します</translation>
    </message>
    <message>
        <source>Create Balloon</source>
        <translation>風船を作成</translation>
    </message>
    <message>
        <source>Creates a balloon</source>
        <translation>風船を作成します</translation>
    </message>
    <message>
        <source>Create freehand shape</source>
        <translation>フリーハンド図形を作成</translation>
    </message>
    <message>
        <source>Freehand drawing of random shapes</source>
        <translation>任意の図形をフリーハンドで描画します</translation>
    </message>
    <message>
        <source>Create Chain</source>
        <translation>チェーンを作成</translation>
    </message>
    <message>
        <source>Creates a chain</source>
        <translation>チェーンを作成します</translation>
    </message>
    <message>
        <source>Create Rope</source>
        <translation>ロープを作成</translation>
    </message>
    <message>
        <source>Creates a rope</source>
        <translation>ロープを作成します</translation>
    </message>
    <message>
        <source>Create Text</source>
        <translation>テキストを作成</translation>
    </message>
    <message>
        <source>Creates items from text</source>
        <translation>テキストからアイテムを作成します</translation>
    </message>
    <message>
        <source>Create Gear</source>
        <translation>歯車を作成</translation>
    </message>
    <message>
        <source>Creates a gear</source>
        <translation>歯車を作成します</translation>
    </message>
    <message>
        <source>Create Image</source>
        <translation>画像から作成</translation>
    </message>
    <message>
        <source>Creates a shape based on the outline of a (png) image</source>
        <translation>(PNG) 画像の輪郭に基づいて図形を作成します</translation>
    </message>
    <message>
        <source>Create Distance Joint</source>
        <translation>距離ジョイントを作成</translation>
    </message>
    <message>
        <source>Creates a distance joint between two items (or an item and the background)</source>
        <translation>2 つのアイテムの間 (またはアイテムと背景の間) に距離ジョイントを作成します</translation>
    </message>
    <message>
        <source>Create Revolute Joint</source>
        <translation>回転ジョイントを作成</translation>
    </message>
    <message>
        <source>Creates a revolute joint between two items (or an item and the background)</source>
        <translation>2 つのアイテムの間 (またはアイテムと背景の間) に回転ジョイントを作成します</translation>
    </message>
    <message>
        <source>Create Prismatic Joint</source>
        <translation>直動ジョイントを作成</translation>
    </message>
    <message>
        <source>Creates a prismatic joint between two items</source>
        <translation>2 つのアイテムの間に直動ジョイントを作成します</translation>
    </message>
    <message>
        <source>Create Pulley Joint</source>
        <translation>滑車ジョイントを作成</translation>
    </message>
    <message>
        <source>Creates a pulley joint between two items</source>
        <translation>2 つのアイテムの間に滑車ジョイントを作成します</translation>
    </message>
    <message>
        <source>Create Spring</source>
        <translation>ばねを作成</translation>
    </message>
    <message>
        <source>Creates a spring between two items</source>
        <translation>2 つのアイテムの間にばねを作成します</translation>
    </message>
    <message>
        <source>Union</source>
        <translation>結合</translation>
    </message>
    <message>
        <source>Creates an item from the union of two other items</source>
        <translation>2 つのアイテムを結合して新しいアイテムを作成します</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>差分</translation>
    </message>
    <message>
        <source>Creates an item from the difference of two other items</source>
        <translation>2 つのアイテムの差分から新しいアイテムを作成します</translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation>交差</translation>
    </message>
    <message>
        <source>Creates an item from the intersection of two other items</source>
        <translation>2 つのアイテムの交差部分から新しいアイテムを作成します</translation>
    </message>
    <message>
        <source>General Toolbar</source>
        <translation>一般ツールバー</translation>
    </message>
    <message>
        <source>Bodies Toolbar</source>
        <translation>ボディツールバー</translation>
    </message>
    <message>
        <source>Joints Toolbar</source>
        <translation>ジョイントツールバー</translation>
    </message>
    <message>
        <source>Forces Toolbar</source>
        <translation>力ツールバー</translation>
    </message>
    <message>
        <source>Boolean Toolbar</source>
        <translation>ブール演算ツールバー</translation>
    </message>
    <message>
        <source>Snap Toolbar</source>
        <translation>スナップツールバー</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>コンソール</translation>
    </message>
    <message>
        <source>Scene Properties</source>
        <translation>シーンのプロパティ</translation>
    </message>
    <message>
        <source>Property Editor</source>
        <translation>プロパティエディター</translation>
    </message>
    <message>
        <source>Quick Load</source>
        <translation>クイックロード</translation>
    </message>
    <message>
        <source>Commands History</source>
        <translation>コマンド履歴</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>ズーム</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>ツールバー</translation>
    </message>
    <message>
        <source>Dock Widgets</source>
        <translation>ドックウィジェット</translation>
    </message>
    <message>
        <source>Perspectives</source>
        <translation>パースペクティブ</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>Action Context Toolbar</source>
        <translation>ツールのコンテキストツールバー</translation>
    </message>
    <message>
        <source>New file created</source>
        <translation>新しいファイルを作成しました</translation>
    </message>
    <message>
        <source>File saved (%1)</source>
        <translation>ファイルを保存しました (%1)</translation>
    </message>
    <message>
        <source>File loaded (%1)</source>
        <translation>ファイルを読み込みました (%1)</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>読み込み</translation>
    </message>
    <message>
        <source>*.script</source>
        <translation>*.script</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Stop Script</source>
        <translation>スクリプトを停止</translation>
    </message>
    <message>
        <source>Stops the script that is running (Escape)</source>
        <translation>実行中のスクリプトを停止します (Escape)</translation>
    </message>
    <message>
        <source>Upload Scene</source>
        <translation>シーンをアップロード</translation>
    </message>
    <message>
        <source>The scene needs to be saved before uploading.
Please save the scene and try again.</source>
        <translation>アップロードの前にシーンを保存する必要があります。
シーンを保存してからやり直してください。</translation>
    </message>
</context>
<context>
    <name>PhysicsWorldPropertiesWidget</name>
    <message>
        <source>Gravity</source>
        <translation>重力</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Step Frequency</source>
        <translation>ステップ周波数</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>Iterations</source>
        <translation>反復回数</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Warm Starting</source>
        <translation>ウォームスタート</translation>
    </message>
    <message>
        <source>Continuous Physics</source>
        <translation>連続衝突判定</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Bodies</source>
        <translation>物体</translation>
    </message>
    <message>
        <source>Joints</source>
        <translation>ジョイント</translation>
    </message>
</context>
<context>
    <name>PlayPauseAction</name>
    <message>
        <source>Play/Pause</source>
        <translation>再生/一時停止</translation>
    </message>
</context>
<context>
    <name>PlotAction</name>
    <message>
        <source>Create Plot</source>
        <translation>グラフを作成</translation>
    </message>
</context>
<context>
    <name>PlotWidget</name>
    <message>
        <source>Speed</source>
        <translation>速さ</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>加速度</translation>
    </message>
    <message>
        <source>Time (sec)</source>
        <translation>時間 (秒)</translation>
    </message>
    <message>
        <source>Speed (m/sec)</source>
        <translation>速さ (m/秒)</translation>
    </message>
</context>
<context>
    <name>PolygonAction</name>
    <message>
        <source>Create Polygon</source>
        <translation>多角形を作成</translation>
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
    <name>PrismaticJointAction</name>
    <message>
        <source>Create Prismatic Joint</source>
        <translation>直動ジョイントを作成</translation>
    </message>
</context>
<context>
    <name>PropertyDelegate</name>
    <message>
        <source>Select Color</source>
        <translation>色の選択</translation>
    </message>
</context>
<context>
    <name>PropertyEditorWidget</name>
    <message>
        <source>&lt;div align=&apos;right&apos;&gt;&lt;i&gt;&lt;font size=&apos;10px&apos;&gt;(Edit properties with double-click)&lt;/font&gt;&lt;/i&gt;&lt;/div&gt;</source>
        <translation>&lt;div align=&apos;right&apos;&gt;&lt;i&gt;&lt;font size=&apos;10px&apos;&gt;(ダブルクリックでプロパティを編集)&lt;/font&gt;&lt;/i&gt;&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>ブラシ</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Specify the filter categories that %1 belongs to.</source>
        <translation>%1 が属するフィルターカテゴリを指定してください。</translation>
    </message>
    <message>
        <source>Specify the filter categories that %1 collides with.</source>
        <translation>%1 が衝突するフィルターカテゴリを指定してください。</translation>
    </message>
</context>
<context>
    <name>PropertyModel</name>
    <message>
        <source>Property</source>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
</context>
<context>
    <name>PulleyJointAction</name>
    <message>
        <source>Create Pulley Joint</source>
        <translation>滑車ジョイントを作成</translation>
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
    <message>
        <source>Balloon</source>
        <translation>風船</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>円</translation>
    </message>
    <message>
        <source>Distance Joint</source>
        <translation>距離ジョイント</translation>
    </message>
    <message>
        <source>Linear Impulse</source>
        <translation>線形インパルス</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>多角形</translation>
    </message>
    <message>
        <source>Prismatic Joint</source>
        <translation>直動ジョイント</translation>
    </message>
    <message>
        <source>Pulley Joint</source>
        <translation>滑車ジョイント</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>長方形</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Revolute Joint</source>
        <translation>回転ジョイント</translation>
    </message>
    <message>
        <source>Spring Force</source>
        <translation>ばねの力</translation>
    </message>
    <message>
        <source>Gear</source>
        <translation>歯車</translation>
    </message>
    <message>
        <source>Union</source>
        <translation>結合</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>差分</translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation>交差</translation>
    </message>
    <message>
        <source>Circlify</source>
        <translation>円に分割</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Not exploded: %1 pieces would be made, more than %2.</source>
        <translation>分割しませんでした: %1 個の破片ができ、%2 個を超えます。</translation>
    </message>
    <message>
        <source>Squarify</source>
        <translation>正方形に分割</translation>
    </message>
    <message>
        <source>Triangulate</source>
        <translation>三角形に分割</translation>
    </message>
    <message>
        <source>Chain</source>
        <translation>チェーン</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Rope</source>
        <translation>ロープ</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>A two-dimensional physics sandbox.</source>
        <translation>2次元物理サンドボックス。</translation>
    </message>
    <message>
        <source>A scene file to open.</source>
        <translation>開くシーンファイル。</translation>
    </message>
    <message>
        <source>Updates Available</source>
        <translation>更新があります</translation>
    </message>
    <message>
        <source>A new version of Brivane is available.
Update the application?</source>
        <translation>Brivane の新しいバージョンがあります。
アプリケーションを更新しますか？</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Failed to launch the updater.
Please run it manually using the following command:

%1/maintenancetool</source>
        <translation>アップデーターを起動できませんでした。
次のコマンドで手動で実行してください:

%1/maintenancetool</translation>
    </message>
</context>
<context>
    <name>QuickLoadWidget</name>
    <message>
        <source>Icon SIze</source>
        <translation>アイコンの大きさ</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>参照...</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>フォルダーを開く</translation>
    </message>
</context>
<context>
    <name>RectangleAction</name>
    <message>
        <source>Create Rectangle</source>
        <translation>長方形を作成</translation>
    </message>
    <message>
        <source>width=%1
height=%2</source>
        <translation>幅=%1
高さ=%2</translation>
    </message>
</context>
<context>
    <name>RemoveAction</name>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>RevoluteJointAction</name>
    <message>
        <source>Create Revolute Joint</source>
        <translation>回転ジョイントを作成</translation>
    </message>
</context>
<context>
    <name>RevoluteJointContextWidget</name>
    <message>
        <source>Radius</source>
        <translation>半径</translation>
    </message>
</context>
<context>
    <name>RopeAction</name>
    <message>
        <source>Create Rope</source>
        <translation>ロープを作成</translation>
    </message>
</context>
<context>
    <name>RopeContextWidget</name>
    <message>
        <source>Rectangle Width</source>
        <translation>長方形の幅</translation>
    </message>
</context>
<context>
    <name>ScenePropertiesWidget</name>
    <message>
        <source>Physics World</source>
        <translation>物理ワールド</translation>
    </message>
    <message>
        <source>Graphics View</source>
        <translation>ビュー</translation>
    </message>
</context>
<context>
    <name>SelectAction</name>
    <message>
        <source>Select/Move</source>
        <translation>選択/移動</translation>
    </message>
</context>
<context>
    <name>SettingsWidget</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>グラフィック</translation>
    </message>
    <message>
        <source>Use OpenGL</source>
        <translation>OpenGL を使う</translation>
    </message>
    <message>
        <source>Antialiasing</source>
        <translation>アンチエイリアス</translation>
    </message>
    <message>
        <source>Physics</source>
        <translation>物理</translation>
    </message>
    <message>
        <source>Timer Interval</source>
        <translation>タイマー間隔</translation>
    </message>
    <message>
        <source>Bodies Defaults</source>
        <translation>物体の既定値</translation>
    </message>
    <message>
        <source>Linear Damping</source>
        <translation>直線減衰</translation>
    </message>
    <message>
        <source>Angular Damping</source>
        <translation>回転減衰</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>摩擦</translation>
    </message>
    <message>
        <source>Restitution</source>
        <translation>反発</translation>
    </message>
    <message>
        <source>Allow Sleep</source>
        <translation>スリープを許可</translation>
    </message>
    <message>
        <source>Is Bullet</source>
        <translation>弾丸扱い</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>GUI Style</source>
        <translation>画面のスタイル</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Create ground on start-up</source>
        <translation>起動時に地面を作る</translation>
    </message>
    <message>
        <source>Show scale indicator</source>
        <translation>縮尺を表示</translation>
    </message>
    <message>
        <source>Show tips at start-up</source>
        <translation>起動時にヒントを表示</translation>
    </message>
    <message>
        <source>Attach script debugger</source>
        <translation>スクリプトデバッガーを接続</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ミリ秒</translation>
    </message>
</context>
<context>
    <name>SnapWidget</name>
    <message>
        <source>Snap To Grid (F9)</source>
        <translation>グリッドに合わせる (F9)</translation>
    </message>
    <message>
        <source>Snaps to grid</source>
        <translation>グリッドに合わせます</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>大きさ:</translation>
    </message>
    <message>
        <source>Snap To Objects (F10)</source>
        <translation>物体に合わせる (F10)</translation>
    </message>
    <message>
        <source>Snaps to objects</source>
        <translation>物体に合わせます</translation>
    </message>
    <message>
        <source>Distance:</source>
        <translation>距離:</translation>
    </message>
</context>
<context>
    <name>SocialDialog</name>
    <message>
        <source>%1 is a &lt;b&gt;free software&lt;/b&gt;. Please &lt;b&gt;support it&lt;/b&gt; by submitting it to your favourite social networking sites using the buttons below.</source>
        <translation>%1 は&lt;b&gt;フリーソフトウェア&lt;/b&gt;です。下のボタンからお気に入りのソーシャルネットワークで紹介して&lt;b&gt;応援してください&lt;/b&gt;。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Please Support %1</source>
        <translation>%1 を応援してください</translation>
    </message>
</context>
<context>
    <name>SpringForceAction</name>
    <message>
        <source>Create Spring</source>
        <translation>ばねを作成</translation>
    </message>
</context>
<context>
    <name>SpringForceContextWidget</name>
    <message>
        <source>K</source>
        <translation>K</translation>
    </message>
    <message>
        <source>Damping</source>
        <translation>減衰</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>&lt;B&gt;FPS&lt;/B&gt;: %1</source>
        <translation>&lt;B&gt;FPS&lt;/B&gt;: %1</translation>
    </message>
    <message>
        <source>&lt;B&gt;X&lt;/B&gt;: %1</source>
        <translation>&lt;B&gt;X&lt;/B&gt;: %1</translation>
    </message>
    <message>
        <source>&lt;B&gt;Y&lt;/B&gt;: %1</source>
        <translation>&lt;B&gt;Y&lt;/B&gt;: %1</translation>
    </message>
</context>
<context>
    <name>TextAction</name>
    <message>
        <source>Create Text</source>
        <translation>テキストを作成</translation>
    </message>
</context>
<context>
    <name>TextContextWidget</name>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Font Family</source>
        <translation>フォント</translation>
    </message>
    <message>
        <source>Font Size</source>
        <translation>フォントサイズ</translation>
    </message>
</context>
<context>
    <name>TipDialog</name>
    <message>
        <source>Tip of the Day</source>
        <translation>今日のヒント</translation>
    </message>
    <message>
        <source>Show tip at startup</source>
        <translation>起動時にヒントを表示</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>前へ</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>You could &lt;B&gt;improve rendering performance&lt;/B&gt; by enabling OpenGL in settings.</source>
        <translation>設定で OpenGL を有効にすると&lt;B&gt;描画を高速化&lt;/B&gt;できます。</translation>
    </message>
    <message>
        <source>You can show and hide the Property Editor using Shift+P.</source>
        <translation>Shift+P でプロパティエディターの表示を切り替えられます。</translation>
    </message>
    <message>
        <source>You can show and hide the Console using Shift+~.</source>
        <translation>Shift+~ でコンソールの表示を切り替えられます。</translation>
    </message>
    <message>
        <source>You can switch between &lt;B&gt;perspectives&lt;/B&gt; using &lt;I&gt;Alt + 1 .. 4&lt;/I&gt;.</source>
        <translation>&lt;I&gt;Alt + 1 .. 4&lt;/I&gt; で&lt;B&gt;パースペクティブ&lt;/B&gt;を切り替えられます。</translation>
    </message>
    <message>
        <source>&lt;B&gt;Download&lt;/B&gt; scenes that other people have created by selecting &lt;I&gt;File::Download&lt;/I&gt; from the menu bar.</source>
        <translation>メニューバーの&lt;I&gt;ファイル::ダウンロード&lt;/I&gt;で、他の人が作ったシーンを&lt;B&gt;ダウンロード&lt;/B&gt;できます。</translation>
    </message>
    <message>
        <source>You can &lt;B&gt;upload&lt;/B&gt; your scene to &lt;A HREF=&apos;%1&apos;&gt;%2&lt;/A&gt; by selecting &lt;I&gt;File::Upload&lt;/I&gt; from the menu bar.</source>
        <translation>メニューバーの&lt;I&gt;ファイル::アップロード&lt;/I&gt;で、シーンを &lt;A HREF=&apos;%1&apos;&gt;%2&lt;/A&gt; に&lt;B&gt;アップロード&lt;/B&gt;できます。</translation>
    </message>
</context>
<context>
    <name>UnionAction</name>
    <message>
        <source>Union</source>
        <translation>結合</translation>
    </message>
</context>
<context>
    <name>UploadDialog</name>
    <message>
        <source>Basic</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>Upload As</source>
        <translation>アップロードの名義</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>ログイン</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Optional</source>
        <translation>任意</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>カテゴリー</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>キーワード</translation>
    </message>
    <message>
        <source>Uploading: %p%</source>
        <translation>アップロード中: %p%</translation>
    </message>
    <message>
        <source>Bug Report</source>
        <translation>バグ報告</translation>
    </message>
    <message>
        <source>Educational</source>
        <translation>教育</translation>
    </message>
    <message>
        <source>Mechanisms</source>
        <translation>機構</translation>
    </message>
    <message>
        <source>Ragdolls</source>
        <translation>ラグドール</translation>
    </message>
    <message>
        <source>Vehicles</source>
        <translation>乗り物</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Anonymous User</source>
        <translation>匿名ユーザー</translation>
    </message>
    <message>
        <source>Registered User</source>
        <translation>登録ユーザー</translation>
    </message>
    <message>
        <source>If you don&apos;t already have an account, you can create one &lt;a href=&apos;%1&apos;&gt;here&lt;/a&gt;</source>
        <translation>アカウントをお持ちでない場合は&lt;a href=&apos;%1&apos;&gt;こちら&lt;/a&gt;で作成できます</translation>
    </message>
    <message>
        <source>Upload %1</source>
        <translation>%1 をアップロード</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Please fill in username and password</source>
        <translation>ユーザー名とパスワードを入力してください</translation>
    </message>
    <message>
        <source>Bad reply from server</source>
        <translation>サーバーの応答が不正です</translation>
    </message>
    <message>
        <source>Could not reach the scene repository: %1</source>
        <translation>シーンリポジトリに接続できません: %1</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Your scene has been successfully uploaded &lt;a href=&apos;%1&apos;&gt;here&lt;/a&gt;.</source>
        <translation>シーンを&lt;a href=&apos;%1&apos;&gt;こちら&lt;/a&gt;にアップロードしました。</translation>
    </message>
    <message>
        <source>The server replied with the following message:
%1</source>
        <translation>サーバーから次のメッセージが返されました:
%1</translation>
    </message>
</context>
<context>
    <name>XMLReader</name>
    <message>
        <source>Trying to load a scene which was created with another version of the application. </source>
        <translation>別のバージョンのアプリケーションで作成されたシーンを読み込もうとしています。</translation>
    </message>
    <message>
        <source>(Scene version: %1 Application version: %2)</source>
        <translation>(シーンのバージョン: %1、アプリケーションのバージョン: %2)</translation>
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
