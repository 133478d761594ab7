<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Riconoscimenti</translation>
    </message>
    <message>
        <source>ChangeLog</source>
        <translation>Modifiche</translation>
    </message>
    <message>
        <source>About </source>
        <translation>Informazioni su </translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Could not remove temp directory.</source>
        <translation>Impossibile rimuovere la cartella temporanea.</translation>
    </message>
    <message>
        <source>Could not create temp directory.</source>
        <translation>Impossibile creare la cartella temporanea.</translation>
    </message>
    <message>
        <source>Could not set language: Unknown language: %1</source>
        <translation>Impossibile impostare la lingua: lingua sconosciuta: %1</translation>
    </message>
    <message>
        <source>%1 has been successfully loaded.</source>
        <translation>%1 è stato caricato correttamente.</translation>
    </message>
    <message>
        <source>%1 failed to load.</source>
        <translation>Impossibile caricare %1.</translation>
    </message>
    <message>
        <source>Script debugger attached.</source>
        <translation>Debugger degli script collegato.</translation>
    </message>
    <message>
        <source>Script debugger detached.</source>
        <translation>Debugger degli script scollegato.</translation>
    </message>
    <message>
        <source>Supported OpenGL Versions:</source>
        <translation>Versioni di OpenGL supportate:</translation>
    </message>
    <message>
        <source>%1 is not evaluated: a script file may hold at most %2 MB.</source>
        <translation>%1 non viene valutato: un file di script può contenere al massimo %2 MB.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Caricamento...</translation>
    </message>
    <message>
        <source>The script was stopped.</source>
        <translation>Lo script è stato interrotto.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Could not open the scene %1.</source>
        <translation>Impossibile aprire la scena %1.</translation>
    </message>
</context>
<context>
    <name>BalloonAction</name>
    <message>
        <source>Create Balloon</source>
        <translation>Crea palloncino</translation>
    </message>
</context>
<context>
    <name>BrushAction</name>
    <message>
        <source>Create freehand shape</source>
        <translation>Crea forma a mano libera</translation>
    </message>
</context>
<context>
    <name>BrushContextWidget</name>
    <message>
        <source>Brush Size</source>
        <translation>Dimensione pennello</translation>
    </message>
</context>
<context>
    <name>BrushDialog</name>
    <message>
        <source>Select Brush</source>
        <translation>Scegli pennello</translation>
    </message>
    <message>
        <source>Color/Pattern</source>
        <translation>Colore/Motivo</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Scegli...</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>No Brush</source>
        <translation>Nessun pennello</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Pieno</translation>
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
        <translation>Orizzontale</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Verticale</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>Croce</translation>
    </message>
    <message>
        <source>Backward diagonal</source>
        <translation>Diagonale all&apos;indietro</translation>
    </message>
    <message>
        <source>Forward diagonal</source>
        <translation>Diagonale in avanti</translation>
    </message>
    <message>
        <source>Crossing diagonal</source>
        <translation>Diagonali incrociate</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>Texture</translation>
    </message>
    <message>
        <source>Auto Adjust</source>
        <translation>Adattamento automatico</translation>
    </message>
    <message>
        <source>Horizontal scale</source>
        <translation>Scala orizzontale</translation>
    </message>
    <message>
        <source>Vertical scale</source>
        <translation>Scala verticale</translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation>Spostamento orizzontale</translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation>Spostamento verticale</translation>
    </message>
    <message>
        <source>Select Texture</source>
        <translation>Scegli texture</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp *.gif)</source>
        <translation>File immagine (*.png *.jpg *.bmp *.gif)</translation>
    </message>
</context>
<context>
    <name>CameraAction</name>
    <message>
        <source>Create Camera</source>
        <translation>Crea telecamera</translation>
    </message>
</context>
<context>
    <name>CameraContextWidget</name>
    <message>
        <source>Camera Mode</source>
        <translation>Modalità telecamera</translation>
    </message>
    <message>
        <source>Remove All Cameras</source>
        <translation>Rimuovi tutte le telecamere</translation>
    </message>
    <message>
        <source>Use Default Viewport</source>
        <translation>Usa la vista principale</translation>
    </message>
    <message>
        <source>Create New Viewport</source>
        <translation>Crea una nuova vista</translation>
    </message>
</context>
<context>
    <name>CameraGraphicsView</name>
    <message>
        <source>Camera for %1</source>
        <translation>Telecamera per %1</translation>
    </message>
</context>
<context>
    <name>ChainAction</name>
    <message>
        <source>Create Chain</source>
        <translation>Crea catena</translation>
    </message>
</context>
<context>
    <name>ChainContextWidget</name>
    <message>
        <source>Circle Radius</source>
        <translation>Raggio del cerchio</translation>
    </message>
</context>
<context>
    <name>CircleAction</name>
    <message>
        <source>Create Circle</source>
        <translation>Crea cerchio</translation>
    </message>
    <message>
        <source>radius=%1</source>
        <translation>raggio=%1</translation>
    </message>
