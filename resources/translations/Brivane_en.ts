<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Credits</translation>
    </message>
    <message>
        <source>ChangeLog</source>
        <translation>ChangeLog</translation>
    </message>
    <message>
        <source>About </source>
        <translation>About </translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Could not remove temp directory.</source>
        <translation>Could not remove temp directory.</translation>
    </message>
    <message>
        <source>Could not create temp directory.</source>
        <translation>Could not create temp directory.</translation>
    </message>
    <message>
        <source>Could not set language: Unknown language: %1</source>
        <translation>Could not set language: Unknown language: %1</translation>
    </message>
    <message>
        <source>%1 has been successfully loaded.</source>
        <translation>%1 has been successfully loaded.</translation>
    </message>
    <message>
        <source>%1 failed to load.</source>
        <translation>%1 failed to load.</translation>
    </message>
    <message>
        <source>Script debugger attached.</source>
        <translation>Script debugger attached.</translation>
    </message>
    <message>
        <source>Script debugger detached.</source>
        <translation>Script debugger detached.</translation>
    </message>
    <message>
        <source>Supported OpenGL Versions:</source>
        <translation>Supported OpenGL Versions:</translation>
    </message>
    <message>
        <source>%1 is not evaluated: a script file may hold at most %2 MB.</source>
        <translation>%1 is not evaluated: a script file may hold at most %2 MB.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Loading...</translation>
    </message>
    <message>
        <source>The script was stopped.</source>
        <translation>The script was stopped.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Could not open the scene %1.</source>
        <translation>Could not open the scene %1.</translation>
    </message>
</context>
<context>
    <name>BalloonAction</name>
    <message>
        <source>Create Balloon</source>
        <translation>Create Balloon</translation>
    </message>
</context>
<context>
    <name>BrushAction</name>
    <message>
        <source>Create freehand shape</source>
        <translation>Create freehand shape</translation>
    </message>
</context>
<context>
    <name>BrushContextWidget</name>
    <message>
        <source>Brush Size</source>
        <translation>Brush Size</translation>
    </message>
</context>
<context>
    <name>BrushDialog</name>
    <message>
        <source>Select Brush</source>
        <translation>Select Brush</translation>
    </message>
    <message>
        <source>Color/Pattern</source>
        <translation>Color/Pattern</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Select...</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Pattern</translation>
    </message>
    <message>
        <source>No Brush</source>
        <translation>No Brush</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Solid</translation>
    </message>
    <message>
        <source>Dense1</source>
        <translation>Dense1</translation>
    </message>
    <message>
        <source>Dense2</source>
        <translation>Dense2</translation>
    </message>
    <message>
        <source>Dense3</source>
        <translation>Dense3</translation>
    </message>
    <message>
        <source>Dense4</source>
        <translation>Dense4</translation>
    </message>
    <message>
        <source>Dense5</source>
        <translation>Dense5</translation>
    </message>
    <message>
        <source>Dense6</source>
        <translation>Dense6</translation>
    </message>
    <message>
        <source>Dense7</source>
        <translation>Dense7</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>Cross</translation>
    </message>
    <message>
        <source>Backward diagonal</source>
        <translation>Backward diagonal</translation>
    </message>
    <message>
        <source>Forward diagonal</source>
        <translation>Forward diagonal</translation>
    </message>
    <message>
        <source>Crossing diagonal</source>
        <translation>Crossing diagonal</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>Texture</translation>
    </message>
    <message>
        <source>Auto Adjust</source>
        <translation>Auto Adjust</translation>
    </message>
    <message>
        <source>Horizontal scale</source>
        <translation>Horizontal scale</translation>
    </message>
    <message>
        <source>Vertical scale</source>
        <translation>Vertical scale</translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation>Horizontal offset</translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation>Vertical offset</translation>
    </message>
    <message>
        <source>Select Texture</source>
        <translation>Select Texture</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp *.gif)</source>
        <translation>Image Files (*.png *.jpg *.bmp *.gif)</translation>
    </message>
</context>
<context>
    <name>CameraAction</name>
    <message>
        <source>Create Camera</source>
        <translation>Create Camera</translation>
    </message>
</context>
<context>
    <name>CameraContextWidget</name>
    <message>
        <source>Camera Mode</source>
        <translation>Camera Mode</translation>
    </message>
    <message>
        <source>Remove All Cameras</source>
        <translation>Remove All Cameras</translation>
    </message>
    <message>
        <source>Use Default Viewport</source>
        <translation>Use Default Viewport</translation>
    </message>
    <message>
        <source>Create New Viewport</source>
        <translation>Create New Viewport</translation>
    </message>
</context>
<context>
    <name>CameraGraphicsView</name>
    <message>
        <source>Camera for %1</source>
        <translation>Camera for %1</translation>
    </message>
