<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Mitwirkende</translation>
    </message>
    <message>
        <source>ChangeLog</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>About </source>
        <translation>Über </translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Could not remove temp directory.</source>
        <translation>Das temporäre Verzeichnis konnte nicht entfernt werden.</translation>
    </message>
    <message>
        <source>Could not create temp directory.</source>
        <translation>Das temporäre Verzeichnis konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>Could not set language: Unknown language: %1</source>
        <translation>Sprache konnte nicht eingestellt werden: Unbekannte Sprache: %1</translation>
    </message>
    <message>
        <source>%1 has been successfully loaded.</source>
        <translation>%1 wurde erfolgreich geladen.</translation>
    </message>
    <message>
        <source>%1 failed to load.</source>
        <translation>%1 konnte nicht geladen werden.</translation>
    </message>
    <message>
        <source>Script debugger attached.</source>
        <translation>Skript-Debugger verbunden.</translation>
    </message>
    <message>
        <source>Script debugger detached.</source>
        <translation>Skript-Debugger getrennt.</translation>
    </message>
    <message>
        <source>Supported OpenGL Versions:</source>
        <translation>Unterstützte OpenGL-Versionen:</translation>
    </message>
    <message>
        <source>%1 is not evaluated: a script file may hold at most %2 MB.</source>
        <translation>%1 wird nicht ausgewertet: Eine Skriptdatei darf höchstens %2 MB groß sein.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wird geladen...</translation>
    </message>
    <message>
        <source>The script was stopped.</source>
        <translation>Das Skript wurde angehalten.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Could not open the scene %1.</source>
        <translation>Die Szene %1 konnte nicht geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>BalloonAction</name>
    <message>
        <source>Create Balloon</source>
        <translation>Ballon erstellen</translation>
    </message>
</context>
<context>
    <name>BrushAction</name>
    <message>
        <source>Create freehand shape</source>
        <translation>Freihandform erstellen</translation>
    </message>
</context>
<context>
    <name>BrushContextWidget</name>
    <message>
        <source>Brush Size</source>
        <translation>Pinselgröße</translation>
    </message>
</context>
<context>
    <name>BrushDialog</name>
    <message>
        <source>Select Brush</source>
        <translation>Pinsel wählen</translation>
    </message>
    <message>
        <source>Color/Pattern</source>
        <translation>Farbe/Muster</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Wählen...</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>No Brush</source>
        <translation>Kein Pinsel</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Voll</translation>
    </message>
    <message>
        <source>Dense1</source>
        <translation>Dicht 1</translation>
    </message>
    <message>
        <source>Dense2</source>
        <translation>Dicht 2</translation>
    </message>
    <message>
        <source>Dense3</source>
        <translation>Dicht 3</translation>
    </message>
    <message>
        <source>Dense4</source>
        <translation>Dicht 4</translation>
    </message>
    <message>
        <source>Dense5</source>
        <translation>Dicht 5</translation>
    </message>
    <message>
        <source>Dense6</source>
        <translation>Dicht 6</translation>
    </message>
    <message>
        <source>Dense7</source>
        <translation>Dicht 7</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Waagerecht</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Senkrecht</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>Kreuz</translation>
    </message>
    <message>
        <source>Backward diagonal</source>
        <translation>Diagonal rückwärts</translation>
    </message>
    <message>
        <source>Forward diagonal</source>
        <translation>Diagonal vorwärts</translation>
    </message>
    <message>
        <source>Crossing diagonal</source>
        <translation>Diagonal gekreuzt</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>Textur</translation>
    </message>
    <message>
        <source>Auto Adjust</source>
        <translation>Automatisch anpassen</translation>
    </message>
    <message>
        <source>Horizontal scale</source>
        <translation>Horizontale Skalierung</translation>
    </message>
    <message>
        <source>Vertical scale</source>
        <translation>Vertikale Skalierung</translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation>Horizontaler Versatz</translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation>Vertikaler Versatz</translation>
    </message>
    <message>
        <source>Select Texture</source>
        <translation>Textur wählen</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp *.gif)</source>
        <translation>Bilddateien (*.png *.jpg *.bmp *.gif)</translation>
    </message>
</context>
<context>
    <name>CameraAction</name>
    <message>
        <source>Create Camera</source>
        <translation>Kamera erstellen</translation>
    </message>
</context>
<context>
    <name>CameraContextWidget</name>
    <message>
        <source>Camera Mode</source>
        <translation>Kameramodus</translation>
    </message>
    <message>
        <source>Remove All Cameras</source>
        <translation>Alle Kameras entfernen</translation>
    </message>
    <message>
        <source>Use Default Viewport</source>
        <translation>Hauptansicht verwenden</translation>
    </message>
    <message>
        <source>Create New Viewport</source>
        <translation>Neue Ansicht erstellen</translation>
    </message>
</context>
<context>
    <name>CameraGraphicsView</name>
    <message>
        <source>Camera for %1</source>
        <translation>Kamera für %1</translation>
    </message>
