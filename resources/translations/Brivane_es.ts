<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Créditos</translation>
    </message>
    <message>
        <source>ChangeLog</source>
        <translation>Cambios</translation>
    </message>
    <message>
        <source>About </source>
        <translation>Acerca de </translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Could not remove temp directory.</source>
        <translation>No se pudo eliminar el directorio temporal.</translation>
    </message>
    <message>
        <source>Could not create temp directory.</source>
        <translation>No se pudo crear el directorio temporal.</translation>
    </message>
    <message>
        <source>Could not set language: Unknown language: %1</source>
        <translation>No se pudo establecer el idioma: idioma desconocido: %1</translation>
    </message>
    <message>
        <source>%1 has been successfully loaded.</source>
        <translation>%1 se ha cargado correctamente.</translation>
    </message>
    <message>
        <source>%1 failed to load.</source>
        <translation>No se pudo cargar %1.</translation>
    </message>
    <message>
        <source>Script debugger attached.</source>
        <translation>Depurador de scripts conectado.</translation>
    </message>
    <message>
        <source>Script debugger detached.</source>
        <translation>Depurador de scripts desconectado.</translation>
    </message>
    <message>
        <source>Supported OpenGL Versions:</source>
        <translation>Versiones de OpenGL compatibles:</translation>
    </message>
    <message>
        <source>%1 is not evaluated: a script file may hold at most %2 MB.</source>
        <translation>%1 no se evalúa: un archivo de script puede tener como máximo %2 MB.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Cargando...</translation>
    </message>
    <message>
        <source>The script was stopped.</source>
        <translation>El script se detuvo.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Could not open the scene %1.</source>
        <translation>No se pudo abrir la escena %1.</translation>
    </message>
</context>
<context>
    <name>BalloonAction</name>
    <message>
        <source>Create Balloon</source>
        <translation>Crear globo</translation>
    </message>
</context>
<context>
    <name>BrushAction</name>
    <message>
        <source>Create freehand shape</source>
        <translation>Crear forma a mano alzada</translation>
    </message>
</context>
<context>
    <name>BrushContextWidget</name>
    <message>
        <source>Brush Size</source>
        <translation>Tamaño del pincel</translation>
    </message>
</context>
<context>
    <name>BrushDialog</name>
    <message>
        <source>Select Brush</source>
        <translation>Seleccionar pincel</translation>
    </message>
    <message>
        <source>Color/Pattern</source>
        <translation>Color/Patrón</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Seleccionar...</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Patrón</translation>
    </message>
    <message>
        <source>No Brush</source>
        <translation>Sin pincel</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Sólido</translation>
    </message>
    <message>
        <source>Dense1</source>
        <translation>Denso 1</translation>
    </message>
    <message>
        <source>Dense2</source>
        <translation>Denso 2</translation>
    </message>
    <message>
        <source>Dense3</source>
        <translation>Denso 3</translation>
    </message>
    <message>
        <source>Dense4</source>
        <translation>Denso 4</translation>
    </message>
    <message>
        <source>Dense5</source>
        <translation>Denso 5</translation>
    </message>
    <message>
        <source>Dense6</source>
        <translation>Denso 6</translation>
    </message>
    <message>
        <source>Dense7</source>
        <translation>Denso 7</translation>
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
        <translation>Cruz</translation>
    </message>
    <message>
        <source>Backward diagonal</source>
        <translation>Diagonal inversa</translation>
    </message>
    <message>
        <source>Forward diagonal</source>
        <translation>Diagonal directa</translation>
    </message>
    <message>
        <source>Crossing diagonal</source>
        <translation>Diagonal cruzada</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>Textura</translation>
    </message>
    <message>
        <source>Auto Adjust</source>
        <translation>Ajuste automático</translation>
    </message>
    <message>
        <source>Horizontal scale</source>
        <translation>Escala horizontal</translation>
    </message>
    <message>
        <source>Vertical scale</source>
        <translation>Escala vertical</translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation>Desplazamiento horizontal</translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation>Desplazamiento vertical</translation>
    </message>
    <message>
        <source>Select Texture</source>
        <translation>Seleccionar textura</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp *.gif)</source>
        <translation>Archivos de imagen (*.png *.jpg *.bmp *.gif)</translation>
    </message>
</context>
<context>
    <name>CameraAction</name>
    <message>
        <source>Create Camera</source>
        <translation>Crear cámara</translation>
    </message>
</context>
<context>
    <name>CameraContextWidget</name>
    <message>
        <source>Camera Mode</source>
        <translation>Modo de cámara</translation>
    </message>
    <message>
        <source>Remove All Cameras</source>
        <translation>Quitar todas las cámaras</translation>
    </message>
    <message>
        <source>Use Default Viewport</source>
        <translation>Usar la vista principal</translation>
    </message>
    <message>
        <source>Create New Viewport</source>
        <translation>Crear una vista nueva</translation>
    </message>