</context>
<context>
    <name>ChainAction</name>
    <message>
        <source>Create Chain</source>
        <translation>Create Chain</translation>
    </message>
</context>
<context>
    <name>ChainContextWidget</name>
    <message>
        <source>Circle Radius</source>
        <translation>Circle Radius</translation>
    </message>
</context>
<context>
    <name>CircleAction</name>
    <message>
        <source>Create Circle</source>
        <translation>Create Circle</translation>
    </message>
    <message>
        <source>radius=%1</source>
        <translation>radius=%1</translation>
    </message>
</context>
<context>
    <name>ColorContextWidget</name>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Select...</translation>
    </message>
</context>
<context>
    <name>DifferenceAction</name>
    <message>
        <source>Difference</source>
        <translation>Difference</translation>
    </message>
</context>
<context>
    <name>DistanceJointAction</name>
    <message>
        <source>Create Distance Joint</source>
        <translation>Create Distance Joint</translation>
    </message>
</context>
<context>
    <name>DownloadDialog</name>
    <message>
        <source>Maximum number of scenes to download</source>
        <translation>Maximum number of scenes to download</translation>
    </message>
    <message>
        <source>Save to</source>
        <translation>Save to</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Browse...</translation>
    </message>
    <message>
        <source>Download scenes from %1</source>
        <translation>Download scenes from %1</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>Select Directory</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Failed to retrieve file list from server.</source>
        <translation>Failed to retrieve file list from server.</translation>
    </message>
</context>
<context>
    <name>DownloadProgressDialog</name>
    <message>
        <source>Scene Filename</source>
        <translation>Scene Filename</translation>
    </message>
    <message>
        <source>Download Information</source>
        <translation>Download Information</translation>
    </message>
    <message>
        <source>Refused: not a file of this folder.</source>
        <translation>Refused: not a file of this folder.</translation>
    </message>
    <message>
        <source>Download Progress</source>
        <translation>Download Progress</translation>
    </message>
    <message>
        <source>Successfully downloaded.</source>
        <translation>Successfully downloaded.</translation>
    </message>
    <message>
        <source>Already downloaded.</source>
        <translation>Already downloaded.</translation>
    </message>
    <message>
        <source>Failed to open file for writing.</source>
        <translation>Failed to open file for writing.</translation>
    </message>
    <message>
        <source>Refused: larger than %1 MB.</source>
        <translation>Refused: larger than %1 MB.</translation>
    </message>
</context>
<context>
    <name>EraseAction</name>
    <message>
        <source>Erase Item</source>
        <translation>Erase Item</translation>
    </message>
</context>
<context>
    <name>EraseContextWidget</name>
    <message>
        <source>Eraser Size</source>
        <translation>Eraser Size</translation>
    </message>
</context>
<context>
    <name>ExplodeAction</name>
    <message>
        <source>Explode Item</source>
        <translation>Explode Item</translation>
    </message>
</context>
<context>
    <name>ExplodeContextWidget</name>
    <message>
        <source>Explode Method</source>
        <translation>Explode Method</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Triangulate</source>
        <translation>Triangulate</translation>
    </message>
    <message>
        <source>Squarify</source>
        <translation>Squarify</translation>
    </message>
    <message>
        <source>Circlify</source>
        <translation>Circlify</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Image Export</source>
        <translation>Image Export</translation>
    </message>
    <message>
        <source>Directory</source>
        <translation>Directory</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Browse...</translation>
    </message>
    <message>
        <source>Filename</source>
        <translation>Filename</translation>
    </message>
    <message>
        <source>(without extension)</source>
        <translation>(without extension)</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Width</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Height</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Quality</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>Select Directory</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Please enter a file name.</source>
        <translation>Please enter a file name.</translation>
    </message>
    <message>
        <source>File %1 already exists</source>
        <translation>File %1 already exists</translation>
    </message>
    <message>
        <source>Failed to save image</source>
        <translation>Failed to save image</translation>
    </message>
</context>
<context>
    <name>GearAction</name>
    <message>
        <source>Create Gear</source>
        <translation>Create Gear</translation>
    </message>
</context>
<context>
    <name>GearContextWidget</name>
    <message>
        <source>Gear Tooth Size</source>
        <translation>Gear Tooth Size</translation>
    </message>
    <message>
        <source>Gear Tooth Count Divisor</source>
        <translation>Gear Tooth Count Divisor</translation>
    </message>
    <message>
        <source>Create Revolute Joint</source>
        <translation>Create Revolute Joint</translation>
    </message>
</context>
<context>
    <name>GraphicsView</name>
    <message>
        <source>OpenGL is not available here; the view draws without it.</source>
        <translation>OpenGL is not available here; the view draws without it.</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>OpenGL draws in software here (%1); the view draws without it, which is faster.</source>
        <translation>OpenGL draws in software here (%1); the view draws without it, which is faster.</translation>
    </message>