</context>
<context>
    <name>ChainAction</name>
    <message>
        <source>Create Chain</source>
        <translation>Kette erstellen</translation>
    </message>
</context>
<context>
    <name>ChainContextWidget</name>
    <message>
        <source>Circle Radius</source>
        <translation>Kreisradius</translation>
    </message>
</context>
<context>
    <name>CircleAction</name>
    <message>
        <source>Create Circle</source>
        <translation>Kreis erstellen</translation>
    </message>
    <message>
        <source>radius=%1</source>
        <translation>Radius=%1</translation>
    </message>
</context>
<context>
    <name>ColorContextWidget</name>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Wählen...</translation>
    </message>
</context>
<context>
    <name>DifferenceAction</name>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
</context>
<context>
    <name>DistanceJointAction</name>
    <message>
        <source>Create Distance Joint</source>
        <translation>Abstandsgelenk erstellen</translation>
    </message>
</context>
<context>
    <name>DownloadDialog</name>
    <message>
        <source>Maximum number of scenes to download</source>
        <translation>Höchstzahl herunterzuladender Szenen</translation>
    </message>
    <message>
        <source>Save to</source>
        <translation>Speichern in</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen...</translation>
    </message>
    <message>
        <source>Download scenes from %1</source>
        <translation>Szenen von %1 herunterladen</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>Verzeichnis wählen</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Failed to retrieve file list from server.</source>
        <translation>Die Dateiliste konnte nicht vom Server geholt werden.</translation>
    </message>
</context>
<context>
    <name>DownloadProgressDialog</name>
    <message>
        <source>Scene Filename</source>
        <translation>Szenendatei</translation>
    </message>
    <message>
        <source>Download Information</source>
        <translation>Download-Information</translation>
    </message>
    <message>
        <source>Refused: not a file of this folder.</source>
        <translation>Abgelehnt: keine Datei dieses Ordners.</translation>
    </message>
    <message>
        <source>Download Progress</source>
        <translation>Download-Fortschritt</translation>
    </message>
    <message>
        <source>Successfully downloaded.</source>
        <translation>Erfolgreich heruntergeladen.</translation>
    </message>
    <message>
        <source>Already downloaded.</source>
        <translation>Bereits heruntergeladen.</translation>
    </message>
    <message>
        <source>Failed to open file for writing.</source>
        <translation>Die Datei konnte nicht zum Schreiben geöffnet werden.</translation>
    </message>
    <message>
        <source>Refused: larger than %1 MB.</source>
        <translation>Abgelehnt: größer als %1 MB.</translation>
    </message>
</context>
<context>
    <name>EraseAction</name>
    <message>
        <source>Erase Item</source>
        <translation>Objekt radieren</translation>
    </message>
</context>
<context>
    <name>EraseContextWidget</name>
    <message>
        <source>Eraser Size</source>
        <translation>Radierergröße</translation>
    </message>
</context>
<context>
    <name>ExplodeAction</name>
    <message>
        <source>Explode Item</source>
        <translation>Objekt sprengen</translation>
    </message>
</context>
<context>
    <name>ExplodeContextWidget</name>
    <message>
        <source>Explode Method</source>
        <translation>Zerlegungsart</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Triangulate</source>
        <translation>In Dreiecke zerlegen</translation>
    </message>
    <message>
        <source>Squarify</source>
        <translation>In Quadrate zerlegen</translation>
    </message>
    <message>
        <source>Circlify</source>
        <translation>In Kreise zerlegen</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Image Export</source>
        <translation>Bildexport</translation>
    </message>
    <message>
        <source>Directory</source>
        <translation>Verzeichnis</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen...</translation>
    </message>
    <message>
        <source>Filename</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>(without extension)</source>
        <translation>(ohne Endung)</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>Verzeichnis wählen</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Please enter a file name.</source>
        <translation>Bitte geben Sie einen Dateinamen ein.</translation>
    </message>
    <message>
        <source>File %1 already exists</source>
        <translation>Die Datei %1 existiert bereits</translation>
    </message>
    <message>
        <source>Failed to save image</source>
        <translation>Bild konnte nicht gespeichert werden</translation>
    </message>
</context>
<context>
    <name>GearAction</name>
    <message>
        <source>Create Gear</source>
        <translation>Zahnrad erstellen</translation>
    </message>
</context>
<context>
    <name>GearContextWidget</name>
    <message>
        <source>Gear Tooth Size</source>
        <translation>Zahngröße</translation>
    </message>
    <message>
        <source>Gear Tooth Count Divisor</source>
        <translation>Teiler der Zahnanzahl</translation>
    </message>
    <message>
        <source>Create Revolute Joint</source>
        <translation>Drehgelenk erstellen</translation>
    </message>
</context>
<context>
    <name>GraphicsView</name>
    <message>
        <source>OpenGL is not available here; the view draws without it.</source>
        <translation>OpenGL ist hier nicht verfügbar; die Ansicht wird ohne OpenGL gezeichnet.</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>OpenGL draws in software here (%1); the view draws without it, which is faster.</source>
        <translation>OpenGL zeichnet hier in Software (%1); die Ansicht zeichnet ohne OpenGL, was schneller ist.</translation>
    </message>
