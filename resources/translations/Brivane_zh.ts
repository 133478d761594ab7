<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>致谢</translation>
    </message>
    <message>
        <source>ChangeLog</source>
        <translation>更新日志</translation>
    </message>
    <message>
        <source>About </source>
        <translation>关于 </translation>
    </message>
</context>
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
    <message>
        <source>%1 is not evaluated: a script file may hold at most %2 MB.</source>
        <translation>未执行 %1：脚本文件最大为 %2 MB。</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在加载...</translation>
    </message>
    <message>
        <source>The script was stopped.</source>
        <translation>脚本已停止。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Could not open the scene %1.</source>
        <translation>无法打开场景 %1。</translation>
    </message>
</context>
<context>
    <name>BalloonAction</name>
    <message>
        <source>Create Balloon</source>
        <translation>创建气球</translation>
    </message>
</context>
<context>
    <name>BrushAction</name>
    <message>
        <source>Create freehand shape</source>
        <translation>创建手绘形状</translation>
    </message>
</context>
<context>
    <name>BrushContextWidget</name>
    <message>
        <source>Brush Size</source>
        <translation>画笔大小</translation>
    </message>
</context>
<context>
    <name>BrushDialog</name>
    <message>
        <source>Select Brush</source>
        <translation>选择画刷</translation>
    </message>
    <message>
        <source>Color/Pattern</source>
        <translation>颜色/图案</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>选择...</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>图案</translation>
    </message>
    <message>
        <source>No Brush</source>
        <translation>无画刷</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>实心</translation>
    </message>
    <message>
        <source>Dense1</source>
        <translation>密集 1</translation>
    </message>
    <message>
        <source>Dense2</source>
        <translation>密集 2</translation>
    </message>
    <message>
        <source>Dense3</source>
        <translation>密集 3</translation>
    </message>
    <message>
        <source>Dense4</source>
        <translation>密集 4</translation>
    </message>
    <message>
        <source>Dense5</source>
        <translation>密集 5</translation>
    </message>
    <message>
        <source>Dense6</source>
        <translation>密集 6</translation>
    </message>
    <message>
        <source>Dense7</source>
        <translation>密集 7</translation>
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
        <translation>反斜线</translation>
    </message>
    <message>
        <source>Forward diagonal</source>
        <translation>正斜线</translation>
    </message>
    <message>
        <source>Crossing diagonal</source>
        <translation>交叉斜线</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>纹理</translation>
    </message>
    <message>
        <source>Auto Adjust</source>
        <translation>自动调整</translation>
    </message>
    <message>
        <source>Horizontal scale</source>
        <translation>水平缩放</translation>
    </message>
    <message>
        <source>Vertical scale</source>
        <translation>垂直缩放</translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation>水平偏移</translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation>垂直偏移</translation>
    </message>
    <message>
        <source>Select Texture</source>
        <translation>选择纹理</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp *.gif)</source>
        <translation>图像文件 (*.png *.jpg *.bmp *.gif)</translation>
    </message>
</context>
<context>
    <name>CameraAction</name>
    <message>
        <source>Create Camera</source>
        <translation>创建摄像机</translation>
    </message>
</context>
<context>
    <name>CameraContextWidget</name>
    <message>
        <source>Camera Mode</source>
        <translation>相机模式</translation>
    </message>
    <message>
        <source>Remove All Cameras</source>
        <translation>移除所有相机</translation>
    </message>
    <message>
        <source>Use Default Viewport</source>
        <translation>使用主视图</translation>
    </message>
    <message>
        <source>Create New Viewport</source>
        <translation>创建新视图</translation>
    </message>
</context>
<context>
    <name>CameraGraphicsView</name>
    <message>
        <source>Camera for %1</source>
        <translation>%1 的相机</translation>
    </message>
</context>
<context>
    <name>ChainAction</name>
    <message>
        <source>Create Chain</source>
        <translation>创建链条</translation>
    </message>
</context>
<context>
    <name>ChainContextWidget</name>
    <message>
        <source>Circle Radius</source>
        <translation>圆半径</translation>
    </message>
</context>
<context>
    <name>CircleAction</name>
    <message>
        <source>Create Circle</source>
        <translation>创建圆形</translation>
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
        <translation>颜色</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>选择...</translation>
    </message>