</context>
<context>
    <name>ColorContextWidget</name>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Scegli...</translation>
    </message>
</context>
<context>
    <name>DifferenceAction</name>
    <message>
        <source>Difference</source>
        <translation>Differenza</translation>
    </message>
</context>
<context>
    <name>DistanceJointAction</name>
    <message>
        <source>Create Distance Joint</source>
        <translation>Crea giunto di distanza</translation>
    </message>
</context>
<context>
    <name>DownloadDialog</name>
    <message>
        <source>Maximum number of scenes to download</source>
        <translation>Numero massimo di scene da scaricare</translation>
    </message>
    <message>
        <source>Save to</source>
        <translation>Salva in</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Sfoglia...</translation>
    </message>
    <message>
        <source>Download scenes from %1</source>
        <translation>Scarica scene da %1</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>Seleziona cartella</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Failed to retrieve file list from server.</source>
        <translation>Impossibile ottenere l&apos;elenco dei file dal server.</translation>
    </message>
</context>
<context>
    <name>DownloadProgressDialog</name>
    <message>
        <source>Scene Filename</source>
        <translation>File della scena</translation>
    </message>
    <message>
        <source>Download Information</source>
        <translation>Informazioni sullo scaricamento</translation>
    </message>
    <message>
        <source>Refused: not a file of this folder.</source>
        <translation>Rifiutato: non è un file di questa cartella.</translation>
    </message>
    <message>
        <source>Download Progress</source>
        <translation>Avanzamento dello scaricamento</translation>
    </message>
    <message>
        <source>Successfully downloaded.</source>
        <translation>Scaricato correttamente.</translation>
    </message>
    <message>
        <source>Already downloaded.</source>
        <translation>Già scaricato.</translation>
    </message>
    <message>
        <source>Failed to open file for writing.</source>
        <translation>Impossibile aprire il file in scrittura.</translation>
    </message>
    <message>
        <source>Refused: larger than %1 MB.</source>
        <translation>Rifiutato: più grande di %1 MB.</translation>
    </message>
</context>
<context>
    <name>EraseAction</name>
    <message>
        <source>Erase Item</source>
        <translation>Cancella oggetto</translation>
    </message>
</context>
<context>
    <name>EraseContextWidget</name>
    <message>
        <source>Eraser Size</source>
        <translation>Dimensione gomma</translation>
    </message>
</context>
<context>
    <name>ExplodeAction</name>
    <message>
        <source>Explode Item</source>
        <translation>Fai esplodere oggetto</translation>
    </message>
</context>
<context>
    <name>ExplodeContextWidget</name>
    <message>
        <source>Explode Method</source>
        <translation>Metodo di esplosione</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Triangulate</source>
        <translation>Dividi in triangoli</translation>
    </message>
    <message>
        <source>Squarify</source>
        <translation>Dividi in quadrati</translation>
    </message>
    <message>
        <source>Circlify</source>
        <translation>Dividi in cerchi</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>Image Export</source>
        <translation>Esportazione immagine</translation>
    </message>
    <message>
        <source>Directory</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Sfoglia...</translation>
    </message>
    <message>
        <source>Filename</source>
        <translation>Nome file</translation>
    </message>
    <message>
        <source>(without extension)</source>
        <translation>(senza estensione)</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Larghezza</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altezza</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualità</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>Seleziona cartella</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Please enter a file name.</source>
        <translation>Inserisci un nome di file.</translation>
    </message>
    <message>
        <source>File %1 already exists</source>
        <translation>Il file %1 esiste già</translation>
    </message>
    <message>
        <source>Failed to save image</source>
        <translation>Impossibile salvare l&apos;immagine</translation>
    </message>
</context>
<context>
    <name>GearAction</name>
    <message>
        <source>Create Gear</source>
        <translation>Crea ingranaggio</translation>
    </message>
</context>
<context>
    <name>GearContextWidget</name>
    <message>
        <source>Gear Tooth Size</source>
        <translation>Dimensione dente</translation>
    </message>
    <message>
        <source>Gear Tooth Count Divisor</source>
        <translation>Divisore del numero di denti</translation>
    </message>
    <message>
        <source>Create Revolute Joint</source>
        <translation>Crea giunto rotoidale</translation>
    </message>
</context>
<context>
    <name>GraphicsView</name>
    <message>
        <source>OpenGL is not available here; the view draws without it.</source>
        <translation>OpenGL non è disponibile qui; la vista viene disegnata senza di esso.</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>OpenGL draws in software here (%1); the view draws without it, which is faster.</source>
        <translation>Qui OpenGL disegna via software (%1); la vista disegna senza di esso, il che è più veloce.</translation>
    </message>
</context>
<context>
    <name>GraphicsViewPropertiesWidget</name>
    <message>
        <source>Background</source>
        <translation>Sfondo</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Scegli...</translation>
    </message>
    <message>
        <source>Body With Camera</source>
        <translation>Corpo con telecamera</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Scala</translation>
    </message>