</context>
<context>
    <name>GraphicsViewPropertiesWidget</name>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Wählen...</translation>
    </message>
    <message>
        <source>Body With Camera</source>
        <translation>Körper mit Kamera</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Maßstab</translation>
    </message>
</context>
<context>
    <name>GunAction</name>
    <message>
        <source>Shoot Item</source>
        <translation>Objekt abschießen</translation>
    </message>
</context>
<context>
    <name>HelpWidget</name>
    <message>
        <source>Brivane Help</source>
        <translation>Brivane-Hilfe</translation>
    </message>
</context>
<context>
    <name>ImageAction</name>
    <message>
        <source>Create Image</source>
        <translation>Aus Bild erstellen</translation>
    </message>
</context>
<context>
    <name>ImageContextWidget</name>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Wählen...</translation>
    </message>
    <message>
        <source>Polygon Threshold</source>
        <translation>Polygon-Schwelle</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Maßstab</translation>
    </message>
    <message>
        <source>Select Image</source>
        <translation>Bild wählen</translation>
    </message>
    <message>
        <source>Images (*.png *.xpm *.jpg)</source>
        <translation>Bilder (*.png *.xpm *.jpg)</translation>
    </message>
</context>
<context>
    <name>IntersectionAction</name>
    <message>
        <source>Intersection</source>
        <translation>Schnittmenge</translation>
    </message>
</context>
<context>
    <name>JSDialog</name>
    <message>
        <source>The program contains a syntax error.</source>
        <translation>Das Programm enthält einen Syntaxfehler.</translation>
    </message>
    <message>
        <source>The program is incomplete.</source>
        <translation>Das Programm ist unvollständig.</translation>
    </message>
    <message>
        <source>

[Line: %1, Column: %2]</source>
        <translation>

[Zeile: %1, Spalte: %2]</translation>
    </message>
