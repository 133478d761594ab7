<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>Application</name>
    <message>
        <source>Could not remove temp directory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not create temp directory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not set language: Unknown language: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has been successfully loaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 failed to load.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Script debugger attached.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Script debugger detached.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Supported OpenGL Versions:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not evaluated: a script file may hold at most %2 MB.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The script was stopped.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BalloonAction</name>
    <message>
        <source>Create Balloon</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BrushAction</name>
    <message>
        <source>Create freehand shape</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BrushContextWidget</name>
    <message>
        <source>Brush Size</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BrushDialog</name>
    <message>
        <source>Select Brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color/Pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Solid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dense1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dense2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dense3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dense4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dense5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dense6</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dense7</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cross</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backward diagonal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forward diagonal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crossing diagonal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto Adjust</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Texture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp *.gif)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CameraAction</name>
    <message>
        <source>Create Camera</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CameraContextWidget</name>
    <message>
        <source>Camera Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove All Cameras</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use Default Viewport</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create New Viewport</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChainAction</name>
    <message>
        <source>Create Chain</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChainContextWidget</name>
    <message>
        <source>Circle Radius</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CircleAction</name>
    <message>
        <source>Create Circle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>radius=%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColorContextWidget</name>
    <message>
        <source>Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DifferenceAction</name>
    <message>
        <source>Difference</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DistanceJointAction</name>
    <message>
        <source>Create Distance Joint</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EraseAction</name>
    <message>
        <source>Erase Item</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EraseContextWidget</name>
    <message>
        <source>Eraser Size</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExplodeAction</name>
    <message>
        <source>Explode Item</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExplodeContextWidget</name>
    <message>
        <source>Explode Method</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Triangulate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Squarify</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Circlify</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GearAction</name>
    <message>
        <source>Create Gear</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GearContextWidget</name>
    <message>
        <source>Gear Tooth Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gear Tooth Count Divisor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Revolute Joint</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GraphicsView</name>
    <message>
        <source>OpenGL is not available here; the view draws without it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GunAction</name>
    <message>
        <source>Shoot Item</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImageAction</name>
    <message>
        <source>Create Image</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImageContextWidget</name>
    <message>
        <source>Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Polygon Threshold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images (*.png *.xpm *.jpg)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>IntersectionAction</name>
    <message>
        <source>Intersection</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>JSDialog</name>
    <message>
        <source>The program contains a syntax error.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program is incomplete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>

[Line: %1, Column: %2]</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LinkContextWidget</name>
    <message>
        <source>Attach Point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Both</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>New Scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates a new scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saves current scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Scene As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saves current scene as</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load Scene...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loads a scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upload Scene...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uploads current scene to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download Scenes...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloads scenes from %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exports current scene as an image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Evaluate Script...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Evaluates a .script file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quits the application</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selects all items of the scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zooms in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zooms out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom Extents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zooms in or out to fit the extents of the scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows all toolbars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hides all toolbars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows all dock widgets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hides all dock widgets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toggles fullscreen mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the application&apos;s help file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the application&apos;s About box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Qt...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the Qt library&apos;s About box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starts/Pauses the simulation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select/Move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selects and/or moves an item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removes an item or a selection of items from the scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Explode Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Explodes an item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erase Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erases parts of an item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates a camera that follows an item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Tracer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates a tracer that follows an item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shoot Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shoots an item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Plot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates a plot for a given item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates a rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Circle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates a circle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Polygon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates a polygon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Balloon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates a balloon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create freehand shape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Freehand drawing of random shapes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Chain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates a chain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Rope</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates a rope</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates items from text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Gear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates a gear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates a shape based on the outline of a (png) image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Distance Joint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates a distance joint between two items (or an item and the background)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Revolute Joint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates a revolute joint between two items (or an item and the background)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Prismatic Joint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates a prismatic joint between two items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Pulley Joint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates a pulley joint between two items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Spring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates a spring between two items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Union</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates an item from the union of two other items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Difference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates an item from the difference of two other items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creates an item from the intersection of two other items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General Toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bodies Toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Joints Toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forces Toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Boolean Toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snap Toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Console</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scene Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Property Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quick Load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commands History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dock Widgets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Perspectives</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action Context Toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New file created</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File saved (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File loaded (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>*.script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop Script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stops the script that is running (Escape)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PlayPauseAction</name>
    <message>
        <source>Play/Pause</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PlotAction</name>
    <message>
        <source>Create Plot</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PlotWidget</name>
    <message>
        <source>Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time (sec)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed (m/sec)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PolygonAction</name>
    <message>
        <source>Create Polygon</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PolygonClipper</name>
    <message>
        <source>Clipper Failed...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PrismaticJointAction</name>
    <message>
        <source>Create Prismatic Joint</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PropertyDelegate</name>
    <message>
        <source>Select Color</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PropertyEditorWidget</name>
    <message>
        <source>&lt;div align=&apos;right&apos;&gt;&lt;i&gt;&lt;font size=&apos;10px&apos;&gt;(Edit properties with double-click)&lt;/font&gt;&lt;/i&gt;&lt;/div&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify the filter categories that %1 belongs to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify the filter categories that %1 collides with.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PropertyModel</name>
    <message>
        <source>Property</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PulleyJointAction</name>
    <message>
        <source>Create Pulley Joint</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Version: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Made by the Brivane Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Balloon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Circle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distance Joint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linear Impulse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prismatic Joint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pulley Joint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Revolute Joint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spring Force</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Union</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Difference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Circlify</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not exploded: %1 pieces would be made, more than %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Squarify</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Triangulate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rope</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RectangleAction</name>
    <message>
        <source>Create Rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>width=%1
height=%2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RemoveAction</name>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RevoluteJointAction</name>
    <message>
        <source>Create Revolute Joint</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RevoluteJointContextWidget</name>
    <message>
        <source>Radius</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RopeAction</name>
    <message>
        <source>Create Rope</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RopeContextWidget</name>
    <message>
        <source>Rectangle Width</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SelectAction</name>
    <message>
        <source>Select/Move</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpringForceAction</name>
    <message>
        <source>Create Spring</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpringForceContextWidget</name>
    <message>
        <source>K</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Damping</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>&lt;B&gt;FPS&lt;/B&gt;: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;B&gt;X&lt;/B&gt;: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;B&gt;Y&lt;/B&gt;: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TextAction</name>
    <message>
        <source>Create Text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TextContextWidget</name>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font Family</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font Size</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UnionAction</name>
    <message>
        <source>Union</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>XMLReader</name>
    <message>
        <source>Trying to load a scene which was created with another version of the application. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Scene version: %1 Application version: %2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>XPolygonF</name>
    <message>
        <source>Skipped %1 triangles</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