</context>
<context>
    <name>CameraGraphicsView</name>
    <message>
        <source>Camera for %1</source>
        <translation>Cámara de %1</translation>
    </message>
</context>
<context>
    <name>ChainAction</name>
    <message>
        <source>Create Chain</source>
        <translation>Crear cadena</translation>
    </message>
</context>
<context>
    <name>ChainContextWidget</name>
    <message>
        <source>Circle Radius</source>
        <translation>Radio del círculo</translation>
    </message>
</context>
<context>
    <name>CircleAction</name>
    <message>
        <source>Create Circle</source>
        <translation>Crear círculo</translation>
    </message>
    <message>
        <source>radius=%1</source>
        <translation>radio=%1</translation>
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
        <translation>Seleccionar...</translation>
    </message>
</context>
<context>
    <name>DifferenceAction</name>
    <message>
        <source>Difference</source>
        <translation>Diferencia</translation>
    </message>
</context>
<context>
    <name>DistanceJointAction</name>
    <message>
        <source>Create Distance Joint</source>
        <translation>Crear articulación de distancia</translation>
    </message>
</context>
<context>
    <name>DownloadDialog</name>
    <message>
        <source>Maximum number of scenes to download</source>
        <translation>Número máximo de escenas a descargar</translation>
    </message>
    <message>
        <source>Save to</source>
        <translation>Guardar en</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Examinar...</translation>
    </message>
    <message>
        <source>Download scenes from %1</source>
        <translation>Descargar escenas de %1</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>Seleccionar carpeta</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Failed to retrieve file list from server.</source>
        <translation>No se pudo obtener la lista de archivos del servidor.</translation>
    </message>
</context>
<context>
    <name>DownloadProgressDialog</name>
    <message>
        <source>Scene Filename</source>
        <translation>Archivo de escena</translation>
    </message>
    <message>
        <source>Download Information</source>
        <translation>Información de la descarga</translation>
    </message>
    <message>
        <source>Refused: not a file of this folder.</source>
        <translation>Rechazado: no es un archivo de esta carpeta.</translation>
    </message>
    <message>
        <source>Download Progress</source>
        <translation>Progreso de la descarga</translation>
    </message>
    <message>
        <source>Successfully downloaded.</source>
        <translation>Descargado correctamente.</translation>
    </message>
    <message>
        <source>Already downloaded.</source>
        <translation>Ya descargado.</translation>
    </message>
    <message>
        <source>Failed to open file for writing.</source>
        <translation>No se pudo abrir el archivo para escribir.</translation>
    </message>
    <message>
        <source>Refused: larger than %1 MB.</source>
        <translation>Rechazado: mayor que %1 MB.</translation>
    </message>
</context>
<context>
    <name>EraseAction</name>
    <message>
        <source>Erase Item</source>
        <translation>Borrar elemento</translation>
    </message>
</context>
<context>
    <name>EraseContextWidget</name>
    <message>
        <source>Eraser Size</source>
        <translation>Tamaño del borrador</translation>
    </message>
</context>
<context>
    <name>ExplodeAction</name>
    <message>
        <source>Explode Item</source>
        <translation>Explotar elemento</translation>
    </message>
</context>
<context>
    <name>ExplodeContextWidget</name>
    <message>
        <source>Explode Method</source>
        <translation>Método de explosión</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Triangulate</source>
        <translation>Dividir en triángulos</translation>
    </message>
    <message>
        <source>Squarify</source>
        <translation>Dividir en cuadrados</translation>
    </message>
    <message>
        <source>Circlify</source>
        <translation>Dividir en círculos</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Image Export</source>
        <translation>Exportar imagen</translation>
    </message>
    <message>
        <source>Directory</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Examinar...</translation>
    </message>
    <message>
        <source>Filename</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>(without extension)</source>
        <translation>(sin extensión)</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Ancho</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>Seleccionar carpeta</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Please enter a file name.</source>
        <translation>Introduzca un nombre de archivo.</translation>
    </message>
    <message>
        <source>File %1 already exists</source>
        <translation>El archivo %1 ya existe</translation>
    </message>
    <message>
        <source>Failed to save image</source>
        <translation>No se pudo guardar la imagen</translation>
    </message>
</context>
<context>
    <name>GearAction</name>
    <message>
        <source>Create Gear</source>
        <translation>Crear engranaje</translation>
    </message>
</context>
<context>
    <name>GearContextWidget</name>
    <message>
        <source>Gear Tooth Size</source>
        <translation>Tamaño del diente</translation>
    </message>
    <message>
        <source>Gear Tooth Count Divisor</source>
        <translation>Divisor del número de dientes</translation>
    </message>
    <message>
        <source>Create Revolute Joint</source>
        <translation>Crear articulación de revolución</translation>
    </message>
</context>
<context>
    <name>GraphicsView</name>
    <message>
        <source>OpenGL is not available here; the view draws without it.</source>
        <translation>OpenGL no está disponible aquí; la vista se dibuja sin él.</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>OpenGL draws in software here (%1); the view draws without it, which is faster.</source>
        <translation>OpenGL dibuja aquí por software (%1); la vista dibuja sin él, lo que es más rápido.</translation>
    </message>