</context>
<context>
    <name>LinkContextWidget</name>
    <message>
        <source>Attach Point</source>
        <translation>Befestigung</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Beide</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>New Scene</source>
        <translation>Neue Szene</translation>
    </message>
    <message>
        <source>Creates a new scene</source>
        <translation>Erstellt eine neue Szene</translation>
    </message>
    <message>
        <source>Save Scene</source>
        <translation>Szene speichern</translation>
    </message>
    <message>
        <source>Saves current scene</source>
        <translation>Speichert die aktuelle Szene</translation>
    </message>
    <message>
        <source>Save Scene As...</source>
        <translation>Szene speichern unter...</translation>
    </message>
    <message>
        <source>Saves current scene as</source>
        <translation>Speichert die aktuelle Szene unter einem anderen Namen</translation>
    </message>
    <message>
        <source>Load Scene...</source>
        <translation>Szene laden...</translation>
    </message>
    <message>
        <source>Loads a scene</source>
        <translation>Lädt eine Szene</translation>
    </message>
    <message>
        <source>Upload Scene...</source>
        <translation>Szene hochladen...</translation>
    </message>
    <message>
        <source>Uploads current scene to %1</source>
        <translation>Lädt die aktuelle Szene auf %1 hoch</translation>
    </message>
    <message>
        <source>Download Scenes...</source>
        <translation>Szenen herunterladen...</translation>
    </message>
    <message>
        <source>Downloads scenes from %1</source>
        <translation>Lädt Szenen von %1 herunter</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exportieren...</translation>
    </message>
    <message>
        <source>Exports current scene as an image</source>
        <translation>Exportiert die aktuelle Szene als Bild</translation>
    </message>
    <message>
        <source>Evaluate Script...</source>
        <translation>Skript ausführen...</translation>
    </message>
    <message>
        <source>Evaluates a .script file</source>
        <translation>Führt eine .script-Datei aus</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Quits the application</source>
        <translation>Beendet die Anwendung</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Selects all items of the scene</source>
        <translation>Wählt alle Objekte der Szene aus</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zooms in</source>
        <translation>Vergrößert die Ansicht</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Zooms out</source>
        <translation>Verkleinert die Ansicht</translation>
    </message>
    <message>
        <source>Zoom Extents</source>
        <translation>Szene einpassen</translation>
    </message>
    <message>
        <source>Zooms in or out to fit the extents of the scene</source>
        <translation>Vergrößert oder verkleinert die Ansicht, sodass die ganze Szene sichtbar ist</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alle anzeigen</translation>
    </message>
    <message>
        <source>Shows all toolbars</source>
        <translation>Zeigt alle Werkzeugleisten an</translation>
    </message>
    <message>
        <source>Hide all</source>
        <translation>Alle ausblenden</translation>
    </message>
    <message>
        <source>Hides all toolbars</source>
        <translation>Blendet alle Werkzeugleisten aus</translation>
    </message>
    <message>
        <source>Shows all dock widgets</source>
        <translation>Zeigt alle Andockfenster an</translation>
    </message>
    <message>
        <source>Hides all dock widgets</source>
        <translation>Blendet alle Andockfenster aus</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Toggles fullscreen mode</source>
        <translation>Schaltet den Vollbildmodus ein oder aus</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Shows the application&apos;s help file</source>
        <translation>Zeigt die Hilfedatei der Anwendung an</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>Über...</translation>
    </message>
    <message>
        <source>Shows the application&apos;s About box</source>
        <translation>Zeigt das Info-Fenster der Anwendung an</translation>
    </message>
    <message>
        <source>About Qt...</source>
        <translation>Über Qt...</translation>
    </message>
    <message>
        <source>Shows the Qt library&apos;s About box</source>
        <translation>Zeigt das Info-Fenster der Qt-Bibliothek an</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Start/Pause</translation>
    </message>
    <message>
        <source>Starts/Pauses the simulation</source>
        <translation>Startet die Simulation oder hält sie an</translation>
    </message>
    <message>
        <source>Select/Move</source>
        <translation>Auswählen/Verschieben</translation>
    </message>
    <message>
        <source>Selects and/or moves an item</source>
        <translation>Wählt ein Objekt aus und/oder verschiebt es</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Removes an item or a selection of items from the scene</source>
        <translation>Entfernt ein Objekt oder eine Auswahl von Objekten aus der Szene</translation>
    </message>
    <message>
        <source>Explode Item</source>
        <translation>Objekt sprengen</translation>
    </message>
    <message>
        <source>Explodes an item</source>
        <translation>Sprengt ein Objekt</translation>
    </message>
    <message>
        <source>Erase Item</source>
        <translation>Objekt radieren</translation>
    </message>
    <message>
        <source>Erases parts of an item</source>
        <translation>Radiert Teile eines Objekts aus</translation>
    </message>
    <message>
        <source>Create Camera</source>
        <translation>Kamera erstellen</translation>
    </message>
    <message>
        <source>Creates a camera that follows an item</source>
        <translation>Erstellt eine Kamera, die einem Objekt folgt</translation>
    </message>
    <message>
        <source>Create Tracer</source>
        <translation>Spur erstellen</translation>
    </message>
    <message>
        <source>Creates a tracer that follows an item</source>
        <translation>Erstellt eine Spur, die einem Objekt folgt</translation>
    </message>
    <message>
        <source>Shoot Item</source>
        <translation>Objekt abschießen</translation>
    </message>
    <message>
        <source>Shoots an item</source>
        <translation>Schießt ein Objekt ab</translation>
    </message>
    <message>
        <source>Create Plot</source>
        <translation>Diagramm erstellen</translation>
    </message>
    <message>
        <source>Creates a plot for a given item</source>
        <translation>Erstellt ein Diagramm für ein bestimmtes Objekt</translation>
    </message>
    <message>
        <source>Create Rectangle</source>
        <translation>Rechteck erstellen</translation>
    </message>
    <message>
        <source>Creates a rectangle</source>
        <translation>Erstellt ein Rechteck</translation>
    </message>
    <message>
        <source>Create Circle</source>
        <translation>Kreis erstellen</translation>
    </message>
    <message>
        <source>Creates a circle</source>
        <translation>Erstellt einen Kreis</translation>
    </message>
    <message>
        <source>Create Polygon</source>
        <translation>Polygon erstellen</translation>
    </message>
    <message>
        <source>Creates a polygon</source>
        <translation>Erstellt ein Polygon</translation>
    </message>
    <message>
        <source>Create Balloon</source>
        <translation>Ballon erstellen</translation>
    </message>
    <message>
        <source>Creates a balloon</source>
        <translation>Erstellt einen Ballon</translation>
    </message>
    <message>
        <source>Create freehand shape</source>
        <translation>Freihandform erstellen</translation>
    </message>
    <message>
        <source>Freehand drawing of random shapes</source>
        <translation>Zeichnet beliebige Formen freihändig</translation>
    </message>
    <message>
        <source>Create Chain</source>
        <translation>Kette erstellen</translation>
    </message>
    <message>
        <source>Creates a chain</source>
        <translation>Erstellt eine Kette</translation>
    </message>
    <message>
        <source>Create Rope</source>
        <translation>Seil erstellen</translation>
    </message>
    <message>
        <source>Creates a rope</source>
        <translation>Erstellt ein Seil</translation>
    </message>
    <message>
        <source>Create Text</source>
        <translation>Text erstellen</translation>
    </message>
    <message>
        <source>Creates items from text</source>
        <translation>Erstellt Objekte aus Text</translation>
    </message>
    <message>
        <source>Create Gear</source>
        <translation>Zahnrad erstellen</translation>
    </message>
    <message>
        <source>Creates a gear</source>
        <translation>Erstellt ein Zahnrad</translation>
    </message>
    <message>
        <source>Create Image</source>
        <translation>Aus Bild erstellen</translation>
    </message>
    <message>
        <source>Creates a shape based on the outline of a (png) image</source>
        <translation>Erstellt eine Form anhand der Umrisse eines (PNG-)Bildes</translation>
    </message>
    <message>
        <source>Create Distance Joint</source>
        <translation>Abstandsgelenk erstellen</translation>
    </message>
    <message>
        <source>Creates a distance joint between two items (or an item and the background)</source>
        <translation>Erstellt ein Abstandsgelenk zwischen zwei Objekten (oder einem Objekt und dem Hintergrund)</translation>
    </message>
    <message>
        <source>Create Revolute Joint</source>
        <translation>Drehgelenk erstellen</translation>
    </message>
    <message>
        <source>Creates a revolute joint between two items (or an item and the background)</source>
        <translation>Erstellt ein Drehgelenk zwischen zwei Objekten (oder einem Objekt und dem Hintergrund)</translation>
    </message>
    <message>
        <source>Create Prismatic Joint</source>
        <translation>Schubgelenk erstellen</translation>
    </message>
    <message>
        <source>Creates a prismatic joint between two items</source>
        <translation>Erstellt ein Schubgelenk zwischen zwei Objekten</translation>
    </message>
    <message>
        <source>Create Pulley Joint</source>
        <translation>Flaschenzuggelenk erstellen</translation>
    </message>
    <message>
        <source>Creates a pulley joint between two items</source>
        <translation>Erstellt ein Flaschenzuggelenk zwischen zwei Objekten</translation>
    </message>
    <message>
        <source>Create Spring</source>
        <translation>Feder erstellen</translation>
    </message>
    <message>
        <source>Creates a spring between two items</source>
        <translation>Erstellt eine Feder zwischen zwei Objekten</translation>
    </message>
    <message>
        <source>Union</source>
        <translation>Vereinigung</translation>
    </message>
    <message>
        <source>Creates an item from the union of two other items</source>
        <translation>Erstellt ein Objekt aus der Vereinigung zweier anderer Objekte</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>Creates an item from the difference of two other items</source>
        <translation>Erstellt ein Objekt aus der Differenz zweier anderer Objekte</translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation>Schnittmenge</translation>
    </message>
    <message>
        <source>Creates an item from the intersection of two other items</source>
        <translation>Erstellt ein Objekt aus der Schnittmenge zweier anderer Objekte</translation>
    </message>
    <message>
        <source>General Toolbar</source>
        <translation>Allgemeine Werkzeugleiste</translation>
    </message>
    <message>
        <source>Bodies Toolbar</source>
        <translation>Werkzeugleiste Körper</translation>
    </message>
    <message>
        <source>Joints Toolbar</source>
        <translation>Werkzeugleiste Gelenke</translation>
    </message>
    <message>
        <source>Forces Toolbar</source>
        <translation>Werkzeugleiste Kräfte</translation>
    </message>
    <message>
        <source>Boolean Toolbar</source>
        <translation>Werkzeugleiste Boolesche Operationen</translation>
    </message>
    <message>
        <source>Snap Toolbar</source>
        <translation>Werkzeugleiste Fangen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>Konsole</translation>
    </message>
    <message>
        <source>Scene Properties</source>
        <translation>Szeneneigenschaften</translation>
    </message>
    <message>
        <source>Property Editor</source>
        <translation>Eigenschaftseditor</translation>
    </message>
    <message>
        <source>Quick Load</source>
        <translation>Schnellladen</translation>
    </message>
    <message>
        <source>Commands History</source>
        <translation>Befehlsverlauf</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Werkzeugleisten</translation>
    </message>
    <message>
        <source>Dock Widgets</source>
        <translation>Andockfenster</translation>
    </message>
    <message>
        <source>Perspectives</source>
        <translation>Perspektiven</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Action Context Toolbar</source>
        <translation>Werkzeugkontext-Leiste</translation>
    </message>
    <message>
        <source>New file created</source>
        <translation>Neue Datei erstellt</translation>
    </message>
    <message>
        <source>File saved (%1)</source>
        <translation>Datei gespeichert (%1)</translation>
    </message>
    <message>
        <source>File loaded (%1)</source>
        <translation>Datei geladen (%1)</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>*.script</source>
        <translation>*.script</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Stop Script</source>
        <translation>Skript anhalten</translation>
    </message>
    <message>
        <source>Stops the script that is running (Escape)</source>
        <translation>Hält das laufende Skript an (Escape)</translation>
    </message>
    <message>
        <source>Upload Scene</source>
        <translation>Szene hochladen</translation>
    </message>
    <message>
        <source>The scene needs to be saved before uploading.