</context>
<context>
    <name>GraphicsViewPropertiesWidget</name>
    <message>
        <source>Background</source>
        <translation>Background</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Select...</translation>
    </message>
    <message>
        <source>Body With Camera</source>
        <translation>Body With Camera</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Scale</translation>
    </message>
</context>
<context>
    <name>GunAction</name>
    <message>
        <source>Shoot Item</source>
        <translation>Shoot Item</translation>
    </message>
</context>
<context>
    <name>HelpWidget</name>
    <message>
        <source>Brivane Help</source>
        <translation>Brivane Help</translation>
    </message>
</context>
<context>
    <name>ImageAction</name>
    <message>
        <source>Create Image</source>
        <translation>Create Image</translation>
    </message>
</context>
<context>
    <name>ImageContextWidget</name>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Select...</translation>
    </message>
    <message>
        <source>Polygon Threshold</source>
        <translation>Polygon Threshold</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Scale</translation>
    </message>
    <message>
        <source>Select Image</source>
        <translation>Select Image</translation>
    </message>
    <message>
        <source>Images (*.png *.xpm *.jpg)</source>
        <translation>Images (*.png *.xpm *.jpg)</translation>
    </message>
</context>
<context>
    <name>IntersectionAction</name>
    <message>
        <source>Intersection</source>
        <translation>Intersection</translation>
    </message>
</context>
<context>
    <name>JSDialog</name>
    <message>
        <source>The program contains a syntax error.</source>
        <translation>The program contains a syntax error.</translation>
    </message>
    <message>
        <source>The program is incomplete.</source>
        <translation>The program is incomplete.</translation>
    </message>
    <message>
        <source>

[Line: %1, Column: %2]</source>
        <translation>

[Line: %1, Column: %2]</translation>
    </message>