</context>
<context>
    <name>GraphicsViewPropertiesWidget</name>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Seleccionar...</translation>
    </message>
    <message>
        <source>Body With Camera</source>
        <translation>Cuerpo con cámara</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Escala</translation>
    </message>
</context>
<context>
    <name>GunAction</name>
    <message>
        <source>Shoot Item</source>
        <translation>Disparar elemento</translation>
    </message>
</context>
<context>
    <name>HelpWidget</name>
    <message>
        <source>Brivane Help</source>
        <translation>Ayuda de Brivane</translation>
    </message>
</context>
<context>
    <name>ImageAction</name>
    <message>
        <source>Create Image</source>
        <translation>Crear desde imagen</translation>
    </message>
</context>
<context>
    <name>ImageContextWidget</name>
    <message>
        <source>Image</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Seleccionar...</translation>
    </message>
    <message>
        <source>Polygon Threshold</source>
        <translation>Umbral del polígono</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Select Image</source>
        <translation>Seleccionar imagen</translation>
    </message>
    <message>
        <source>Images (*.png *.xpm *.jpg)</source>
        <translation>Imágenes (*.png *.xpm *.jpg)</translation>
    </message>
</context>
<context>
    <name>IntersectionAction</name>
    <message>
        <source>Intersection</source>
        <translation>Intersección</translation>
    </message>
</context>
<context>
    <name>JSDialog</name>
    <message>
        <source>The program contains a syntax error.</source>
        <translation>El programa contiene un error de sintaxis.</translation>
    </message>
    <message>
        <source>The program is incomplete.</source>
        <translation>El programa está incompleto.</translation>
    </message>
    <message>
        <source>

[Line: %1, Column: %2]</source>
        <translation>

[Línea: %1, Columna: %2]</translation>
    </message>