</context>
<context>
    <name>DifferenceAction</name>
    <message>
        <source>Difference</source>
        <translation>差集</translation>
    </message>
</context>
<context>
    <name>DistanceJointAction</name>
    <message>
        <source>Create Distance Joint</source>
        <translation>创建距离关节</translation>
    </message>
</context>
<context>
    <name>DownloadDialog</name>
    <message>
        <source>Maximum number of scenes to download</source>
        <translation>最多下载的场景数</translation>
    </message>
    <message>
        <source>Save to</source>
        <translation>保存到</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>浏览...</translation>
    </message>
    <message>
        <source>Download scenes from %1</source>
        <translation>从 %1 下载场景</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Failed to retrieve file list from server.</source>
        <translation>无法从服务器获取文件列表。</translation>
    </message>
</context>
<context>
    <name>DownloadProgressDialog</name>
    <message>
        <source>Scene Filename</source>
        <translation>场景文件名</translation>
    </message>
    <message>
        <source>Download Information</source>
        <translation>下载信息</translation>
    </message>
    <message>
        <source>Refused: not a file of this folder.</source>
        <translation>已拒绝：不是此文件夹的文件。</translation>
    </message>
    <message>
        <source>Download Progress</source>
        <translation>下载进度</translation>
    </message>
    <message>
        <source>Successfully downloaded.</source>
        <translation>下载成功。</translation>
    </message>
    <message>
        <source>Already downloaded.</source>
        <translation>已下载。</translation>
    </message>
    <message>
        <source>Failed to open file for writing.</source>
        <translation>无法打开文件进行写入。</translation>
    </message>
    <message>
        <source>Refused: larger than %1 MB.</source>
        <translation>已拒绝：大于 %1 MB。</translation>
    </message>
</context>
<context>
    <name>EraseAction</name>
    <message>
        <source>Erase Item</source>
        <translation>擦除对象</translation>
    </message>
</context>
<context>
    <name>EraseContextWidget</name>
    <message>
        <source>Eraser Size</source>
        <translation>橡皮擦大小</translation>
    </message>
</context>
<context>
    <name>ExplodeAction</name>
    <message>
        <source>Explode Item</source>
        <translation>爆破对象</translation>
    </message>
</context>
<context>
    <name>ExplodeContextWidget</name>
    <message>
        <source>Explode Method</source>
        <translation>爆炸方式</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Triangulate</source>
        <translation>分解为三角形</translation>
    </message>
    <message>
        <source>Squarify</source>
        <translation>分解为方块</translation>
    </message>
    <message>
        <source>Circlify</source>
        <translation>分解为圆</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Image Export</source>
        <translation>图像导出</translation>
    </message>
    <message>
        <source>Directory</source>
        <translation>目录</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>浏览...</translation>
    </message>
    <message>
        <source>Filename</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>(without extension)</source>
        <translation>（不含扩展名）</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>质量</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Please enter a file name.</source>
        <translation>请输入文件名。</translation>
    </message>
    <message>
        <source>File %1 already exists</source>
        <translation>文件 %1 已存在</translation>
    </message>
    <message>
        <source>Failed to save image</source>
        <translation>无法保存图像</translation>
    </message>
</context>
<context>
    <name>GearAction</name>
    <message>
        <source>Create Gear</source>
        <translation>创建齿轮</translation>
    </message>
</context>
<context>
    <name>GearContextWidget</name>
    <message>
        <source>Gear Tooth Size</source>
        <translation>齿大小</translation>
    </message>
    <message>
        <source>Gear Tooth Count Divisor</source>
        <translation>齿数除数</translation>
    </message>
    <message>
        <source>Create Revolute Joint</source>
        <translation>创建旋转关节</translation>
    </message>
</context>
<context>
    <name>GraphicsView</name>
    <message>
        <source>OpenGL is not available here; the view draws without it.</source>
        <translation>此处无法使用 OpenGL；视图将不使用 OpenGL 进行绘制。</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>OpenGL draws in software here (%1); the view draws without it, which is faster.</source>
        <translation>此处 OpenGL 以软件方式绘制 (%1)；视图不使用它绘制，这样更快。</translation>
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
        <translation>选择...</translation>
    </message>
    <message>
        <source>Body With Camera</source>
        <translation>相机跟随的物体</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>比例</translation>
    </message>