</context>
<context>
    <name>GunAction</name>
    <message>
        <source>Shoot Item</source>
        <translation>Spara oggetto</translation>
    </message>
</context>
<context>
    <name>HelpWidget</name>
    <message>
        <source>Brivane Help</source>
        <translation>Guida di Brivane</translation>
    </message>
</context>
<context>
    <name>ImageAction</name>
    <message>
        <source>Create Image</source>
        <translation>Crea da immagine</translation>
    </message>
</context>
<context>
    <name>ImageContextWidget</name>
    <message>
        <source>Image</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Scegli...</translation>
    </message>
    <message>
        <source>Polygon Threshold</source>
        <translation>Soglia del poligono</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Scala</translation>
    </message>
    <message>
        <source>Select Image</source>
        <translation>Seleziona immagine</translation>
    </message>
    <message>
        <source>Images (*.png *.xpm *.jpg)</source>
        <translation>Immagini (*.png *.xpm *.jpg)</translation>
    </message>
</context>
<context>
    <name>IntersectionAction</name>
    <message>
        <source>Intersection</source>
        <translation>Intersezione</translation>
    </message>
</context>
<context>
    <name>JSDialog</name>
    <message>
        <source>The program contains a syntax error.</source>
        <translation>Il programma contiene un errore di sintassi.</translation>
    </message>
    <message>
        <source>The program is incomplete.</source>
        <translation>Il programma è incompleto.</translation>
    </message>
    <message>
        <source>

[Line: %1, Column: %2]</source>
        <translation>

[Riga: %1, Colonna: %2]</translation>
    </message>