</context>
<context>
    <name>LinkContextWidget</name>
    <message>
        <source>Attach Point</source>
        <translation>Punto de anclaje</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Primero</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Último</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Ambos</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>New Scene</source>
        <translation>Nueva escena</translation>
    </message>
    <message>
        <source>Creates a new scene</source>
        <translation>Crea una escena nueva</translation>
    </message>
    <message>
        <source>Save Scene</source>
        <translation>Guardar escena</translation>
    </message>
    <message>
        <source>Saves current scene</source>
        <translation>Guarda la escena actual</translation>
    </message>
    <message>
        <source>Save Scene As...</source>
        <translation>Guardar escena como...</translation>
    </message>
    <message>
        <source>Saves current scene as</source>
        <translation>Guarda la escena actual con otro nombre</translation>
    </message>
    <message>
        <source>Load Scene...</source>
        <translation>Cargar escena...</translation>
    </message>
    <message>
        <source>Loads a scene</source>
        <translation>Carga una escena</translation>
    </message>
    <message>
        <source>Upload Scene...</source>
        <translation>Subir escena...</translation>
    </message>
    <message>
        <source>Uploads current scene to %1</source>
        <translation>Sube la escena actual a %1</translation>
    </message>
    <message>
        <source>Download Scenes...</source>
        <translation>Descargar escenas...</translation>
    </message>
    <message>
        <source>Downloads scenes from %1</source>
        <translation>Descarga escenas desde %1</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exportar...</translation>
    </message>
    <message>
        <source>Exports current scene as an image</source>
        <translation>Exporta la escena actual como imagen</translation>
    </message>
    <message>
        <source>Evaluate Script...</source>
        <translation>Ejecutar script...</translation>
    </message>
    <message>
        <source>Evaluates a .script file</source>
        <translation>Ejecuta un archivo .script</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Quits the application</source>
        <translation>Cierra la aplicación</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Selects all items of the scene</source>
        <translation>Selecciona todos los elementos de la escena</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Zooms in</source>
        <translation>Acerca la vista</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Zooms out</source>
        <translation>Aleja la vista</translation>
    </message>
    <message>
        <source>Zoom Extents</source>
        <translation>Ajustar a la escena</translation>
    </message>
    <message>
        <source>Zooms in or out to fit the extents of the scene</source>
        <translation>Acerca o aleja la vista para mostrar toda la escena</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Mostrar todo</translation>
    </message>
    <message>
        <source>Shows all toolbars</source>
        <translation>Muestra todas las barras de herramientas</translation>
    </message>
    <message>
        <source>Hide all</source>
        <translation>Ocultar todo</translation>
    </message>
    <message>
        <source>Hides all toolbars</source>
        <translation>Oculta todas las barras de herramientas</translation>
    </message>
    <message>
        <source>Shows all dock widgets</source>
        <translation>Muestra todos los paneles acoplables</translation>
    </message>
    <message>
        <source>Hides all dock widgets</source>
        <translation>Oculta todos los paneles acoplables</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Toggles fullscreen mode</source>
        <translation>Activa o desactiva el modo de pantalla completa</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Shows the application&apos;s help file</source>
        <translation>Muestra el archivo de ayuda de la aplicación</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>Acerca de...</translation>
    </message>
    <message>
        <source>Shows the application&apos;s About box</source>
        <translation>Muestra el cuadro «Acerca de» de la aplicación</translation>
    </message>
    <message>
        <source>About Qt...</source>
        <translation>Acerca de Qt...</translation>
    </message>
    <message>
        <source>Shows the Qt library&apos;s About box</source>
        <translation>Muestra el cuadro «Acerca de» de la biblioteca Qt</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Iniciar/Pausar</translation>
    </message>
    <message>
        <source>Starts/Pauses the simulation</source>
        <translation>Inicia o pausa la simulación</translation>
    </message>
    <message>
        <source>Select/Move</source>
        <translation>Seleccionar/Mover</translation>
    </message>
    <message>
        <source>Selects and/or moves an item</source>
        <translation>Selecciona y/o mueve un elemento</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Removes an item or a selection of items from the scene</source>
        <translation>Elimina un elemento o una selección de elementos de la escena</translation>
    </message>
    <message>
        <source>Explode Item</source>
        <translation>Explotar elemento</translation>
    </message>
    <message>
        <source>Explodes an item</source>
        <translation>Hace explotar un elemento</translation>
    </message>
    <message>
        <source>Erase Item</source>
        <translation>Borrar elemento</translation>
    </message>
    <message>
        <source>Erases parts of an item</source>
        <translation>Borra partes de un elemento</translation>
    </message>
    <message>
        <source>Create Camera</source>
        <translation>Crear cámara</translation>
    </message>
    <message>
        <source>Creates a camera that follows an item</source>
        <translation>Crea una cámara que sigue a un elemento</translation>
    </message>
    <message>
        <source>Create Tracer</source>
        <translation>Crear trazador</translation>
    </message>
    <message>
        <source>Creates a tracer that follows an item</source>
        <translation>Crea un trazador que sigue a un elemento</translation>
    </message>
    <message>
        <source>Shoot Item</source>
        <translation>Disparar elemento</translation>
    </message>
    <message>
        <source>Shoots an item</source>
        <translation>Dispara un elemento</translation>
    </message>
    <message>
        <source>Create Plot</source>
        <translation>Crear gráfica</translation>
    </message>
    <message>
        <source>Creates a plot for a given item</source>
        <translation>Crea una gráfica para un elemento dado</translation>
    </message>
    <message>
        <source>Create Rectangle</source>
        <translation>Crear rectángulo</translation>
    </message>
    <message>
        <source>Creates a rectangle</source>
        <translation>Crea un rectángulo</translation>
    </message>
    <message>
        <source>Create Circle</source>
        <translation>Crear círculo</translation>
    </message>
    <message>
        <source>Creates a circle</source>
        <translation>Crea un círculo</translation>
    </message>
    <message>
        <source>Create Polygon</source>
        <translation>Crear polígono</translation>
    </message>
    <message>
        <source>Creates a polygon</source>
        <translation>Crea un polígono</translation>
    </message>
    <message>
        <source>Create Balloon</source>
        <translation>Crear globo</translation>
    </message>
    <message>
        <source>Creates a balloon</source>
        <translation>Crea un globo</translation>
    </message>
    <message>
        <source>Create freehand shape</source>
        <translation>Crear forma a mano alzada</translation>
    </message>
    <message>
        <source>Freehand drawing of random shapes</source>
        <translation>Dibujo a mano alzada de formas libres</translation>
    </message>
    <message>
        <source>Create Chain</source>
        <translation>Crear cadena</translation>
    </message>
    <message>
        <source>Creates a chain</source>
        <translation>Crea una cadena</translation>
    </message>
    <message>
        <source>Create Rope</source>
        <translation>Crear cuerda</translation>
    </message>
    <message>
        <source>Creates a rope</source>
        <translation>Crea una cuerda</translation>
    </message>
    <message>
        <source>Create Text</source>
        <translation>Crear texto</translation>
    </message>
    <message>
        <source>Creates items from text</source>
        <translation>Crea elementos a partir de un texto</translation>
    </message>
    <message>
        <source>Create Gear</source>
        <translation>Crear engranaje</translation>
    </message>
    <message>
        <source>Creates a gear</source>
        <translation>Crea un engranaje</translation>
    </message>
    <message>
        <source>Create Image</source>
        <translation>Crear desde imagen</translation>
    </message>
    <message>
        <source>Creates a shape based on the outline of a (png) image</source>
        <translation>Crea una forma a partir del contorno de una imagen (PNG)</translation>
    </message>
    <message>
        <source>Create Distance Joint</source>
        <translation>Crear articulación de distancia</translation>
    </message>
    <message>
        <source>Creates a distance joint between two items (or an item and the background)</source>
        <translation>Crea una articulación de distancia entre dos elementos (o entre un elemento y el fondo)</translation>
    </message>
    <message>
        <source>Create Revolute Joint</source>
        <translation>Crear articulación de revolución</translation>
    </message>
    <message>
        <source>Creates a revolute joint between two items (or an item and the background)</source>
        <translation>Crea una articulación de revolución entre dos elementos (o entre un elemento y el fondo)</translation>
    </message>
    <message>
        <source>Create Prismatic Joint</source>
        <translation>Crear articulación prismática</translation>
    </message>
    <message>
        <source>Creates a prismatic joint between two items</source>
        <translation>Crea una articulación prismática entre dos elementos</translation>
    </message>
    <message>
        <source>Create Pulley Joint</source>
        <translation>Crear articulación de polea</translation>
    </message>
    <message>
        <source>Creates a pulley joint between two items</source>
        <translation>Crea una articulación de polea entre dos elementos</translation>
    </message>
    <message>
        <source>Create Spring</source>
        <translation>Crear resorte</translation>
    </message>
    <message>
        <source>Creates a spring between two items</source>
        <translation>Crea un resorte entre dos elementos</translation>
    </message>
    <message>
        <source>Union</source>
        <translation>Unión</translation>
    </message>
    <message>
        <source>Creates an item from the union of two other items</source>
        <translation>Crea un elemento a partir de la unión de otros dos elementos</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferencia</translation>
    </message>
    <message>
        <source>Creates an item from the difference of two other items</source>
        <translation>Crea un elemento a partir de la diferencia de otros dos elementos</translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation>Intersección</translation>
    </message>
    <message>
        <source>Creates an item from the intersection of two other items</source>
        <translation>Crea un elemento a partir de la intersección de otros dos elementos</translation>
    </message>
    <message>
        <source>General Toolbar</source>
        <translation>Barra de herramientas general</translation>
    </message>
    <message>
        <source>Bodies Toolbar</source>
        <translation>Barra de herramientas de cuerpos</translation>
    </message>
    <message>
        <source>Joints Toolbar</source>
        <translation>Barra de herramientas de articulaciones</translation>
    </message>
    <message>
        <source>Forces Toolbar</source>
        <translation>Barra de herramientas de fuerzas</translation>
    </message>
    <message>
        <source>Boolean Toolbar</source>
        <translation>Barra de herramientas booleanas</translation>
    </message>
    <message>
        <source>Snap Toolbar</source>
        <translation>Barra de herramientas de ajuste</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>Consola</translation>
    </message>
    <message>
        <source>Scene Properties</source>
        <translation>Propiedades de la escena</translation>
    </message>
    <message>
        <source>Property Editor</source>
        <translation>Editor de propiedades</translation>
    </message>
    <message>
        <source>Quick Load</source>
        <translation>Carga rápida</translation>
    </message>
    <message>
        <source>Commands History</source>
        <translation>Historial de comandos</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Barras de herramientas</translation>
    </message>
    <message>
        <source>Dock Widgets</source>
        <translation>Paneles acoplables</translation>
    </message>
    <message>
        <source>Perspectives</source>
        <translation>Perspectivas</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Action Context Toolbar</source>
        <translation>Barra de herramientas contextual</translation>
    </message>
    <message>
        <source>New file created</source>
        <translation>Nuevo archivo creado</translation>
    </message>
    <message>
        <source>File saved (%1)</source>
        <translation>Archivo guardado (%1)</translation>
    </message>
    <message>
        <source>File loaded (%1)</source>
        <translation>Archivo cargado (%1)</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Cargar</translation>
    </message>
    <message>
        <source>*.script</source>
        <translation>*.script</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Stop Script</source>
        <translation>Detener script</translation>
    </message>
    <message>
        <source>Stops the script that is running (Escape)</source>
        <translation>Detiene el script en ejecución (Escape)</translation>
    </message>
    <message>
        <source>Upload Scene</source>
        <translation>Subir escena</translation>
    </message>
    <message>
        <source>The scene needs to be saved before uploading.