</context>
<context>
    <name>GunAction</name>
    <message>
        <source>Shoot Item</source>
        <translation>发射对象</translation>
    </message>
</context>
<context>
    <name>HelpWidget</name>
    <message>
        <source>Brivane Help</source>
        <translation>Brivane 帮助</translation>
    </message>
</context>
<context>
    <name>ImageAction</name>
    <message>
        <source>Create Image</source>
        <translation>从图像创建</translation>
    </message>
</context>
<context>
    <name>ImageContextWidget</name>
    <message>
        <source>Image</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>选择...</translation>
    </message>
    <message>
        <source>Polygon Threshold</source>
        <translation>多边形阈值</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>比例</translation>
    </message>
    <message>
        <source>Select Image</source>
        <translation>选择图像</translation>
    </message>
    <message>
        <source>Images (*.png *.xpm *.jpg)</source>
        <translation>图像 (*.png *.xpm *.jpg)</translation>
    </message>
</context>
<context>
    <name>IntersectionAction</name>
    <message>
        <source>Intersection</source>
        <translation>交集</translation>
    </message>
</context>
<context>
    <name>JSDialog</name>
    <message>
        <source>The program contains a syntax error.</source>
        <translation>程序包含语法错误。</translation>
    </message>
    <message>
        <source>The program is incomplete.</source>
        <translation>程序不完整。</translation>
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
        <translation>固定点</translation>
    </message>
    <message>
        <source>First</source>
        <translation>首端</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>末端</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>两端</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>New Scene</source>
        <translation>新建场景</translation>
    </message>
    <message>
        <source>Creates a new scene</source>
        <translation>创建一个新场景</translation>
    </message>
    <message>
        <source>Save Scene</source>
        <translation>保存场景</translation>
    </message>
    <message>
        <source>Saves current scene</source>
        <translation>保存当前场景</translation>
    </message>
    <message>
        <source>Save Scene As...</source>
        <translation>场景另存为...</translation>
    </message>
    <message>
        <source>Saves current scene as</source>
        <translation>将当前场景另存为新文件</translation>
    </message>
    <message>
        <source>Load Scene...</source>
        <translation>加载场景...</translation>
    </message>
    <message>
        <source>Loads a scene</source>
        <translation>加载一个场景</translation>
    </message>
    <message>
        <source>Upload Scene...</source>
        <translation>上传场景...</translation>
    </message>
    <message>
        <source>Uploads current scene to %1</source>
        <translation>将当前场景上传到 %1</translation>
    </message>
    <message>
        <source>Download Scenes...</source>
        <translation>下载场景...</translation>
    </message>
    <message>
        <source>Downloads scenes from %1</source>
        <translation>从 %1 下载场景</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>导出...</translation>
    </message>
    <message>
        <source>Exports current scene as an image</source>
        <translation>将当前场景导出为图像</translation>
    </message>
    <message>
        <source>Evaluate Script...</source>
        <translation>运行脚本...</translation>
    </message>
    <message>
        <source>Evaluates a .script file</source>
        <translation>运行一个 .script 文件</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Quits the application</source>
        <translation>退出应用程序</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Selects all items of the scene</source>
        <translation>选择场景中的所有对象</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zooms in</source>
        <translation>放大视图</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Zooms out</source>
        <translation>缩小视图</translation>
    </message>
    <message>
        <source>Zoom Extents</source>
        <translation>缩放至全景</translation>
    </message>
    <message>
        <source>Zooms in or out to fit the extents of the scene</source>
        <translation>放大或缩小视图以显示整个场景</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>全部显示</translation>
    </message>
    <message>
        <source>Shows all toolbars</source>
        <translation>显示所有工具栏</translation>
    </message>
    <message>
        <source>Hide all</source>
        <translation>全部隐藏</translation>
    </message>
    <message>
        <source>Hides all toolbars</source>
        <translation>隐藏所有工具栏</translation>
    </message>
    <message>
        <source>Shows all dock widgets</source>
        <translation>显示所有停靠窗口</translation>
    </message>
    <message>
        <source>Hides all dock widgets</source>
        <translation>隐藏所有停靠窗口</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>Toggles fullscreen mode</source>
        <translation>切换全屏模式</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Shows the application&apos;s help file</source>
        <translation>显示应用程序的帮助文件</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>关于...</translation>
    </message>
    <message>
        <source>Shows the application&apos;s About box</source>
        <translation>显示应用程序的“关于”对话框</translation>
    </message>
    <message>
        <source>About Qt...</source>
        <translation>关于 Qt...</translation>
    </message>
    <message>
        <source>Shows the Qt library&apos;s About box</source>
        <translation>显示 Qt 库的“关于”对话框</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>播放/暂停</translation>
    </message>
    <message>
        <source>Starts/Pauses the simulation</source>
        <translation>开始或暂停模拟</translation>
    </message>
    <message>
        <source>Select/Move</source>
        <translation>选择/移动</translation>
    </message>
    <message>
        <source>Selects and/or moves an item</source>
        <translation>选择和/或移动对象</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Removes an item or a selection of items from the scene</source>
        <translation>从场景中删除一个对象或所选的多个对象</translation>
    </message>
    <message>
        <source>Explode Item</source>
        <translation>爆破对象</translation>
    </message>
    <message>
        <source>Explodes an item</source>
        <translation>使对象爆炸</translation>
    </message>
    <message>
        <source>Erase Item</source>
        <translation>擦除对象</translation>
    </message>
    <message>
        <source>Erases parts of an item</source>
        <translation>擦除对象的部分区域</translation>
    </message>
    <message>
        <source>Create Camera</source>
        <translation>创建摄像机</translation>
    </message>
    <message>
        <source>Creates a camera that follows an item</source>
        <translation>创建一个跟随对象的摄像机</translation>
    </message>
    <message>
        <source>Create Tracer</source>
        <translation>创建轨迹追踪器</translation>
    </message>
    <message>
        <source>Creates a tracer that follows an item</source>
        <translation>创建一个跟随对象的轨迹追踪器</translation>
    </message>
    <message>
        <source>Shoot Item</source>
        <translation>发射对象</translation>
    </message>
    <message>
        <source>Shoots an item</source>
        <translation>发射一个对象</translation>
    </message>
    <message>
        <source>Create Plot</source>
        <translation>创建图表</translation>
    </message>
    <message>
        <source>Creates a plot for a given item</source>
        <translation>为指定对象创建图表</translation>
    </message>
    <message>
        <source>Create Rectangle</source>
        <translation>创建矩形</translation>
    </message>
    <message>
        <source>Creates a rectangle</source>
        <translation>创建一个矩形</translation>
    </message>
    <message>
        <source>Create Circle</source>
        <translation>创建圆形</translation>
    </message>
    <message>
        <source>Creates a circle</source>
        <translation>创建一个圆形</translation>
    </message>
    <message>
        <source>Create Polygon</source>
        <translation>创建多边形</translation>
    </message>
    <message>
        <source>Creates a polygon</source>
        <translation>创建一个多边形</translation>
    </message>
    <message>
        <source>Create Balloon</source>
        <translation>创建气球</translation>
    </message>
    <message>
        <source>Creates a balloon</source>
        <translation>创建一个气球</translation>
    </message>
    <message>
        <source>Create freehand shape</source>
        <translation>创建手绘形状</translation>
    </message>
    <message>
        <source>Freehand drawing of random shapes</source>
        <translation>手绘任意形状</translation>
    </message>
    <message>
        <source>Create Chain</source>
        <translation>创建链条</translation>
    </message>
    <message>
        <source>Creates a chain</source>
        <translation>创建一条链条</translation>
    </message>
    <message>
        <source>Create Rope</source>
        <translation>创建绳索</translation>
    </message>
    <message>
        <source>Creates a rope</source>
        <translation>创建一条绳索</translation>
    </message>
    <message>
        <source>Create Text</source>
        <translation>创建文字</translation>
    </message>
    <message>
        <source>Creates items from text</source>
        <translation>根据文字创建对象</translation>
    </message>
    <message>
        <source>Create Gear</source>
        <translation>创建齿轮</translation>
    </message>
    <message>
        <source>Creates a gear</source>
        <translation>创建一个齿轮</translation>
    </message>
    <message>
        <source>Create Image</source>
        <translation>从图像创建</translation>
    </message>
    <message>
        <source>Creates a shape based on the outline of a (png) image</source>
        <translation>根据 (PNG) 图像的轮廓创建形状</translation>
    </message>
    <message>
        <source>Create Distance Joint</source>
        <translation>创建距离关节</translation>
    </message>
    <message>
        <source>Creates a distance joint between two items (or an item and the background)</source>
        <translation>在两个对象之间（或对象与背景之间）创建距离关节</translation>
    </message>
    <message>
        <source>Create Revolute Joint</source>
        <translation>创建旋转关节</translation>
    </message>
    <message>
        <source>Creates a revolute joint between two items (or an item and the background)</source>
        <translation>在两个对象之间（或对象与背景之间）创建旋转关节</translation>
    </message>
    <message>
        <source>Create Prismatic Joint</source>
        <translation>创建平移关节</translation>
    </message>
    <message>
        <source>Creates a prismatic joint between two items</source>
        <translation>在两个对象之间创建平移关节</translation>
    </message>
    <message>
        <source>Create Pulley Joint</source>
        <translation>创建滑轮关节</translation>
    </message>
    <message>
        <source>Creates a pulley joint between two items</source>
        <translation>在两个对象之间创建滑轮关节</translation>
    </message>
    <message>
        <source>Create Spring</source>
        <translation>创建弹簧</translation>
    </message>
    <message>
        <source>Creates a spring between two items</source>
        <translation>在两个对象之间创建弹簧</translation>
    </message>
    <message>
        <source>Union</source>
        <translation>并集</translation>
    </message>
    <message>
        <source>Creates an item from the union of two other items</source>
        <translation>由另外两个对象的并集创建对象</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>差集</translation>
    </message>
    <message>
        <source>Creates an item from the difference of two other items</source>
        <translation>由另外两个对象的差集创建对象</translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation>交集</translation>
    </message>
    <message>
        <source>Creates an item from the intersection of two other items</source>
        <translation>由另外两个对象的交集创建对象</translation>
    </message>
    <message>
        <source>General Toolbar</source>
        <translation>常规工具栏</translation>
    </message>
    <message>
        <source>Bodies Toolbar</source>
        <translation>物体工具栏</translation>
    </message>
    <message>
        <source>Joints Toolbar</source>
        <translation>关节工具栏</translation>
    </message>
    <message>
        <source>Forces Toolbar</source>
        <translation>力工具栏</translation>
    </message>
    <message>
        <source>Boolean Toolbar</source>
        <translation>布尔运算工具栏</translation>
    </message>
    <message>
        <source>Snap Toolbar</source>
        <translation>吸附工具栏</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>控制台</translation>
    </message>
    <message>
        <source>Scene Properties</source>
        <translation>场景属性</translation>
    </message>
    <message>
        <source>Property Editor</source>
        <translation>属性编辑器</translation>
    </message>
    <message>
        <source>Quick Load</source>
        <translation>快速加载</translation>
    </message>
    <message>
        <source>Commands History</source>
        <translation>命令历史</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>Dock Widgets</source>
        <translation>停靠窗口</translation>
    </message>
    <message>
        <source>Perspectives</source>
        <translation>透视图</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>Action Context Toolbar</source>
        <translation>工具上下文工具栏</translation>
    </message>
    <message>
        <source>New file created</source>
        <translation>已创建新文件</translation>
    </message>
    <message>
        <source>File saved (%1)</source>
        <translation>文件已保存 (%1)</translation>
    </message>
    <message>
        <source>File loaded (%1)</source>
        <translation>文件已加载 (%1)</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>加载</translation>
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
        <translation>停止脚本</translation>
    </message>
    <message>
        <source>Stops the script that is running (Escape)</source>
        <translation>停止正在运行的脚本 (Escape)</translation>
    </message>
    <message>
        <source>Upload Scene</source>
        <translation>上传场景</translation>
    </message>
    <message>
        <source>The scene needs to be saved before uploading.