</context>
<context>
    <name>LinkContextWidget</name>
    <message>
        <source>Attach Point</source>
        <translation>Punto di aggancio</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Primo</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Ultimo</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Entrambi</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>New Scene</source>
        <translation>Nuova scena</translation>
    </message>
    <message>
        <source>Creates a new scene</source>
        <translation>Crea una nuova scena</translation>
    </message>
    <message>
        <source>Save Scene</source>
        <translation>Salva scena</translation>
    </message>
    <message>
        <source>Saves current scene</source>
        <translation>Salva la scena corrente</translation>
    </message>
    <message>
        <source>Save Scene As...</source>
        <translation>Salva scena come...</translation>
    </message>
    <message>
        <source>Saves current scene as</source>
        <translation>Salva la scena corrente con un altro nome</translation>
    </message>
    <message>
        <source>Load Scene...</source>
        <translation>Carica scena...</translation>
    </message>
    <message>
        <source>Loads a scene</source>
        <translation>Carica una scena</translation>
    </message>
    <message>
        <source>Upload Scene...</source>
        <translation>Invia scena...</translation>
    </message>
    <message>
        <source>Uploads current scene to %1</source>
        <translation>Invia la scena corrente a %1</translation>
    </message>
    <message>
        <source>Download Scenes...</source>
        <translation>Scarica scene...</translation>
    </message>
    <message>
        <source>Downloads scenes from %1</source>
        <translation>Scarica scene da %1</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Esporta...</translation>
    </message>
    <message>
        <source>Exports current scene as an image</source>
        <translation>Esporta la scena corrente come immagine</translation>
    </message>
    <message>
        <source>Evaluate Script...</source>
        <translation>Esegui script...</translation>
    </message>
    <message>
        <source>Evaluates a .script file</source>
        <translation>Esegue un file .script</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Quits the application</source>
        <translation>Chiude l&apos;applicazione</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>Selects all items of the scene</source>
        <translation>Seleziona tutti gli oggetti della scena</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Zooms in</source>
        <translation>Ingrandisce la vista</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Riduci</translation>
    </message>
    <message>
        <source>Zooms out</source>
        <translation>Riduce la vista</translation>
    </message>
    <message>
        <source>Zoom Extents</source>
        <translation>Adatta alla scena</translation>
    </message>
    <message>
        <source>Zooms in or out to fit the extents of the scene</source>
        <translation>Ingrandisce o riduce la vista per mostrare l&apos;intera scena</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Mostra tutto</translation>
    </message>
    <message>
        <source>Shows all toolbars</source>
        <translation>Mostra tutte le barre degli strumenti</translation>
    </message>
    <message>
        <source>Hide all</source>
        <translation>Nascondi tutto</translation>
    </message>
    <message>
        <source>Hides all toolbars</source>
        <translation>Nasconde tutte le barre degli strumenti</translation>
    </message>
    <message>
        <source>Shows all dock widgets</source>
        <translation>Mostra tutti i pannelli agganciabili</translation>
    </message>
    <message>
        <source>Hides all dock widgets</source>
        <translation>Nasconde tutti i pannelli agganciabili</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Schermo intero</translation>
    </message>
    <message>
        <source>Toggles fullscreen mode</source>
        <translation>Attiva o disattiva la modalità a schermo intero</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Shows the application&apos;s help file</source>
        <translation>Mostra la guida dell&apos;applicazione</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>Informazioni...</translation>
    </message>
    <message>
        <source>Shows the application&apos;s About box</source>
        <translation>Mostra la finestra di informazioni dell&apos;applicazione</translation>
    </message>
    <message>
        <source>About Qt...</source>
        <translation>Informazioni su Qt...</translation>
    </message>
    <message>
        <source>Shows the Qt library&apos;s About box</source>
        <translation>Mostra la finestra di informazioni della libreria Qt</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Avvia/Pausa</translation>
    </message>
    <message>
        <source>Starts/Pauses the simulation</source>
        <translation>Avvia o mette in pausa la simulazione</translation>
    </message>
    <message>
        <source>Select/Move</source>
        <translation>Seleziona/Sposta</translation>
    </message>
    <message>
        <source>Selects and/or moves an item</source>
        <translation>Seleziona e/o sposta un oggetto</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Removes an item or a selection of items from the scene</source>
        <translation>Rimuove un oggetto o una selezione di oggetti dalla scena</translation>
    </message>
    <message>
        <source>Explode Item</source>
        <translation>Fai esplodere oggetto</translation>
    </message>
    <message>
        <source>Explodes an item</source>
        <translation>Fa esplodere un oggetto</translation>
    </message>
    <message>
        <source>Erase Item</source>
        <translation>Cancella oggetto</translation>
    </message>
    <message>
        <source>Erases parts of an item</source>
        <translation>Cancella parti di un oggetto</translation>
    </message>
    <message>
        <source>Create Camera</source>
        <translation>Crea telecamera</translation>
    </message>
    <message>
        <source>Creates a camera that follows an item</source>
        <translation>Crea una telecamera che segue un oggetto</translation>
    </message>
    <message>
        <source>Create Tracer</source>
        <translation>Crea tracciatore</translation>
    </message>
    <message>
        <source>Creates a tracer that follows an item</source>
        <translation>Crea un tracciatore che segue un oggetto</translation>
    </message>
    <message>
        <source>Shoot Item</source>
        <translation>Spara oggetto</translation>
    </message>
    <message>
        <source>Shoots an item</source>
        <translation>Spara un oggetto</translation>
    </message>
    <message>
        <source>Create Plot</source>
        <translation>Crea grafico</translation>
    </message>
    <message>
        <source>Creates a plot for a given item</source>
        <translation>Crea un grafico per un oggetto dato</translation>
    </message>
    <message>
        <source>Create Rectangle</source>
        <translation>Crea rettangolo</translation>
    </message>
    <message>
        <source>Creates a rectangle</source>
        <translation>Crea un rettangolo</translation>
    </message>
    <message>
        <source>Create Circle</source>
        <translation>Crea cerchio</translation>
    </message>
    <message>
        <source>Creates a circle</source>
        <translation>Crea un cerchio</translation>
    </message>
    <message>
        <source>Create Polygon</source>
        <translation>Crea poligono</translation>
    </message>
    <message>
        <source>Creates a polygon</source>
        <translation>Crea un poligono</translation>
    </message>
    <message>
        <source>Create Balloon</source>
        <translation>Crea palloncino</translation>
    </message>
    <message>
        <source>Creates a balloon</source>
        <translation>Crea un palloncino</translation>
    </message>
    <message>
        <source>Create freehand shape</source>
        <translation>Crea forma a mano libera</translation>
    </message>
    <message>
        <source>Freehand drawing of random shapes</source>
        <translation>Disegno a mano libera di forme qualsiasi</translation>
    </message>
    <message>
        <source>Create Chain</source>
        <translation>Crea catena</translation>
    </message>
    <message>
        <source>Creates a chain</source>
        <translation>Crea una catena</translation>
    </message>
    <message>
        <source>Create Rope</source>
        <translation>Crea corda</translation>
    </message>
    <message>
        <source>Creates a rope</source>
        <translation>Crea una corda</translation>
    </message>
    <message>
        <source>Create Text</source>
        <translation>Crea testo</translation>
    </message>
    <message>
        <source>Creates items from text</source>
        <translation>Crea oggetti a partire da un testo</translation>
    </message>
    <message>
        <source>Create Gear</source>
        <translation>Crea ingranaggio</translation>
    </message>
    <message>
        <source>Creates a gear</source>
        <translation>Crea un ingranaggio</translation>
    </message>
    <message>
        <source>Create Image</source>
        <translation>Crea da immagine</translation>
    </message>
    <message>
        <source>Creates a shape based on the outline of a (png) image</source>
        <translation>Crea una forma basata sul contorno di un&apos;immagine (PNG)</translation>
    </message>
    <message>
        <source>Create Distance Joint</source>
        <translation>Crea giunto di distanza</translation>
    </message>
    <message>
        <source>Creates a distance joint between two items (or an item and the background)</source>
        <translation>Crea un giunto di distanza tra due oggetti (o tra un oggetto e lo sfondo)</translation>
    </message>
    <message>
        <source>Create Revolute Joint</source>
        <translation>Crea giunto rotoidale</translation>
    </message>
    <message>
        <source>Creates a revolute joint between two items (or an item and the background)</source>
        <translation>Crea un giunto rotoidale tra due oggetti (o tra un oggetto e lo sfondo)</translation>
    </message>
    <message>
        <source>Create Prismatic Joint</source>
        <translation>Crea giunto prismatico</translation>
    </message>
    <message>
        <source>Creates a prismatic joint between two items</source>
        <translation>Crea un giunto prismatico tra due oggetti</translation>
    </message>
    <message>
        <source>Create Pulley Joint</source>
        <translation>Crea giunto a puleggia</translation>
    </message>
    <message>
        <source>Creates a pulley joint between two items</source>
        <translation>Crea un giunto a puleggia tra due oggetti</translation>
    </message>
    <message>
        <source>Create Spring</source>
        <translation>Crea molla</translation>
    </message>
    <message>
        <source>Creates a spring between two items</source>
        <translation>Crea una molla tra due oggetti</translation>
    </message>
    <message>
        <source>Union</source>
        <translation>Unione</translation>
    </message>
    <message>
        <source>Creates an item from the union of two other items</source>
        <translation>Crea un oggetto dall&apos;unione di altri due oggetti</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenza</translation>
    </message>
    <message>
        <source>Creates an item from the difference of two other items</source>
        <translation>Crea un oggetto dalla differenza di altri due oggetti</translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation>Intersezione</translation>
    </message>
    <message>
        <source>Creates an item from the intersection of two other items</source>
        <translation>Crea un oggetto dall&apos;intersezione di altri due oggetti</translation>
    </message>
    <message>
        <source>General Toolbar</source>
        <translation>Barra degli strumenti generale</translation>
    </message>
    <message>
        <source>Bodies Toolbar</source>
        <translation>Barra degli strumenti corpi</translation>
    </message>
    <message>
        <source>Joints Toolbar</source>
        <translation>Barra degli strumenti giunti</translation>
    </message>
    <message>
        <source>Forces Toolbar</source>
        <translation>Barra degli strumenti forze</translation>
    </message>
    <message>
        <source>Boolean Toolbar</source>
        <translation>Barra degli strumenti booleana</translation>
    </message>
    <message>
        <source>Snap Toolbar</source>
        <translation>Barra degli strumenti aggancio</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>Console</translation>
    </message>
    <message>
        <source>Scene Properties</source>
        <translation>Proprietà della scena</translation>
    </message>
    <message>
        <source>Property Editor</source>
        <translation>Editor delle proprietà</translation>
    </message>
    <message>
        <source>Quick Load</source>
        <translation>Caricamento rapido</translation>
    </message>
    <message>
        <source>Commands History</source>
        <translation>Cronologia dei comandi</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Barre degli strumenti</translation>
    </message>
    <message>
        <source>Dock Widgets</source>
        <translation>Pannelli agganciabili</translation>
    </message>
    <message>
        <source>Perspectives</source>
        <translation>Prospettive</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Action Context Toolbar</source>
        <translation>Barra degli strumenti contestuale</translation>
    </message>
    <message>
        <source>New file created</source>
        <translation>Nuovo file creato</translation>
    </message>
    <message>
        <source>File saved (%1)</source>
        <translation>File salvato (%1)</translation>
    </message>
    <message>
        <source>File loaded (%1)</source>
        <translation>File caricato (%1)</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Carica</translation>
    </message>
    <message>
        <source>*.script</source>
        <translation>*.script</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Stop Script</source>
        <translation>Interrompi script</translation>
    </message>
    <message>
        <source>Stops the script that is running (Escape)</source>
        <translation>Interrompe lo script in esecuzione (Esc)</translation>
    </message>
    <message>
        <source>Upload Scene</source>
        <translation>Carica scena</translation>
    </message>
    <message>
        <source>The scene needs to be saved before uploading.