Please save the scene and try again.</source>
        <translation>La escena debe guardarse antes de subirla.
Guarde la escena e inténtelo de nuevo.</translation>
    </message>
</context>
<context>
    <name>PhysicsWorldPropertiesWidget</name>
    <message>
        <source>Gravity</source>
        <translation>Gravedad</translation>
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
        <translation>Frecuencia de paso</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>Iterations</source>
        <translation>Iteraciones</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Warm Starting</source>
        <translation>Arranque en caliente</translation>
    </message>
    <message>
        <source>Continuous Physics</source>
        <translation>Física continua</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Segundos</translation>
    </message>
    <message>
        <source>Bodies</source>
        <translation>Cuerpos</translation>
    </message>
    <message>
        <source>Joints</source>
        <translation>Uniones</translation>
    </message>
</context>
<context>
    <name>PlayPauseAction</name>
    <message>
        <source>Play/Pause</source>
        <translation>Iniciar/Pausar</translation>
    </message>
</context>
<context>
    <name>PlotAction</name>
    <message>
        <source>Create Plot</source>
        <translation>Crear gráfica</translation>
    </message>
</context>
<context>
    <name>PlotWidget</name>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Aceleración</translation>
    </message>
    <message>
        <source>Time (sec)</source>
        <translation>Tiempo (s)</translation>
    </message>
    <message>
        <source>Speed (m/sec)</source>
        <translation>Velocidad (m/s)</translation>
    </message>