</context>
<context>
    <name>LinkContextWidget</name>
    <message>
        <source>Attach Point</source>
        <translation>Attach Point</translation>
    </message>
    <message>
        <source>First</source>
        <translation>First</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Last</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Both</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>New Scene</source>
        <translation>New Scene</translation>
    </message>
    <message>
        <source>Creates a new scene</source>
        <translation>Creates a new scene</translation>
    </message>
    <message>
        <source>Save Scene</source>
        <translation>Save Scene</translation>
    </message>
    <message>
        <source>Saves current scene</source>
        <translation>Saves current scene</translation>
    </message>
    <message>
        <source>Save Scene As...</source>
        <translation>Save Scene As...</translation>
    </message>
    <message>
        <source>Saves current scene as</source>
        <translation>Saves current scene as</translation>
    </message>
    <message>
        <source>Load Scene...</source>
        <translation>Load Scene...</translation>
    </message>
    <message>
        <source>Loads a scene</source>
        <translation>Loads a scene</translation>
    </message>
    <message>
        <source>Upload Scene...</source>
        <translation>Upload Scene...</translation>
    </message>
    <message>
        <source>Uploads current scene to %1</source>
        <translation>Uploads current scene to %1</translation>
    </message>
    <message>
        <source>Download Scenes...</source>
        <translation>Download Scenes...</translation>
    </message>
    <message>
        <source>Downloads scenes from %1</source>
        <translation>Downloads scenes from %1</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Export...</translation>
    </message>
    <message>
        <source>Exports current scene as an image</source>
        <translation>Exports current scene as an image</translation>
    </message>
    <message>
        <source>Evaluate Script...</source>
        <translation>Evaluate Script...</translation>
    </message>
    <message>
        <source>Evaluates a .script file</source>
        <translation>Evaluates a .script file</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quit</translation>
    </message>
    <message>
        <source>Quits the application</source>
        <translation>Quits the application</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
    <message>
        <source>Selects all items of the scene</source>
        <translation>Selects all items of the scene</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Zoom In</translation>
    </message>
    <message>
        <source>Zooms in</source>
        <translation>Zooms in</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Zoom Out</translation>
    </message>
    <message>
        <source>Zooms out</source>
        <translation>Zooms out</translation>
    </message>
    <message>
        <source>Zoom Extents</source>
        <translation>Zoom Extents</translation>
    </message>
    <message>
        <source>Zooms in or out to fit the extents of the scene</source>
        <translation>Zooms in or out to fit the extents of the scene</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Show all</translation>
    </message>
    <message>
        <source>Shows all toolbars</source>
        <translation>Shows all toolbars</translation>
    </message>
    <message>
        <source>Hide all</source>
        <translation>Hide all</translation>
    </message>
    <message>
        <source>Hides all toolbars</source>
        <translation>Hides all toolbars</translation>
    </message>
    <message>
        <source>Shows all dock widgets</source>
        <translation>Shows all dock widgets</translation>
    </message>
    <message>
        <source>Hides all dock widgets</source>
        <translation>Hides all dock widgets</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Fullscreen</translation>
    </message>
    <message>
        <source>Toggles fullscreen mode</source>
        <translation>Toggles fullscreen mode</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Shows the application&apos;s help file</source>
        <translation>Shows the application&apos;s help file</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>About...</translation>
    </message>
    <message>
        <source>Shows the application&apos;s About box</source>
        <translation>Shows the application&apos;s About box</translation>
    </message>
    <message>
        <source>About Qt...</source>
        <translation>About Qt...</translation>
    </message>
    <message>
        <source>Shows the Qt library&apos;s About box</source>
        <translation>Shows the Qt library&apos;s About box</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Play/Pause</translation>
    </message>
    <message>
        <source>Starts/Pauses the simulation</source>
        <translation>Starts/Pauses the simulation</translation>
    </message>
    <message>
        <source>Select/Move</source>
        <translation>Select/Move</translation>
    </message>
    <message>
        <source>Selects and/or moves an item</source>
        <translation>Selects and/or moves an item</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Removes an item or a selection of items from the scene</source>
        <translation>Removes an item or a selection of items from the scene</translation>
    </message>
    <message>
        <source>Explode Item</source>
        <translation>Explode Item</translation>
    </message>
    <message>
        <source>Explodes an item</source>
        <translation>Explodes an item</translation>
    </message>
    <message>
        <source>Erase Item</source>
        <translation>Erase Item</translation>
    </message>
    <message>
        <source>Erases parts of an item</source>
        <translation>Erases parts of an item</translation>
    </message>
    <message>
        <source>Create Camera</source>
        <translation>Create Camera</translation>
    </message>
    <message>
        <source>Creates a camera that follows an item</source>
        <translation>Creates a camera that follows an item</translation>
    </message>
    <message>
        <source>Create Tracer</source>
        <translation>Create Tracer</translation>
    </message>
    <message>
        <source>Creates a tracer that follows an item</source>
        <translation>Creates a tracer that follows an item</translation>
    </message>
    <message>
        <source>Shoot Item</source>
        <translation>Shoot Item</translation>
    </message>
    <message>
        <source>Shoots an item</source>
        <translation>Shoots an item</translation>
    </message>
    <message>
        <source>Create Plot</source>
        <translation>Create Plot</translation>
    </message>
    <message>
        <source>Creates a plot for a given item</source>
        <translation>Creates a plot for a given item</translation>
    </message>
    <message>
        <source>Create Rectangle</source>
        <translation>Create Rectangle</translation>
    </message>
    <message>
        <source>Creates a rectangle</source>
        <translation>Creates a rectangle</translation>
    </message>
    <message>
        <source>Create Circle</source>
        <translation>Create Circle</translation>
    </message>
    <message>
        <source>Creates a circle</source>
        <translation>Creates a circle</translation>
    </message>
    <message>
        <source>Create Polygon</source>
        <translation>Create Polygon</translation>
    </message>
    <message>
        <source>Creates a polygon</source>
        <translation>Creates a polygon</translation>
    </message>
    <message>
        <source>Create Balloon</source>
        <translation>Create Balloon</translation>
    </message>
    <message>
        <source>Creates a balloon</source>
        <translation>Creates a balloon</translation>
    </message>
    <message>
        <source>Create freehand shape</source>
        <translation>Create freehand shape</translation>
    </message>
    <message>
        <source>Freehand drawing of random shapes</source>
        <translation>Freehand drawing of random shapes</translation>
    </message>
    <message>
        <source>Create Chain</source>
        <translation>Create Chain</translation>
    </message>
    <message>
        <source>Creates a chain</source>
        <translation>Creates a chain</translation>
    </message>
    <message>
        <source>Create Rope</source>
        <translation>Create Rope</translation>
    </message>
    <message>
        <source>Creates a rope</source>
        <translation>Creates a rope</translation>
    </message>
    <message>
        <source>Create Text</source>
        <translation>Create Text</translation>
    </message>
    <message>
        <source>Creates items from text</source>
        <translation>Creates items from text</translation>
    </message>
    <message>
        <source>Create Gear</source>
        <translation>Create Gear</translation>
    </message>
    <message>
        <source>Creates a gear</source>
        <translation>Creates a gear</translation>
    </message>
    <message>
        <source>Create Image</source>
        <translation>Create Image</translation>
    </message>
    <message>
        <source>Creates a shape based on the outline of a (png) image</source>
        <translation>Creates a shape based on the outline of a (png) image</translation>
    </message>
    <message>
        <source>Create Distance Joint</source>
        <translation>Create Distance Joint</translation>
    </message>
    <message>
        <source>Creates a distance joint between two items (or an item and the background)</source>
        <translation>Creates a distance joint between two items (or an item and the background)</translation>
    </message>
    <message>
        <source>Create Revolute Joint</source>
        <translation>Create Revolute Joint</translation>
    </message>
    <message>
        <source>Creates a revolute joint between two items (or an item and the background)</source>
        <translation>Creates a revolute joint between two items (or an item and the background)</translation>
    </message>
    <message>
        <source>Create Prismatic Joint</source>
        <translation>Create Prismatic Joint</translation>
    </message>
    <message>
        <source>Creates a prismatic joint between two items</source>
        <translation>Creates a prismatic joint between two items</translation>
    </message>
    <message>
        <source>Create Pulley Joint</source>
        <translation>Create Pulley Joint</translation>
    </message>
    <message>
        <source>Creates a pulley joint between two items</source>
        <translation>Creates a pulley joint between two items</translation>
    </message>
    <message>
        <source>Create Spring</source>
        <translation>Create Spring</translation>
    </message>
    <message>
        <source>Creates a spring between two items</source>
        <translation>Creates a spring between two items</translation>
    </message>
    <message>
        <source>Union</source>
        <translation>Union</translation>
    </message>
    <message>
        <source>Creates an item from the union of two other items</source>
        <translation>Creates an item from the union of two other items</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Difference</translation>
    </message>
    <message>
        <source>Creates an item from the difference of two other items</source>
        <translation>Creates an item from the difference of two other items</translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation>Intersection</translation>
    </message>
    <message>
        <source>Creates an item from the intersection of two other items</source>
        <translation>Creates an item from the intersection of two other items</translation>
    </message>
    <message>
        <source>General Toolbar</source>
        <translation>General Toolbar</translation>
    </message>
    <message>
        <source>Bodies Toolbar</source>
        <translation>Bodies Toolbar</translation>
    </message>
    <message>
        <source>Joints Toolbar</source>
        <translation>Joints Toolbar</translation>
    </message>
    <message>
        <source>Forces Toolbar</source>
        <translation>Forces Toolbar</translation>
    </message>
    <message>
        <source>Boolean Toolbar</source>
        <translation>Boolean Toolbar</translation>
    </message>
    <message>
        <source>Snap Toolbar</source>
        <translation>Snap Toolbar</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>Console</translation>
    </message>
    <message>
        <source>Scene Properties</source>
        <translation>Scene Properties</translation>
    </message>
    <message>
        <source>Property Editor</source>
        <translation>Property Editor</translation>
    </message>
    <message>
        <source>Quick Load</source>
        <translation>Quick Load</translation>
    </message>
    <message>
        <source>Commands History</source>
        <translation>Commands History</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Toolbars</translation>
    </message>
    <message>
        <source>Dock Widgets</source>
        <translation>Dock Widgets</translation>
    </message>
    <message>
        <source>Perspectives</source>
        <translation>Perspectives</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Ready</translation>
    </message>
    <message>
        <source>Action Context Toolbar</source>
        <translation>Action Context Toolbar</translation>
    </message>
    <message>
        <source>New file created</source>
        <translation>New file created</translation>
    </message>
    <message>
        <source>File saved (%1)</source>
        <translation>File saved (%1)</translation>
    </message>
    <message>
        <source>File loaded (%1)</source>
        <translation>File loaded (%1)</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Load</translation>
    </message>
    <message>
        <source>*.script</source>
        <translation>*.script</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Stop Script</source>
        <translation>Stop Script</translation>
    </message>
    <message>
        <source>Stops the script that is running (Escape)</source>
        <translation>Stops the script that is running (Escape)</translation>
    </message>
    <message>
        <source>Upload Scene</source>
        <translation>Upload Scene</translation>
    </message>
    <message>
        <source>The scene needs to be saved before uploading.