Please save the scene and try again.</source>
        <translation>La scena deve essere salvata prima del caricamento.
Salva la scena e riprova.</translation>
    </message>
</context>
<context>
    <name>PhysicsWorldPropertiesWidget</name>
    <message>
        <source>Gravity</source>
        <translation>Gravità</translation>
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
        <translation>Frequenza dei passi</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>Iterations</source>
        <translation>Iterazioni</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>Warm Starting</source>
        <translation>Avvio a caldo</translation>
    </message>
    <message>
        <source>Continuous Physics</source>
        <translation>Fisica continua</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Secondi</translation>
    </message>
    <message>
        <source>Bodies</source>
        <translation>Corpi</translation>
    </message>
    <message>
        <source>Joints</source>
        <translation>Giunti</translation>
    </message>
</context>
<context>
    <name>PlayPauseAction</name>
    <message>
        <source>Play/Pause</source>
        <translation>Avvia/Pausa</translation>
    </message>
</context>
<context>
    <name>PlotAction</name>
    <message>
        <source>Create Plot</source>
        <translation>Crea grafico</translation>
    </message>
</context>
<context>
    <name>PlotWidget</name>
    <message>
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Accelerazione</translation>
    </message>
    <message>
        <source>Time (sec)</source>
        <translation>Tempo (s)</translation>
    </message>
    <message>
        <source>Speed (m/sec)</source>
        <translation>Velocità (m/s)</translation>
    </message>