</context>
<context>
    <name>PolygonAction</name>
    <message>
        <source>Create Polygon</source>
        <translation>Crear polígono</translation>
    </message>
</context>
<context>
    <name>PolygonClipper</name>
    <message>
        <source>Clipper Failed...</source>
        <translation>Clipper ha fallado...</translation>
    </message>
</context>
<context>
    <name>PrismaticJointAction</name>
    <message>
        <source>Create Prismatic Joint</source>
        <translation>Crear articulación prismática</translation>
    </message>
</context>
<context>
    <name>PropertyDelegate</name>
    <message>
        <source>Select Color</source>
        <translation>Seleccionar color</translation>
    </message>
</context>
<context>
    <name>PropertyEditorWidget</name>
    <message>
        <source>&lt;div align=&apos;right&apos;&gt;&lt;i&gt;&lt;font size=&apos;10px&apos;&gt;(Edit properties with double-click)&lt;/font&gt;&lt;/i&gt;&lt;/div&gt;</source>
        <translation>&lt;div align=&apos;right&apos;&gt;&lt;i&gt;&lt;font size=&apos;10px&apos;&gt;(Edite las propiedades con doble clic)&lt;/font&gt;&lt;/i&gt;&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Pincel</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seleccionar</translation>
    </message>
    <message>
        <source>Specify the filter categories that %1 belongs to.</source>
        <translation>Indique las categorías de filtro a las que pertenece %1.</translation>
    </message>
    <message>
        <source>Specify the filter categories that %1 collides with.</source>
        <translation>Indique las categorías de filtro con las que choca %1.</translation>
    </message>
</context>
<context>
    <name>PropertyModel</name>
    <message>
        <source>Property</source>
        <translation>Propiedad</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
</context>
<context>
    <name>PulleyJointAction</name>
    <message>
        <source>Create Pulley Joint</source>
        <translation>Crear articulación de polea</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Version: %1</source>
        <translation>Versión: %1</translation>
    </message>
    <message>
        <source>Made by the Brivane Project</source>
        <translation>Creado por el Proyecto Brivane</translation>
    </message>
    <message>
        <source>Balloon</source>
        <translation>Globo</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Círculo</translation>
    </message>
    <message>
        <source>Distance Joint</source>
        <translation>Articulación de distancia</translation>
    </message>
    <message>
        <source>Linear Impulse</source>
        <translation>Impulso lineal</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polígono</translation>
    </message>
    <message>
        <source>Prismatic Joint</source>
        <translation>Articulación prismática</translation>
    </message>
    <message>
        <source>Pulley Joint</source>
        <translation>Articulación de polea</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectángulo</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Revolute Joint</source>
        <translation>Articulación de revolución</translation>
    </message>
    <message>
        <source>Spring Force</source>
        <translation>Fuerza de resorte</translation>
    </message>
    <message>
        <source>Gear</source>
        <translation>Engranaje</translation>
    </message>
    <message>
        <source>Union</source>
        <translation>Unión</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferencia</translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation>Intersección</translation>
    </message>
    <message>
        <source>Circlify</source>
        <translation>Dividir en círculos</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Not exploded: %1 pieces would be made, more than %2.</source>
        <translation>No se ha dividido: se crearían %1 piezas, más de %2.</translation>
    </message>
    <message>
        <source>Squarify</source>
        <translation>Dividir en cuadrados</translation>
    </message>
    <message>
        <source>Triangulate</source>
        <translation>Dividir en triángulos</translation>
    </message>
    <message>
        <source>Chain</source>
        <translation>Cadena</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Rope</source>
        <translation>Cuerda</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>A two-dimensional physics sandbox.</source>
        <translation>Un arenero de física bidimensional.</translation>
    </message>
    <message>
        <source>A scene file to open.</source>
        <translation>Un archivo de escena para abrir.</translation>
    </message>
    <message>
        <source>Updates Available</source>
        <translation>Actualizaciones disponibles</translation>
    </message>
    <message>
        <source>A new version of Brivane is available.
Update the application?</source>
        <translation>Hay una nueva versión de Brivane.
¿Actualizar la aplicación?</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Failed to launch the updater.
Please run it manually using the following command:

%1/maintenancetool</source>
        <translation>No se pudo iniciar el actualizador.
Ejecútelo manualmente con la siguiente orden:

%1/maintenancetool</translation>
    </message>