Please save the scene and try again.</source>
        <translation>The scene needs to be saved before uploading.
Please save the scene and try again.</translation>
    </message>
</context>
<context>
    <name>PhysicsWorldPropertiesWidget</name>
    <message>
        <source>Gravity</source>
        <translation>Gravity</translation>
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
        <translation>Step Frequency</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>Iterations</source>
        <translation>Iterations</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Velocity</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Warm Starting</source>
        <translation>Warm Starting</translation>
    </message>
    <message>
        <source>Continuous Physics</source>
        <translation>Continuous Physics</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Seconds</translation>
    </message>
    <message>
        <source>Bodies</source>
        <translation>Bodies</translation>
    </message>
    <message>
        <source>Joints</source>
        <translation>Joints</translation>
    </message>
</context>
<context>
    <name>PlayPauseAction</name>
    <message>
        <source>Play/Pause</source>
        <translation>Play/Pause</translation>
    </message>
</context>
<context>
    <name>PlotAction</name>
    <message>
        <source>Create Plot</source>
        <translation>Create Plot</translation>
    </message>
</context>
<context>
    <name>PlotWidget</name>
    <message>
        <source>Speed</source>
        <translation>Speed</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Acceleration</translation>
    </message>
    <message>
        <source>Time (sec)</source>
        <translation>Time (sec)</translation>
    </message>
    <message>
        <source>Speed (m/sec)</source>
        <translation>Speed (m/sec)</translation>
    </message>