</context>
<context>
    <name>PolygonAction</name>
    <message>
        <source>Create Polygon</source>
        <translation>Crea poligono</translation>
    </message>
</context>
<context>
    <name>PolygonClipper</name>
    <message>
        <source>Clipper Failed...</source>
        <translation>Clipper non riuscito...</translation>
    </message>
</context>
<context>
    <name>PrismaticJointAction</name>
    <message>
        <source>Create Prismatic Joint</source>
        <translation>Crea giunto prismatico</translation>
    </message>
</context>
<context>
    <name>PropertyDelegate</name>
    <message>
        <source>Select Color</source>
        <translation>Scegli colore</translation>
    </message>
</context>
<context>
    <name>PropertyEditorWidget</name>
    <message>
        <source>&lt;div align=&apos;right&apos;&gt;&lt;i&gt;&lt;font size=&apos;10px&apos;&gt;(Edit properties with double-click)&lt;/font&gt;&lt;/i&gt;&lt;/div&gt;</source>
        <translation>&lt;div align=&apos;right&apos;&gt;&lt;i&gt;&lt;font size=&apos;10px&apos;&gt;(Modifica le proprietà con doppio clic)&lt;/font&gt;&lt;/i&gt;&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Pennello</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Scegli</translation>
    </message>
    <message>
        <source>Specify the filter categories that %1 belongs to.</source>
        <translation>Indicare le categorie di filtro a cui appartiene %1.</translation>
    </message>
    <message>
        <source>Specify the filter categories that %1 collides with.</source>
        <translation>Indicare le categorie di filtro con cui collide %1.</translation>
    </message>
</context>
<context>
    <name>PropertyModel</name>
    <message>
        <source>Property</source>
        <translation>Proprietà</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
</context>
<context>
    <name>PulleyJointAction</name>
    <message>
        <source>Create Pulley Joint</source>
        <translation>Crea giunto a puleggia</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Version: %1</source>
        <translation>Versione: %1</translation>
    </message>
    <message>
        <source>Made by the Brivane Project</source>
        <translation>Realizzato dal Progetto Brivane</translation>
    </message>
    <message>
        <source>Balloon</source>
        <translation>Palloncino</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Cerchio</translation>
    </message>
    <message>
        <source>Distance Joint</source>
        <translation>Giunto di distanza</translation>
    </message>
    <message>
        <source>Linear Impulse</source>
        <translation>Impulso lineare</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Avvia</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Poligono</translation>
    </message>
    <message>
        <source>Prismatic Joint</source>
        <translation>Giunto prismatico</translation>
    </message>
    <message>
        <source>Pulley Joint</source>
        <translation>Giunto a puleggia</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rettangolo</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Revolute Joint</source>
        <translation>Giunto rotoidale</translation>
    </message>
    <message>
        <source>Spring Force</source>
        <translation>Forza elastica</translation>
    </message>
    <message>
        <source>Gear</source>
        <translation>Ingranaggio</translation>
    </message>
    <message>
        <source>Union</source>
        <translation>Unione</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenza</translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation>Intersezione</translation>
    </message>
    <message>
        <source>Circlify</source>
        <translation>Dividi in cerchi</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <source>Not exploded: %1 pieces would be made, more than %2.</source>
        <translation>Non diviso: si creerebbero %1 pezzi, più di %2.</translation>
    </message>
    <message>
        <source>Squarify</source>
        <translation>Dividi in quadrati</translation>
    </message>
    <message>
        <source>Triangulate</source>
        <translation>Dividi in triangoli</translation>
    </message>
    <message>
        <source>Chain</source>
        <translation>Catena</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>Rope</source>
        <translation>Corda</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>A two-dimensional physics sandbox.</source>
        <translation>Una sandbox di fisica bidimensionale.</translation>
    </message>
    <message>
        <source>A scene file to open.</source>
        <translation>Un file di scena da aprire.</translation>
    </message>
    <message>
        <source>Updates Available</source>
        <translation>Aggiornamenti disponibili</translation>
    </message>
    <message>
        <source>A new version of Brivane is available.
Update the application?</source>
        <translation>È disponibile una nuova versione di Brivane.
Aggiornare l&apos;applicazione?</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Failed to launch the updater.
Please run it manually using the following command:

%1/maintenancetool</source>
        <translation>Impossibile avviare il programma di aggiornamento.
Eseguilo a mano con il comando seguente:

%1/maintenancetool</translation>
    </message>