</context>
<context>
    <name>QuickLoadWidget</name>
    <message>
        <source>Icon SIze</source>
        <translation>Tamaño de icono</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Examinar...</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Abrir carpeta</translation>
    </message>
</context>
<context>
    <name>RectangleAction</name>
    <message>
        <source>Create Rectangle</source>
        <translation>Crear rectángulo</translation>
    </message>
    <message>
        <source>width=%1
height=%2</source>
        <translation>ancho=%1
alto=%2</translation>
    </message>
</context>
<context>
    <name>RemoveAction</name>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>RevoluteJointAction</name>
    <message>
        <source>Create Revolute Joint</source>
        <translation>Crear articulación de revolución</translation>
    </message>
</context>
<context>
    <name>RevoluteJointContextWidget</name>
    <message>
        <source>Radius</source>
        <translation>Radio</translation>
    </message>
</context>
<context>
    <name>RopeAction</name>
    <message>
        <source>Create Rope</source>
        <translation>Crear cuerda</translation>
    </message>
</context>
<context>
    <name>RopeContextWidget</name>
    <message>
        <source>Rectangle Width</source>
        <translation>Ancho del rectángulo</translation>
    </message>
</context>
<context>
    <name>ScenePropertiesWidget</name>
    <message>
        <source>Physics World</source>
        <translation>Mundo físico</translation>
    </message>
    <message>
        <source>Graphics View</source>
        <translation>Vista</translation>
    </message>
</context>
<context>
    <name>SelectAction</name>
    <message>
        <source>Select/Move</source>
        <translation>Seleccionar/Mover</translation>
    </message>
</context>
<context>
    <name>SettingsWidget</name>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>Gráficos</translation>
    </message>
    <message>
        <source>Use OpenGL</source>
        <translation>Usar OpenGL</translation>
    </message>
    <message>
        <source>Antialiasing</source>
        <translation>Suavizado</translation>
    </message>
    <message>
        <source>Physics</source>
        <translation>Física</translation>
    </message>
    <message>
        <source>Timer Interval</source>
        <translation>Intervalo del temporizador</translation>
    </message>
    <message>
        <source>Bodies Defaults</source>
        <translation>Valores por defecto de los cuerpos</translation>
    </message>
    <message>
        <source>Linear Damping</source>
        <translation>Amortiguación lineal</translation>
    </message>
    <message>
        <source>Angular Damping</source>
        <translation>Amortiguación angular</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Fricción</translation>
    </message>
    <message>
        <source>Restitution</source>
        <translation>Restitución</translation>
    </message>
    <message>
        <source>Allow Sleep</source>
        <translation>Permitir reposo</translation>
    </message>
    <message>
        <source>Is Bullet</source>
        <translation>Es proyectil</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>GUI Style</source>
        <translation>Estilo de la interfaz</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Create ground on start-up</source>
        <translation>Crear suelo al iniciar</translation>
    </message>
    <message>
        <source>Show scale indicator</source>
        <translation>Mostrar indicador de escala</translation>
    </message>
    <message>
        <source>Show tips at start-up</source>
        <translation>Mostrar consejos al iniciar</translation>
    </message>
    <message>
        <source>Attach script debugger</source>
        <translation>Conectar el depurador de scripts</translation>
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
        <translation>Ajustar a la cuadrícula (F9)</translation>
    </message>
    <message>
        <source>Snaps to grid</source>
        <translation>Ajusta a la cuadrícula</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Tamaño:</translation>
    </message>
    <message>
        <source>Snap To Objects (F10)</source>
        <translation>Ajustar a los objetos (F10)</translation>
    </message>
    <message>
        <source>Snaps to objects</source>
        <translation>Ajusta a los objetos</translation>
    </message>
    <message>
        <source>Distance:</source>
        <translation>Distancia:</translation>
    </message>
</context>
<context>
    <name>SocialDialog</name>
    <message>
        <source>%1 is a &lt;b&gt;free software&lt;/b&gt;. Please &lt;b&gt;support it&lt;/b&gt; by submitting it to your favourite social networking sites using the buttons below.</source>
        <translation>%1 es &lt;b&gt;software libre&lt;/b&gt;. &lt;b&gt;Apóyelo&lt;/b&gt; compartiéndolo en sus redes sociales favoritas con los botones de abajo.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Please Support %1</source>
        <translation>Apoye a %1</translation>
    </message>
</context>
<context>
    <name>SpringForceAction</name>
    <message>
        <source>Create Spring</source>
        <translation>Crear resorte</translation>
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
        <translation>Amortiguación</translation>
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
        <translation>Crear texto</translation>
    </message>
</context>
<context>
    <name>TextContextWidget</name>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Font Family</source>
        <translation>Tipo de letra</translation>
    </message>
    <message>
        <source>Font Size</source>
        <translation>Tamaño de letra</translation>
    </message>