Please save the scene and try again.</source>
        <translation>上传前需要先保存场景。
请保存场景后重试。</translation>
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
        <translation>步进频率</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> 赫兹</translation>
    </message>
    <message>
        <source>Iterations</source>
        <translation>迭代次数</translation>
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
        <translation>热启动</translation>
    </message>
    <message>
        <source>Continuous Physics</source>
        <translation>连续物理</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
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
        <translation>关节</translation>
    </message>
</context>
<context>
    <name>PlayPauseAction</name>
    <message>
        <source>Play/Pause</source>
        <translation>播放/暂停</translation>
    </message>
</context>
<context>
    <name>PlotAction</name>
    <message>
        <source>Create Plot</source>
        <translation>创建图表</translation>
    </message>
</context>
<context>
    <name>PlotWidget</name>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>加速度</translation>
    </message>
    <message>
        <source>Time (sec)</source>
        <translation>时间 (秒)</translation>
    </message>
    <message>
        <source>Speed (m/sec)</source>
        <translation>速度 (米/秒)</translation>
    </message>
</context>
<context>
    <name>PolygonAction</name>
    <message>
        <source>Create Polygon</source>
        <translation>创建多边形</translation>
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
    <name>PrismaticJointAction</name>
    <message>
        <source>Create Prismatic Joint</source>
        <translation>创建平移关节</translation>
    </message>