</context>
<context>
    <name>PolygonAction</name>
    <message>
        <source>Create Polygon</source>
        <translation>Create Polygon</translation>
    </message>
</context>
<context>
    <name>PolygonClipper</name>
    <message>
        <source>Clipper Failed...</source>
        <translation>Clipper Failed...</translation>
    </message>
</context>
<context>
    <name>PrismaticJointAction</name>
    <message>
        <source>Create Prismatic Joint</source>
        <translation>Create Prismatic Joint</translation>
    </message>
</context>
<context>
    <name>PropertyDelegate</name>
    <message>
        <source>Select Color</source>
        <translation>Select Color</translation>
    </message>
</context>
<context>
    <name>PropertyEditorWidget</name>
    <message>
        <source>&lt;div align=&apos;right&apos;&gt;&lt;i&gt;&lt;font size=&apos;10px&apos;&gt;(Edit properties with double-click)&lt;/font&gt;&lt;/i&gt;&lt;/div&gt;</source>
        <translation>&lt;div align=&apos;right&apos;&gt;&lt;i&gt;&lt;font size=&apos;10px&apos;&gt;(Edit properties with double-click)&lt;/font&gt;&lt;/i&gt;&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Brush</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>Specify the filter categories that %1 belongs to.</source>
        <translation>Specify the filter categories that %1 belongs to.</translation>
    </message>
    <message>
        <source>Specify the filter categories that %1 collides with.</source>
        <translation>Specify the filter categories that %1 collides with.</translation>
    </message>
</context>
<context>
    <name>PropertyModel</name>
    <message>
        <source>Property</source>
        <translation>Property</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
</context>
<context>
    <name>PulleyJointAction</name>
    <message>
        <source>Create Pulley Joint</source>
        <translation>Create Pulley Joint</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Version: %1</source>
        <translation>Version: %1</translation>
    </message>
    <message>
        <source>Made by the Brivane Project</source>
        <translation>Made by the Brivane Project</translation>
    </message>
    <message>
        <source>Balloon</source>
        <translation>Balloon</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Circle</translation>
    </message>
    <message>
        <source>Distance Joint</source>
        <translation>Distance Joint</translation>
    </message>
    <message>
        <source>Linear Impulse</source>
        <translation>Linear Impulse</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Play</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polygon</translation>
    </message>
    <message>
        <source>Prismatic Joint</source>
        <translation>Prismatic Joint</translation>
    </message>
    <message>
        <source>Pulley Joint</source>
        <translation>Pulley Joint</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Revolute Joint</source>
        <translation>Revolute Joint</translation>
    </message>
    <message>
        <source>Spring Force</source>
        <translation>Spring Force</translation>
    </message>
    <message>
        <source>Gear</source>
        <translation>Gear</translation>
    </message>
    <message>
        <source>Union</source>
        <translation>Union</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Difference</translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation>Intersection</translation>
    </message>
    <message>
        <source>Circlify</source>
        <translation>Circlify</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Erase</translation>
    </message>
    <message>
        <source>Not exploded: %1 pieces would be made, more than %2.</source>
        <translation>Not exploded: %1 pieces would be made, more than %2.</translation>
    </message>
    <message>
        <source>Squarify</source>
        <translation>Squarify</translation>
    </message>
    <message>
        <source>Triangulate</source>
        <translation>Triangulate</translation>
    </message>
    <message>
        <source>Chain</source>
        <translation>Chain</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Rope</source>
        <translation>Rope</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>A two-dimensional physics sandbox.</source>
        <translation>A two-dimensional physics sandbox.</translation>
    </message>
    <message>
        <source>A scene file to open.</source>
        <translation>A scene file to open.</translation>
    </message>
    <message>
        <source>Updates Available</source>
        <translation>Updates Available</translation>
    </message>
    <message>
        <source>A new version of Brivane is available.
Update the application?</source>
        <translation>A new version of Brivane is available.
Update the application?</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Failed to launch the updater.
Please run it manually using the following command:

%1/maintenancetool</source>
        <translation>Failed to launch the updater.
Please run it manually using the following command:

%1/maintenancetool</translation>
    </message>