Please save the scene and try again.</source>
        <translation>Die Szene muss vor dem Hochladen gespeichert werden.
Bitte speichern Sie die Szene und versuchen Sie es erneut.</translation>
    </message>
</context>
<context>
    <name>PhysicsWorldPropertiesWidget</name>
    <message>
        <source>Gravity</source>
        <translation>Schwerkraft</translation>
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
        <translation>Schrittfrequenz</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>Iterations</source>
        <translation>Iterationen</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Warm Starting</source>
        <translation>Warmstart</translation>
    </message>
    <message>
        <source>Continuous Physics</source>
        <translation>Kontinuierliche Physik</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Bodies</source>
        <translation>Körper</translation>
    </message>
    <message>
        <source>Joints</source>
        <translation>Gelenke</translation>
    </message>
</context>
<context>
    <name>PlayPauseAction</name>
    <message>
        <source>Play/Pause</source>
        <translation>Start/Pause</translation>
    </message>
</context>
<context>
    <name>PlotAction</name>
    <message>
        <source>Create Plot</source>
        <translation>Diagramm erstellen</translation>
    </message>
</context>
<context>
    <name>PlotWidget</name>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Beschleunigung</translation>
    </message>
    <message>
        <source>Time (sec)</source>
        <translation>Zeit (s)</translation>
    </message>
    <message>
        <source>Speed (m/sec)</source>
        <translation>Geschwindigkeit (m/s)</translation>
    </message>