</context>
<context>
    <name>QuickLoadWidget</name>
    <message>
        <source>Icon SIze</source>
        <translation>Dimensione icone</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Sfoglia...</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Apri cartella</translation>
    </message>
</context>
<context>
    <name>RectangleAction</name>
    <message>
        <source>Create Rectangle</source>
        <translation>Crea rettangolo</translation>
    </message>
    <message>
        <source>width=%1
height=%2</source>
        <translation>larghezza=%1
altezza=%2</translation>
    </message>
</context>
<context>
    <name>RemoveAction</name>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
</context>
<context>
    <name>RevoluteJointAction</name>
    <message>
        <source>Create Revolute Joint</source>
        <translation>Crea giunto rotoidale</translation>
    </message>
</context>
<context>
    <name>RevoluteJointContextWidget</name>
    <message>
        <source>Radius</source>
        <translation>Raggio</translation>
    </message>
</context>
<context>
    <name>RopeAction</name>
    <message>
        <source>Create Rope</source>
        <translation>Crea corda</translation>
    </message>
</context>
<context>
    <name>RopeContextWidget</name>
    <message>
        <source>Rectangle Width</source>
        <translation>Larghezza del rettangolo</translation>
    </message>
</context>
<context>
    <name>ScenePropertiesWidget</name>
    <message>
        <source>Physics World</source>
        <translation>Mondo fisico</translation>
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
        <translation>Seleziona/Sposta</translation>
    </message>
</context>
<context>
    <name>SettingsWidget</name>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>Grafica</translation>
    </message>
    <message>
        <source>Use OpenGL</source>
        <translation>Usa OpenGL</translation>
    </message>
    <message>
        <source>Antialiasing</source>
        <translation>Antialiasing</translation>
    </message>
    <message>
        <source>Physics</source>
        <translation>Fisica</translation>
    </message>
    <message>
        <source>Timer Interval</source>
        <translation>Intervallo del timer</translation>
    </message>
    <message>
        <source>Bodies Defaults</source>
        <translation>Valori predefiniti dei corpi</translation>
    </message>
    <message>
        <source>Linear Damping</source>
        <translation>Smorzamento lineare</translation>
    </message>
    <message>
        <source>Angular Damping</source>
        <translation>Smorzamento angolare</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Attrito</translation>
    </message>
    <message>
        <source>Restitution</source>
        <translation>Restituzione</translation>
    </message>
    <message>
        <source>Allow Sleep</source>
        <translation>Consenti riposo</translation>
    </message>
    <message>
        <source>Is Bullet</source>
        <translation>È un proiettile</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>GUI Style</source>
        <translation>Stile dell&apos;interfaccia</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Create ground on start-up</source>
        <translation>Crea il terreno all&apos;avvio</translation>
    </message>
    <message>
        <source>Show scale indicator</source>
        <translation>Mostra l&apos;indicatore di scala</translation>
    </message>
    <message>
        <source>Show tips at start-up</source>
        <translation>Mostra i suggerimenti all&apos;avvio</translation>
    </message>
    <message>
        <source>Attach script debugger</source>
        <translation>Collega il debugger degli script</translation>
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
        <translation>Aggancia alla griglia (F9)</translation>
    </message>
    <message>
        <source>Snaps to grid</source>
        <translation>Aggancia alla griglia</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Dimensione:</translation>
    </message>
    <message>
        <source>Snap To Objects (F10)</source>
        <translation>Aggancia agli oggetti (F10)</translation>
    </message>
    <message>
        <source>Snaps to objects</source>
        <translation>Aggancia agli oggetti</translation>
    </message>
    <message>
        <source>Distance:</source>
        <translation>Distanza:</translation>
    </message>
</context>
<context>
    <name>SocialDialog</name>
    <message>
        <source>%1 is a &lt;b&gt;free software&lt;/b&gt;. Please &lt;b&gt;support it&lt;/b&gt; by submitting it to your favourite social networking sites using the buttons below.</source>
        <translation>%1 è &lt;b&gt;software libero&lt;/b&gt;. &lt;b&gt;Sostienilo&lt;/b&gt; condividendolo sui tuoi social network preferiti con i pulsanti qui sotto.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Please Support %1</source>
        <translation>Sostieni %1</translation>
    </message>
</context>
<context>
    <name>SpringForceAction</name>
    <message>
        <source>Create Spring</source>
        <translation>Crea molla</translation>
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
        <translation>Smorzamento</translation>
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
        <translation>Crea testo</translation>
    </message>
</context>
<context>
    <name>TextContextWidget</name>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Font Family</source>
        <translation>Tipo di carattere</translation>
    </message>
    <message>
        <source>Font Size</source>
        <translation>Dimensione carattere</translation>
    </message>