</context>
<context>
    <name>PropertyDelegate</name>
    <message>
        <source>Select Color</source>
        <translation>选择颜色</translation>
    </message>
</context>
<context>
    <name>PropertyEditorWidget</name>
    <message>
        <source>&lt;div align=&apos;right&apos;&gt;&lt;i&gt;&lt;font size=&apos;10px&apos;&gt;(Edit properties with double-click)&lt;/font&gt;&lt;/i&gt;&lt;/div&gt;</source>
        <translation>&lt;div align=&apos;right&apos;&gt;&lt;i&gt;&lt;font size=&apos;10px&apos;&gt;(双击编辑属性)&lt;/font&gt;&lt;/i&gt;&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>画刷</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Specify the filter categories that %1 belongs to.</source>
        <translation>指定 %1 所属的过滤类别。</translation>
    </message>
    <message>
        <source>Specify the filter categories that %1 collides with.</source>
        <translation>指定与 %1 碰撞的过滤类别。</translation>
    </message>
</context>
<context>
    <name>PropertyModel</name>
    <message>
        <source>Property</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>PulleyJointAction</name>
    <message>
        <source>Create Pulley Joint</source>
        <translation>创建滑轮关节</translation>
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
    <message>
        <source>Balloon</source>
        <translation>气球</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>圆形</translation>
    </message>
    <message>
        <source>Distance Joint</source>
        <translation>距离关节</translation>
    </message>
    <message>
        <source>Linear Impulse</source>
        <translation>线性冲量</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>多边形</translation>
    </message>
    <message>
        <source>Prismatic Joint</source>
        <translation>平移关节</translation>
    </message>
    <message>
        <source>Pulley Joint</source>
        <translation>滑轮关节</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>矩形</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Revolute Joint</source>
        <translation>旋转关节</translation>
    </message>
    <message>
        <source>Spring Force</source>
        <translation>弹簧力</translation>
    </message>
    <message>
        <source>Gear</source>
        <translation>齿轮</translation>
    </message>
    <message>
        <source>Union</source>
        <translation>并集</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>差集</translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation>交集</translation>
    </message>
    <message>
        <source>Circlify</source>
        <translation>分解为圆</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>擦除</translation>
    </message>
    <message>
        <source>Not exploded: %1 pieces would be made, more than %2.</source>
        <translation>未分解：将产生 %1 个碎片，超过 %2 个。</translation>
    </message>
    <message>
        <source>Squarify</source>
        <translation>分解为方块</translation>
    </message>
    <message>
        <source>Triangulate</source>
        <translation>分解为三角形</translation>
    </message>
    <message>
        <source>Chain</source>
        <translation>链条</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>Rope</source>
        <translation>绳子</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>A two-dimensional physics sandbox.</source>
        <translation>二维物理沙盒。</translation>
    </message>
    <message>
        <source>A scene file to open.</source>
        <translation>要打开的场景文件。</translation>
    </message>
    <message>
        <source>Updates Available</source>
        <translation>有可用更新</translation>
    </message>
    <message>
        <source>A new version of Brivane is available.