</context>
<context>
    <name>PolygonAction</name>
    <message>
        <source>Create Polygon</source>
        <translation>Polygon erstellen</translation>
    </message>
</context>
<context>
    <name>PolygonClipper</name>
    <message>
        <source>Clipper Failed...</source>
        <translation>Clipper fehlgeschlagen...</translation>
    </message>
</context>
<context>
    <name>PrismaticJointAction</name>
    <message>
        <source>Create Prismatic Joint</source>
        <translation>Schubgelenk erstellen</translation>
    </message>
</context>
<context>
    <name>PropertyDelegate</name>
    <message>
        <source>Select Color</source>
        <translation>Farbe wählen</translation>
    </message>
</context>
<context>
    <name>PropertyEditorWidget</name>
    <message>
        <source>&lt;div align=&apos;right&apos;&gt;&lt;i&gt;&lt;font size=&apos;10px&apos;&gt;(Edit properties with double-click)&lt;/font&gt;&lt;/i&gt;&lt;/div&gt;</source>
        <translation>&lt;div align=&apos;right&apos;&gt;&lt;i&gt;&lt;font size=&apos;10px&apos;&gt;(Eigenschaften per Doppelklick bearbeiten)&lt;/font&gt;&lt;/i&gt;&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Pinsel</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>Specify the filter categories that %1 belongs to.</source>
        <translation>Wählen Sie die Filterkategorien, zu denen %1 gehört.</translation>
    </message>
    <message>
        <source>Specify the filter categories that %1 collides with.</source>
        <translation>Wählen Sie die Filterkategorien, mit denen %1 zusammenstößt.</translation>
    </message>
</context>
<context>
    <name>PropertyModel</name>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>PulleyJointAction</name>
    <message>
        <source>Create Pulley Joint</source>
        <translation>Flaschenzuggelenk erstellen</translation>
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
        <translation>Erstellt vom Brivane-Projekt</translation>
    </message>
    <message>
        <source>Balloon</source>
        <translation>Ballon</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Kreis</translation>
    </message>
    <message>
        <source>Distance Joint</source>
        <translation>Abstandsgelenk</translation>
    </message>
    <message>
        <source>Linear Impulse</source>
        <translation>Linearer Impuls</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polygon</translation>
    </message>
    <message>
        <source>Prismatic Joint</source>
        <translation>Schubgelenk</translation>
    </message>
    <message>
        <source>Pulley Joint</source>
        <translation>Flaschenzuggelenk</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Revolute Joint</source>
        <translation>Drehgelenk</translation>
    </message>
    <message>
        <source>Spring Force</source>
        <translation>Federkraft</translation>
    </message>
    <message>
        <source>Gear</source>
        <translation>Zahnrad</translation>
    </message>
    <message>
        <source>Union</source>
        <translation>Vereinigung</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation>Schnittmenge</translation>
    </message>
    <message>
        <source>Circlify</source>
        <translation>In Kreise zerlegen</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Radieren</translation>
    </message>
    <message>
        <source>Not exploded: %1 pieces would be made, more than %2.</source>
        <translation>Nicht zerlegt: Es entstünden %1 Teile, mehr als %2.</translation>
    </message>
    <message>
        <source>Squarify</source>
        <translation>In Quadrate zerlegen</translation>
    </message>
    <message>
        <source>Triangulate</source>
        <translation>In Dreiecke zerlegen</translation>
    </message>
    <message>
        <source>Chain</source>
        <translation>Kette</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Rope</source>
        <translation>Seil</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>A two-dimensional physics sandbox.</source>
        <translation>Ein zweidimensionaler Physik-Sandkasten.</translation>
    </message>
    <message>
        <source>A scene file to open.</source>
        <translation>Eine zu öffnende Szenendatei.</translation>
    </message>
    <message>
        <source>Updates Available</source>
        <translation>Aktualisierungen verfügbar</translation>
    </message>
    <message>
        <source>A new version of Brivane is available.
Update the application?</source>
        <translation>Eine neue Version von Brivane ist verfügbar.
Das Programm aktualisieren?</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Failed to launch the updater.
Please run it manually using the following command:

%1/maintenancetool</source>
        <translation>Das Aktualisierungsprogramm konnte nicht gestartet werden.
Bitte starten Sie es von Hand mit folgendem Befehl:

%1/maintenancetool</translation>
    </message>