</context>
<context>
    <name>TipDialog</name>
    <message>
        <source>Tip of the Day</source>
        <translation>Suggerimento del giorno</translation>
    </message>
    <message>
        <source>Show tip at startup</source>
        <translation>Mostra suggerimento all&apos;avvio</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Precedente</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Successivo</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>You could &lt;B&gt;improve rendering performance&lt;/B&gt; by enabling OpenGL in settings.</source>
        <translation>Puoi &lt;B&gt;migliorare le prestazioni grafiche&lt;/B&gt; attivando OpenGL nelle impostazioni.</translation>
    </message>
    <message>
        <source>You can show and hide the Property Editor using Shift+P.</source>
        <translation>Puoi mostrare e nascondere l&apos;editor delle proprietà con Maiusc+P.</translation>
    </message>
    <message>
        <source>You can show and hide the Console using Shift+~.</source>
        <translation>Puoi mostrare e nascondere la console con Maiusc+~.</translation>
    </message>
    <message>
        <source>You can switch between &lt;B&gt;perspectives&lt;/B&gt; using &lt;I&gt;Alt + 1 .. 4&lt;/I&gt;.</source>
        <translation>Puoi passare da una &lt;B&gt;prospettiva&lt;/B&gt; all&apos;altra con &lt;I&gt;Alt + 1 .. 4&lt;/I&gt;.</translation>
    </message>
    <message>
        <source>&lt;B&gt;Download&lt;/B&gt; scenes that other people have created by selecting &lt;I&gt;File::Download&lt;/I&gt; from the menu bar.</source>
        <translation>&lt;B&gt;Scarica&lt;/B&gt; le scene create da altri con &lt;I&gt;File::Scarica&lt;/I&gt; nella barra dei menu.</translation>
    </message>
    <message>
        <source>You can &lt;B&gt;upload&lt;/B&gt; your scene to &lt;A HREF=&apos;%1&apos;&gt;%2&lt;/A&gt; by selecting &lt;I&gt;File::Upload&lt;/I&gt; from the menu bar.</source>
        <translation>Puoi &lt;B&gt;caricare&lt;/B&gt; la tua scena su &lt;A HREF=&apos;%1&apos;&gt;%2&lt;/A&gt; con &lt;I&gt;File::Carica&lt;/I&gt; nella barra dei menu.</translation>
    </message>
</context>
<context>
    <name>UnionAction</name>
    <message>
        <source>Union</source>
        <translation>Unione</translation>
    </message>
</context>
<context>
    <name>UploadDialog</name>
    <message>
        <source>Basic</source>
        <translation>Di base</translation>
    </message>
    <message>
        <source>Upload As</source>
        <translation>Carica come</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Accesso</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Optional</source>
        <translation>Facoltativo</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoria</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Parole chiave</translation>
    </message>
    <message>
        <source>Uploading: %p%</source>
        <translation>Caricamento: %p%</translation>
    </message>
    <message>
        <source>Bug Report</source>
        <translation>Segnalazione di errore</translation>
    </message>
    <message>
        <source>Educational</source>
        <translation>Didattico</translation>
    </message>
    <message>
        <source>Mechanisms</source>
        <translation>Meccanismi</translation>
    </message>
    <message>
        <source>Ragdolls</source>
        <translation>Manichini</translation>
    </message>
    <message>
        <source>Vehicles</source>
        <translation>Veicoli</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Anonymous User</source>
        <translation>Utente anonimo</translation>
    </message>
    <message>
        <source>Registered User</source>
        <translation>Utente registrato</translation>
    </message>
    <message>
        <source>If you don&apos;t already have an account, you can create one &lt;a href=&apos;%1&apos;&gt;here&lt;/a&gt;</source>
        <translation>Se non hai ancora un account, puoi crearne uno &lt;a href=&apos;%1&apos;&gt;qui&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Upload %1</source>
        <translation>Carica %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Please fill in username and password</source>
        <translation>Inserisci nome utente e password</translation>
    </message>
    <message>
        <source>Bad reply from server</source>
        <translation>Risposta non valida dal server</translation>
    </message>
    <message>
        <source>Could not reach the scene repository: %1</source>
        <translation>Impossibile raggiungere l&apos;archivio delle scene: %1</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Riuscito</translation>
    </message>
    <message>
        <source>Your scene has been successfully uploaded &lt;a href=&apos;%1&apos;&gt;here&lt;/a&gt;.</source>
        <translation>La tua scena è stata caricata &lt;a href=&apos;%1&apos;&gt;qui&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>The server replied with the following message:
%1</source>
        <translation>Il server ha risposto con il seguente messaggio:
%1</translation>
    </message>
</context>
<context>
    <name>XMLReader</name>
    <message>
        <source>Trying to load a scene which was created with another version of the application. </source>
        <translation>Caricamento di una scena creata con un&apos;altra versione dell&apos;applicazione. </translation>
    </message>
    <message>
        <source>(Scene version: %1 Application version: %2)</source>
        <translation>(Versione della scena: %1, versione dell&apos;applicazione: %2)</translation>
    </message>
</context>
<context>
    <name>XPolygonF</name>
    <message>
        <source>Skipped %1 triangles</source>
        <translation>Triangoli saltati: %1</translation>
    </message>
</context>
</TS>