Update the application?</source>
        <translation>Brivane 有新版本。
是否更新应用程序？</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Failed to launch the updater.
Please run it manually using the following command:

%1/maintenancetool</source>
        <translation>无法启动更新程序。
请使用以下命令手动运行：

%1/maintenancetool</translation>
    </message>
</context>
<context>
    <name>QuickLoadWidget</name>
    <message>
        <source>Icon SIze</source>
        <translation>图标大小</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>浏览...</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>打开文件夹</translation>
    </message>
</context>
<context>
    <name>RectangleAction</name>
    <message>
        <source>Create Rectangle</source>
        <translation>创建矩形</translation>
    </message>
    <message>
        <source>width=%1
height=%2</source>
        <translation>宽度=%1
高度=%2</translation>
    </message>
</context>
<context>
    <name>RemoveAction</name>
    <message>
        <source>Remove</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>RevoluteJointAction</name>
    <message>
        <source>Create Revolute Joint</source>
        <translation>创建旋转关节</translation>
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
        <translation>创建绳索</translation>
    </message>
</context>
<context>
    <name>RopeContextWidget</name>
    <message>
        <source>Rectangle Width</source>
        <translation>矩形宽度</translation>
    </message>
</context>
<context>
    <name>ScenePropertiesWidget</name>
    <message>
        <source>Physics World</source>
        <translation>物理世界</translation>
    </message>
    <message>
        <source>Graphics View</source>
        <translation>视图</translation>
    </message>