</context>
<context>
    <name>QuickLoadWidget</name>
    <message>
        <source>Icon SIze</source>
        <translation>Symbolgröße</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen...</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Verzeichnis öffnen</translation>
    </message>
</context>
<context>
    <name>RectangleAction</name>
    <message>
        <source>Create Rectangle</source>
        <translation>Rechteck erstellen</translation>
    </message>
    <message>
        <source>width=%1
height=%2</source>
        <translation>Breite=%1
Höhe=%2</translation>
    </message>
</context>
<context>
    <name>RemoveAction</name>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>RevoluteJointAction</name>
    <message>
        <source>Create Revolute Joint</source>
        <translation>Drehgelenk erstellen</translation>
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
        <translation>Seil erstellen</translation>
    </message>
</context>
<context>
    <name>RopeContextWidget</name>
    <message>
        <source>Rectangle Width</source>
        <translation>Rechteckbreite</translation>
    </message>
</context>
<context>
    <name>ScenePropertiesWidget</name>
    <message>
        <source>Physics World</source>
        <translation>Physikwelt</translation>
    </message>
    <message>
        <source>Graphics View</source>
        <translation>Ansicht</translation>
    </message>
</context>
<context>
    <name>SelectAction</name>
    <message>
        <source>Select/Move</source>
        <translation>Auswählen/Verschieben</translation>
    </message>
</context>
<context>
    <name>SettingsWidget</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>Grafik</translation>
    </message>
    <message>
        <source>Use OpenGL</source>
        <translation>OpenGL verwenden</translation>
    </message>
    <message>
        <source>Antialiasing</source>
        <translation>Kantenglättung</translation>
    </message>
    <message>
        <source>Physics</source>
        <translation>Physik</translation>
    </message>
    <message>
        <source>Timer Interval</source>
        <translation>Zeitgeberintervall</translation>
    </message>
    <message>
        <source>Bodies Defaults</source>
        <translation>Vorgaben für Körper</translation>
    </message>
    <message>
        <source>Linear Damping</source>
        <translation>Lineare Dämpfung</translation>
    </message>
    <message>
        <source>Angular Damping</source>
        <translation>Drehdämpfung</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Reibung</translation>
    </message>
    <message>
        <source>Restitution</source>
        <translation>Elastizität</translation>
    </message>
    <message>
        <source>Allow Sleep</source>
        <translation>Ruhen erlauben</translation>
    </message>
    <message>
        <source>Is Bullet</source>
        <translation>Ist Geschoss</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>GUI Style</source>
        <translation>Oberflächenstil</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Create ground on start-up</source>
        <translation>Boden beim Start anlegen</translation>
    </message>
    <message>
        <source>Show scale indicator</source>
        <translation>Maßstabsleiste zeigen</translation>
    </message>
    <message>
        <source>Show tips at start-up</source>
        <translation>Tipps beim Start zeigen</translation>
    </message>
    <message>
        <source>Attach script debugger</source>
        <translation>Skript-Debugger anhängen</translation>
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
        <translation>Am Raster einrasten (F9)</translation>
    </message>
    <message>
        <source>Snaps to grid</source>
        <translation>Rastet am Raster ein</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Größe:</translation>
    </message>
    <message>
        <source>Snap To Objects (F10)</source>
        <translation>An Objekten einrasten (F10)</translation>
    </message>
    <message>
        <source>Snaps to objects</source>
        <translation>Rastet an Objekten ein</translation>
    </message>
    <message>
        <source>Distance:</source>
        <translation>Abstand:</translation>
    </message>
</context>
<context>
    <name>SocialDialog</name>
    <message>
        <source>%1 is a &lt;b&gt;free software&lt;/b&gt;. Please &lt;b&gt;support it&lt;/b&gt; by submitting it to your favourite social networking sites using the buttons below.</source>
        <translation>%1 ist &lt;b&gt;freie Software&lt;/b&gt;. Bitte &lt;b&gt;unterstützen Sie es&lt;/b&gt;, indem Sie es mit den Knöpfen unten auf Ihren liebsten sozialen Netzwerken teilen.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Please Support %1</source>
        <translation>Bitte unterstützen Sie %1</translation>
    </message>
</context>
<context>
    <name>SpringForceAction</name>
    <message>
        <source>Create Spring</source>
        <translation>Feder erstellen</translation>
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
        <translation>Dämpfung</translation>
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
        <translation>Text erstellen</translation>
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
        <translation>Schriftart</translation>
    </message>
    <message>
        <source>Font Size</source>
        <translation>Schriftgröße</translation>
    </message>