</context>
<context>
    <name>TipDialog</name>
    <message>
        <source>Tip of the Day</source>
        <translation>Consejo del día</translation>
    </message>
    <message>
        <source>Show tip at startup</source>
        <translation>Mostrar consejo al inicio</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>You could &lt;B&gt;improve rendering performance&lt;/B&gt; by enabling OpenGL in settings.</source>
        <translation>Puede &lt;B&gt;mejorar el rendimiento del dibujo&lt;/B&gt; activando OpenGL en los ajustes.</translation>
    </message>
    <message>
        <source>You can show and hide the Property Editor using Shift+P.</source>
        <translation>Puede mostrar y ocultar el editor de propiedades con Mayús+P.</translation>
    </message>
    <message>
        <source>You can show and hide the Console using Shift+~.</source>
        <translation>Puede mostrar y ocultar la consola con Mayús+~.</translation>
    </message>
    <message>
        <source>You can switch between &lt;B&gt;perspectives&lt;/B&gt; using &lt;I&gt;Alt + 1 .. 4&lt;/I&gt;.</source>
        <translation>Puede cambiar de &lt;B&gt;perspectiva&lt;/B&gt; con &lt;I&gt;Alt + 1 .. 4&lt;/I&gt;.</translation>
    </message>
    <message>
        <source>&lt;B&gt;Download&lt;/B&gt; scenes that other people have created by selecting &lt;I&gt;File::Download&lt;/I&gt; from the menu bar.</source>
        <translation>&lt;B&gt;Descargue&lt;/B&gt; escenas creadas por otras personas con &lt;I&gt;Archivo::Descargar&lt;/I&gt; en la barra de menús.</translation>
    </message>
    <message>
        <source>You can &lt;B&gt;upload&lt;/B&gt; your scene to &lt;A HREF=&apos;%1&apos;&gt;%2&lt;/A&gt; by selecting &lt;I&gt;File::Upload&lt;/I&gt; from the menu bar.</source>
        <translation>Puede &lt;B&gt;subir&lt;/B&gt; su escena a &lt;A HREF=&apos;%1&apos;&gt;%2&lt;/A&gt; con &lt;I&gt;Archivo::Subir&lt;/I&gt; en la barra de menús.</translation>
    </message>
</context>
<context>
    <name>UnionAction</name>
    <message>
        <source>Union</source>
        <translation>Unión</translation>
    </message>
</context>
<context>
    <name>UploadDialog</name>
    <message>
        <source>Basic</source>
        <translation>Básico</translation>
    </message>
    <message>
        <source>Upload As</source>
        <translation>Subir como</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Inicio de sesión</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Optional</source>
        <translation>Opcional</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Palabras clave</translation>
    </message>
    <message>
        <source>Uploading: %p%</source>
        <translation>Subiendo: %p%</translation>
    </message>
    <message>
        <source>Bug Report</source>
        <translation>Informe de error</translation>
    </message>
    <message>
        <source>Educational</source>
        <translation>Educativo</translation>
    </message>
    <message>
        <source>Mechanisms</source>
        <translation>Mecanismos</translation>
    </message>
    <message>
        <source>Ragdolls</source>
        <translation>Muñecos</translation>
    </message>
    <message>
        <source>Vehicles</source>
        <translation>Vehículos</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Anonymous User</source>
        <translation>Usuario anónimo</translation>
    </message>
    <message>
        <source>Registered User</source>
        <translation>Usuario registrado</translation>
    </message>
    <message>
        <source>If you don&apos;t already have an account, you can create one &lt;a href=&apos;%1&apos;&gt;here&lt;/a&gt;</source>
        <translation>Si aún no tiene una cuenta, puede crear una &lt;a href=&apos;%1&apos;&gt;aquí&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Upload %1</source>
        <translation>Subir %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Please fill in username and password</source>
        <translation>Introduzca usuario y contraseña</translation>
    </message>
    <message>
        <source>Bad reply from server</source>
        <translation>Respuesta no válida del servidor</translation>
    </message>
    <message>
        <source>Could not reach the scene repository: %1</source>
        <translation>No se pudo acceder al repositorio de escenas: %1</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Éxito</translation>
    </message>
    <message>
        <source>Your scene has been successfully uploaded &lt;a href=&apos;%1&apos;&gt;here&lt;/a&gt;.</source>
        <translation>Su escena se ha subido correctamente &lt;a href=&apos;%1&apos;&gt;aquí&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>The server replied with the following message:
%1</source>
        <translation>El servidor respondió con el siguiente mensaje:
%1</translation>
    </message>
</context>
<context>
    <name>XMLReader</name>
    <message>
        <source>Trying to load a scene which was created with another version of the application. </source>
        <translation>Se está cargando una escena creada con otra versión de la aplicación. </translation>
    </message>
    <message>
        <source>(Scene version: %1 Application version: %2)</source>
        <translation>(Versión de la escena: %1, versión de la aplicación: %2)</translation>
    </message>
</context>
<context>
    <name>XPolygonF</name>
    <message>
        <source>Skipped %1 triangles</source>
        <translation>Se omitieron %1 triángulos</translation>
    </message>
</context>
</TS>