</context>
<context>
    <name>SelectAction</name>
    <message>
        <source>Select/Move</source>
        <translation>选择/移动</translation>
    </message>
</context>
<context>
    <name>SettingsWidget</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>图形</translation>
    </message>
    <message>
        <source>Use OpenGL</source>
        <translation>使用 OpenGL</translation>
    </message>
    <message>
        <source>Antialiasing</source>
        <translation>抗锯齿</translation>
    </message>
    <message>
        <source>Physics</source>
        <translation>物理</translation>
    </message>
    <message>
        <source>Timer Interval</source>
        <translation>定时器间隔</translation>
    </message>
    <message>
        <source>Bodies Defaults</source>
        <translation>物体默认值</translation>
    </message>
    <message>
        <source>Linear Damping</source>
        <translation>线性阻尼</translation>
    </message>
    <message>
        <source>Angular Damping</source>
        <translation>角阻尼</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>摩擦</translation>
    </message>
    <message>
        <source>Restitution</source>
        <translation>弹性</translation>
    </message>
    <message>
        <source>Allow Sleep</source>
        <translation>允许休眠</translation>
    </message>
    <message>
        <source>Is Bullet</source>
        <translation>是子弹</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>GUI Style</source>
        <translation>界面风格</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Create ground on start-up</source>
        <translation>启动时创建地面</translation>
    </message>
    <message>
        <source>Show scale indicator</source>
        <translation>显示比例尺</translation>
    </message>
    <message>
        <source>Show tips at start-up</source>
        <translation>启动时显示提示</translation>
    </message>
    <message>
        <source>Attach script debugger</source>
        <translation>附加脚本调试器</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 毫秒</translation>
    </message>
</context>
<context>
    <name>SnapWidget</name>
    <message>
        <source>Snap To Grid (F9)</source>
        <translation>对齐网格 (F9)</translation>
    </message>
    <message>
        <source>Snaps to grid</source>
        <translation>对齐到网格</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>大小:</translation>
    </message>
    <message>
        <source>Snap To Objects (F10)</source>
        <translation>对齐物体 (F10)</translation>
    </message>
    <message>
        <source>Snaps to objects</source>
        <translation>对齐到物体</translation>
    </message>
    <message>
        <source>Distance:</source>
        <translation>距离:</translation>
    </message>
</context>
<context>
    <name>SocialDialog</name>
    <message>
        <source>%1 is a &lt;b&gt;free software&lt;/b&gt;. Please &lt;b&gt;support it&lt;/b&gt; by submitting it to your favourite social networking sites using the buttons below.</source>
        <translation>%1 是&lt;b&gt;自由软件&lt;/b&gt;。请使用下面的按钮将它分享到您喜爱的社交网站，以&lt;b&gt;支持它&lt;/b&gt;。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Please Support %1</source>
        <translation>请支持 %1</translation>
    </message>
</context>
<context>
    <name>SpringForceAction</name>
    <message>
        <source>Create Spring</source>
        <translation>创建弹簧</translation>
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
        <translation>阻尼</translation>
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
        <translation>创建文字</translation>
    </message>
</context>
<context>
    <name>TextContextWidget</name>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Font Family</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>Font Size</source>
        <translation>字号</translation>
    </message>