</context>
<context>
    <name>TipDialog</name>
    <message>
        <source>Tip of the Day</source>
        <translation>Tipp des Tages</translation>
    </message>
    <message>
        <source>Show tip at startup</source>
        <translation>Tipp beim Start zeigen</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>You could &lt;B&gt;improve rendering performance&lt;/B&gt; by enabling OpenGL in settings.</source>
        <translation>Sie können die &lt;B&gt;Darstellung beschleunigen&lt;/B&gt;, indem Sie OpenGL in den Einstellungen einschalten.</translation>
    </message>
    <message>
        <source>You can show and hide the Property Editor using Shift+P.</source>
        <translation>Mit Umschalt+P zeigen und verbergen Sie den Eigenschaftseditor.</translation>
    </message>
    <message>
        <source>You can show and hide the Console using Shift+~.</source>
        <translation>Mit Umschalt+~ zeigen und verbergen Sie die Konsole.</translation>
    </message>
    <message>
        <source>You can switch between &lt;B&gt;perspectives&lt;/B&gt; using &lt;I&gt;Alt + 1 .. 4&lt;/I&gt;.</source>
        <translation>Mit &lt;I&gt;Alt + 1 .. 4&lt;/I&gt; wechseln Sie zwischen den &lt;B&gt;Ansichten&lt;/B&gt;.</translation>
    </message>
    <message>
        <source>&lt;B&gt;Download&lt;/B&gt; scenes that other people have created by selecting &lt;I&gt;File::Download&lt;/I&gt; from the menu bar.</source>
        <translation>&lt;B&gt;Laden Sie&lt;/B&gt; Szenen anderer Leute über &lt;I&gt;Datei::Herunterladen&lt;/I&gt; in der Menüleiste &lt;B&gt;herunter&lt;/B&gt;.</translation>
    </message>
    <message>
        <source>You can &lt;B&gt;upload&lt;/B&gt; your scene to &lt;A HREF=&apos;%1&apos;&gt;%2&lt;/A&gt; by selecting &lt;I&gt;File::Upload&lt;/I&gt; from the menu bar.</source>
        <translation>Über &lt;I&gt;Datei::Hochladen&lt;/I&gt; in der Menüleiste können Sie Ihre Szene auf &lt;A HREF=&apos;%1&apos;&gt;%2&lt;/A&gt; &lt;B&gt;hochladen&lt;/B&gt;.</translation>
    </message>
</context>
<context>
    <name>UnionAction</name>
    <message>
        <source>Union</source>
        <translation>Vereinigung</translation>
    </message>
</context>
<context>
    <name>UploadDialog</name>
    <message>
        <source>Basic</source>
        <translation>Grundlegend</translation>
    </message>
    <message>
        <source>Upload As</source>
        <translation>Hochladen als</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Anmeldung</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Optional</source>
        <translation>Optional</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Stichwörter</translation>
    </message>
    <message>
        <source>Uploading: %p%</source>
        <translation>Hochladen: %p%</translation>
    </message>
    <message>
        <source>Bug Report</source>
        <translation>Fehlerbericht</translation>
    </message>
    <message>
        <source>Educational</source>
        <translation>Lehrreich</translation>
    </message>
    <message>
        <source>Mechanisms</source>
        <translation>Mechanismen</translation>
    </message>
    <message>
        <source>Ragdolls</source>
        <translation>Gliederpuppen</translation>
    </message>
    <message>
        <source>Vehicles</source>
        <translation>Fahrzeuge</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Anonymous User</source>
        <translation>Anonymer Benutzer</translation>
    </message>
    <message>
        <source>Registered User</source>
        <translation>Registrierter Benutzer</translation>
    </message>
    <message>
        <source>If you don&apos;t already have an account, you can create one &lt;a href=&apos;%1&apos;&gt;here&lt;/a&gt;</source>
        <translation>Wenn Sie noch kein Konto haben, können Sie &lt;a href=&apos;%1&apos;&gt;hier&lt;/a&gt; eines anlegen</translation>
    </message>
    <message>
        <source>Upload %1</source>
        <translation>%1 hochladen</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Please fill in username and password</source>
        <translation>Bitte Benutzername und Passwort eingeben</translation>
    </message>
    <message>
        <source>Bad reply from server</source>
        <translation>Ungültige Antwort vom Server</translation>
    </message>
    <message>
        <source>Could not reach the scene repository: %1</source>
        <translation>Das Szenenarchiv ist nicht erreichbar: %1</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Erfolg</translation>
    </message>
    <message>
        <source>Your scene has been successfully uploaded &lt;a href=&apos;%1&apos;&gt;here&lt;/a&gt;.</source>
        <translation>Ihre Szene wurde erfolgreich &lt;a href=&apos;%1&apos;&gt;hierhin&lt;/a&gt; hochgeladen.</translation>
    </message>
    <message>
        <source>The server replied with the following message:
%1</source>
        <translation>Der Server antwortete mit folgender Nachricht:
%1</translation>
    </message>
</context>
<context>
    <name>XMLReader</name>
    <message>
        <source>Trying to load a scene which was created with another version of the application. </source>
        <translation>Es wird eine Szene geladen, die mit einer anderen Version des Programms erstellt wurde. </translation>
    </message>
    <message>
        <source>(Scene version: %1 Application version: %2)</source>
        <translation>(Szenenversion: %1, Programmversion: %2)</translation>
    </message>
</context>
<context>
    <name>XPolygonF</name>
    <message>
        <source>Skipped %1 triangles</source>
        <translation>%1 Dreiecke übersprungen</translation>
    </message>
</context>
</TS>