</context>
<context>
    <name>QuickLoadWidget</name>
    <message>
        <source>Icon SIze</source>
        <translation>Icon SIze</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Browse...</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Open Directory</translation>
    </message>
</context>
<context>
    <name>RectangleAction</name>
    <message>
        <source>Create Rectangle</source>
        <translation>Create Rectangle</translation>
    </message>
    <message>
        <source>width=%1
height=%2</source>
        <translation>width=%1
height=%2</translation>
    </message>
</context>
<context>
    <name>RemoveAction</name>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
</context>
<context>
    <name>RevoluteJointAction</name>
    <message>
        <source>Create Revolute Joint</source>
        <translation>Create Revolute Joint</translation>
    </message>
</context>
<context>
    <name>RevoluteJointContextWidget</name>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
</context>
<context>
    <name>RopeAction</name>
    <message>
        <source>Create Rope</source>
        <translation>Create Rope</translation>
    </message>
</context>
<context>
    <name>RopeContextWidget</name>
    <message>
        <source>Rectangle Width</source>
        <translation>Rectangle Width</translation>
    </message>
</context>
<context>
    <name>ScenePropertiesWidget</name>
    <message>
        <source>Physics World</source>
        <translation>Physics World</translation>
    </message>
    <message>
        <source>Graphics View</source>
        <translation>Graphics View</translation>
    </message>
</context>
<context>
    <name>SelectAction</name>
    <message>
        <source>Select/Move</source>
        <translation>Select/Move</translation>
    </message>
</context>
<context>
    <name>SettingsWidget</name>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>Graphics</translation>
    </message>
    <message>
        <source>Use OpenGL</source>
        <translation>Use OpenGL</translation>
    </message>
    <message>
        <source>Antialiasing</source>
        <translation>Antialiasing</translation>
    </message>
    <message>
        <source>Physics</source>
        <translation>Physics</translation>
    </message>
    <message>
        <source>Timer Interval</source>
        <translation>Timer Interval</translation>
    </message>
    <message>
        <source>Bodies Defaults</source>
        <translation>Bodies Defaults</translation>
    </message>
    <message>
        <source>Linear Damping</source>
        <translation>Linear Damping</translation>
    </message>
    <message>
        <source>Angular Damping</source>
        <translation>Angular Damping</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Friction</translation>
    </message>
    <message>
        <source>Restitution</source>
        <translation>Restitution</translation>
    </message>
    <message>
        <source>Allow Sleep</source>
        <translation>Allow Sleep</translation>
    </message>
    <message>
        <source>Is Bullet</source>
        <translation>Is Bullet</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>GUI Style</source>
        <translation>GUI Style</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Create ground on start-up</source>
        <translation>Create ground on start-up</translation>
    </message>
    <message>
        <source>Show scale indicator</source>
        <translation>Show scale indicator</translation>
    </message>
    <message>
        <source>Show tips at start-up</source>
        <translation>Show tips at start-up</translation>
    </message>
    <message>
        <source>Attach script debugger</source>
        <translation>Attach script debugger</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
</context>
<context>
    <name>SnapWidget</name>
    <message>
        <source>Snap To Grid (F9)</source>
        <translation>Snap To Grid (F9)</translation>
    </message>
    <message>
        <source>Snaps to grid</source>
        <translation>Snaps to grid</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Size:</translation>
    </message>
    <message>
        <source>Snap To Objects (F10)</source>
        <translation>Snap To Objects (F10)</translation>
    </message>
    <message>
        <source>Snaps to objects</source>
        <translation>Snaps to objects</translation>
    </message>
    <message>
        <source>Distance:</source>
        <translation>Distance:</translation>
    </message>
</context>
<context>
    <name>SocialDialog</name>
    <message>
        <source>%1 is a &lt;b&gt;free software&lt;/b&gt;. Please &lt;b&gt;support it&lt;/b&gt; by submitting it to your favourite social networking sites using the buttons below.</source>
        <translation>%1 is a &lt;b&gt;free software&lt;/b&gt;. Please &lt;b&gt;support it&lt;/b&gt; by submitting it to your favourite social networking sites using the buttons below.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quit</translation>
    </message>
    <message>
        <source>Please Support %1</source>
        <translation>Please Support %1</translation>
    </message>
</context>
<context>
    <name>SpringForceAction</name>
    <message>
        <source>Create Spring</source>
        <translation>Create Spring</translation>
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
        <translation>Damping</translation>
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
        <translation>Create Text</translation>
    </message>
</context>
<context>
    <name>TextContextWidget</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Font Family</source>
        <translation>Font Family</translation>
    </message>
    <message>
        <source>Font Size</source>
        <translation>Font Size</translation>
    </message>