</context>
<context>
    <name>TipDialog</name>
    <message>
        <source>Tip of the Day</source>
        <translation>每日提示</translation>
    </message>
    <message>
        <source>Show tip at startup</source>
        <translation>启动时显示提示</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>上一条</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一条</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>You could &lt;B&gt;improve rendering performance&lt;/B&gt; by enabling OpenGL in settings.</source>
        <translation>在设置中启用 OpenGL 可以&lt;B&gt;提高绘制性能&lt;/B&gt;。</translation>
    </message>
    <message>
        <source>You can show and hide the Property Editor using Shift+P.</source>
        <translation>使用 Shift+P 显示或隐藏属性编辑器。</translation>
    </message>
    <message>
        <source>You can show and hide the Console using Shift+~.</source>
        <translation>使用 Shift+~ 显示或隐藏控制台。</translation>
    </message>
    <message>
        <source>You can switch between &lt;B&gt;perspectives&lt;/B&gt; using &lt;I&gt;Alt + 1 .. 4&lt;/I&gt;.</source>
        <translation>使用 &lt;I&gt;Alt + 1 .. 4&lt;/I&gt; 切换&lt;B&gt;布局&lt;/B&gt;。</translation>
    </message>
    <message>
        <source>&lt;B&gt;Download&lt;/B&gt; scenes that other people have created by selecting &lt;I&gt;File::Download&lt;/I&gt; from the menu bar.</source>
        <translation>通过菜单栏的&lt;I&gt;文件::下载&lt;/I&gt;&lt;B&gt;下载&lt;/B&gt;其他人创建的场景。</translation>
    </message>
    <message>
        <source>You can &lt;B&gt;upload&lt;/B&gt; your scene to &lt;A HREF=&apos;%1&apos;&gt;%2&lt;/A&gt; by selecting &lt;I&gt;File::Upload&lt;/I&gt; from the menu bar.</source>
        <translation>通过菜单栏的&lt;I&gt;文件::上传&lt;/I&gt;，可以将场景&lt;B&gt;上传&lt;/B&gt;到 &lt;A HREF=&apos;%1&apos;&gt;%2&lt;/A&gt;。</translation>
    </message>
</context>
<context>
    <name>UnionAction</name>
    <message>
        <source>Union</source>
        <translation>并集</translation>
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
        <translation>上传身份</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Optional</source>
        <translation>可选</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>关键词</translation>
    </message>
    <message>
        <source>Uploading: %p%</source>
        <translation>正在上传：%p%</translation>
    </message>
    <message>
        <source>Bug Report</source>
        <translation>错误报告</translation>
    </message>
    <message>
        <source>Educational</source>
        <translation>教育</translation>
    </message>
    <message>
        <source>Mechanisms</source>
        <translation>机械</translation>
    </message>
    <message>
        <source>Ragdolls</source>
        <translation>布娃娃</translation>
    </message>
    <message>
        <source>Vehicles</source>
        <translation>车辆</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Anonymous User</source>
        <translation>匿名用户</translation>
    </message>
    <message>
        <source>Registered User</source>
        <translation>注册用户</translation>
    </message>
    <message>
        <source>If you don&apos;t already have an account, you can create one &lt;a href=&apos;%1&apos;&gt;here&lt;/a&gt;</source>
        <translation>如果还没有账户，可以在&lt;a href=&apos;%1&apos;&gt;这里&lt;/a&gt;创建</translation>
    </message>
    <message>
        <source>Upload %1</source>
        <translation>上传 %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Please fill in username and password</source>
        <translation>请填写用户名和密码</translation>
    </message>
    <message>
        <source>Bad reply from server</source>
        <translation>服务器回复无效</translation>
    </message>
    <message>
        <source>Could not reach the scene repository: %1</source>
        <translation>无法连接场景仓库：%1</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Your scene has been successfully uploaded &lt;a href=&apos;%1&apos;&gt;here&lt;/a&gt;.</source>
        <translation>您的场景已成功上传到&lt;a href=&apos;%1&apos;&gt;这里&lt;/a&gt;。</translation>
    </message>
    <message>
        <source>The server replied with the following message:
%1</source>
        <translation>服务器回复了以下消息：
%1</translation>
    </message>
</context>
<context>
    <name>XMLReader</name>
    <message>
        <source>Trying to load a scene which was created with another version of the application. </source>
        <translation>正在加载由其他版本的应用程序创建的场景。</translation>
    </message>
    <message>
        <source>(Scene version: %1 Application version: %2)</source>
        <translation>(场景版本：%1，应用程序版本：%2)</translation>
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