</context>
<context>
    <name>TipDialog</name>
    <message>
        <source>Tip of the Day</source>
        <translation>Tip of the Day</translation>
    </message>
    <message>
        <source>Show tip at startup</source>
        <translation>Show tip at startup</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Previous</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>You could &lt;B&gt;improve rendering performance&lt;/B&gt; by enabling OpenGL in settings.</source>
        <translation>You could &lt;B&gt;improve rendering performance&lt;/B&gt; by enabling OpenGL in settings.</translation>
    </message>
    <message>
        <source>You can show and hide the Property Editor using Shift+P.</source>
        <translation>You can show and hide the Property Editor using Shift+P.</translation>
    </message>
    <message>
        <source>You can show and hide the Console using Shift+~.</source>
        <translation>You can show and hide the Console using Shift+~.</translation>
    </message>
    <message>
        <source>You can switch between &lt;B&gt;perspectives&lt;/B&gt; using &lt;I&gt;Alt + 1 .. 4&lt;/I&gt;.</source>
        <translation>You can switch between &lt;B&gt;perspectives&lt;/B&gt; using &lt;I&gt;Alt + 1 .. 4&lt;/I&gt;.</translation>
    </message>
    <message>
        <source>&lt;B&gt;Download&lt;/B&gt; scenes that other people have created by selecting &lt;I&gt;File::Download&lt;/I&gt; from the menu bar.</source>
        <translation>&lt;B&gt;Download&lt;/B&gt; scenes that other people have created by selecting &lt;I&gt;File::Download&lt;/I&gt; from the menu bar.</translation>
    </message>
    <message>
        <source>You can &lt;B&gt;upload&lt;/B&gt; your scene to &lt;A HREF=&apos;%1&apos;&gt;%2&lt;/A&gt; by selecting &lt;I&gt;File::Upload&lt;/I&gt; from the menu bar.</source>
        <translation>You can &lt;B&gt;upload&lt;/B&gt; your scene to &lt;A HREF=&apos;%1&apos;&gt;%2&lt;/A&gt; by selecting &lt;I&gt;File::Upload&lt;/I&gt; from the menu bar.</translation>
    </message>
</context>
<context>
    <name>UnionAction</name>
    <message>
        <source>Union</source>
        <translation>Union</translation>
    </message>
</context>
<context>
    <name>UploadDialog</name>
    <message>
        <source>Basic</source>
        <translation>Basic</translation>
    </message>
    <message>
        <source>Upload As</source>
        <translation>Upload As</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Login</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Username</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Optional</source>
        <translation>Optional</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Category</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Keywords</translation>
    </message>
    <message>
        <source>Uploading: %p%</source>
        <translation>Uploading: %p%</translation>
    </message>
    <message>
        <source>Bug Report</source>
        <translation>Bug Report</translation>
    </message>
    <message>
        <source>Educational</source>
        <translation>Educational</translation>
    </message>
    <message>
        <source>Mechanisms</source>
        <translation>Mechanisms</translation>
    </message>
    <message>
        <source>Ragdolls</source>
        <translation>Ragdolls</translation>
    </message>
    <message>
        <source>Vehicles</source>
        <translation>Vehicles</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Anonymous User</source>
        <translation>Anonymous User</translation>
    </message>
    <message>
        <source>Registered User</source>
        <translation>Registered User</translation>
    </message>
    <message>
        <source>If you don&apos;t already have an account, you can create one &lt;a href=&apos;%1&apos;&gt;here&lt;/a&gt;</source>
        <translation>If you don&apos;t already have an account, you can create one &lt;a href=&apos;%1&apos;&gt;here&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Upload %1</source>
        <translation>Upload %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Please fill in username and password</source>
        <translation>Please fill in username and password</translation>
    </message>
    <message>
        <source>Bad reply from server</source>
        <translation>Bad reply from server</translation>
    </message>
    <message>
        <source>Could not reach the scene repository: %1</source>
        <translation>Could not reach the scene repository: %1</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Success</translation>
    </message>
    <message>
        <source>Your scene has been successfully uploaded &lt;a href=&apos;%1&apos;&gt;here&lt;/a&gt;.</source>
        <translation>Your scene has been successfully uploaded &lt;a href=&apos;%1&apos;&gt;here&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>The server replied with the following message:
%1</source>
        <translation>The server replied with the following message:
%1</translation>
    </message>
</context>
<context>
    <name>XMLReader</name>
    <message>
        <source>Trying to load a scene which was created with another version of the application. </source>
        <translation>Trying to load a scene which was created with another version of the application. </translation>
    </message>
    <message>
        <source>(Scene version: %1 Application version: %2)</source>
        <translation>(Scene version: %1 Application version: %2)</translation>
    </message>
</context>
<context>
    <name>XPolygonF</name>
    <message>
        <source>Skipped %1 triangles</source>
        <translation>Skipped %1 triangles</translation>
    </message>
</context>
</TS>
