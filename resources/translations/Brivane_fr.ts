<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Remerciements</translation>
    </message>
    <message>
        <source>ChangeLog</source>
        <translation>Modifications</translation>
    </message>
    <message>
        <source>About </source>
        <translation>À propos de </translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Could not remove temp directory.</source>
        <translation>Impossible de supprimer le répertoire temporaire.</translation>
    </message>
    <message>
        <source>Could not create temp directory.</source>
        <translation>Impossible de créer le répertoire temporaire.</translation>
    </message>
    <message>
        <source>Could not set language: Unknown language: %1</source>
        <translation>Impossible de définir la langue : langue inconnue : %1</translation>
    </message>
    <message>
        <source>%1 has been successfully loaded.</source>
        <translation>%1 a été chargé avec succès.</translation>
    </message>
    <message>
        <source>%1 failed to load.</source>
        <translation>Échec du chargement de %1.</translation>
    </message>
    <message>
        <source>Script debugger attached.</source>
        <translation>Débogueur de scripts attaché.</translation>
    </message>
    <message>
        <source>Script debugger detached.</source>
        <translation>Débogueur de scripts détaché.</translation>
    </message>
    <message>
        <source>Supported OpenGL Versions:</source>
        <translation>Versions d&apos;OpenGL prises en charge :</translation>
    </message>
    <message>
        <source>%1 is not evaluated: a script file may hold at most %2 MB.</source>
        <translation>%1 n’est pas évalué : un fichier de script peut contenir au plus %2 Mo.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Chargement...</translation>
    </message>
    <message>
        <source>The script was stopped.</source>
        <translation>Le script a été arrêté.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Could not open the scene %1.</source>
        <translation>Impossible d&apos;ouvrir la scène %1.</translation>
    </message>
</context>
<context>
    <name>BalloonAction</name>
    <message>
        <source>Create Balloon</source>
        <translation>Créer un ballon</translation>
    </message>
</context>
<context>
    <name>BrushAction</name>
    <message>
        <source>Create freehand shape</source>
        <translation>Créer une forme à main levée</translation>
    </message>
</context>
<context>
    <name>BrushContextWidget</name>
    <message>
        <source>Brush Size</source>
        <translation>Taille du pinceau</translation>
    </message>
</context>
<context>
    <name>BrushDialog</name>
    <message>
        <source>Select Brush</source>
        <translation>Choisir le pinceau</translation>
    </message>
    <message>
        <source>Color/Pattern</source>
        <translation>Couleur/Motif</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Choisir...</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Motif</translation>
    </message>
    <message>
        <source>No Brush</source>
        <translation>Aucun pinceau</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Plein</translation>
    </message>
    <message>
        <source>Dense1</source>
        <translation>Dense 1</translation>
    </message>
    <message>
        <source>Dense2</source>
        <translation>Dense 2</translation>
    </message>
    <message>
        <source>Dense3</source>
        <translation>Dense 3</translation>
    </message>
    <message>
        <source>Dense4</source>
        <translation>Dense 4</translation>
    </message>
    <message>
        <source>Dense5</source>
        <translation>Dense 5</translation>
    </message>
    <message>
        <source>Dense6</source>
        <translation>Dense 6</translation>
    </message>
    <message>
        <source>Dense7</source>
        <translation>Dense 7</translation>
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
        <translation>Croix</translation>
    </message>
    <message>
        <source>Backward diagonal</source>
        <translation>Diagonale arrière</translation>
    </message>
    <message>
        <source>Forward diagonal</source>
        <translation>Diagonale avant</translation>
    </message>
    <message>
        <source>Crossing diagonal</source>
        <translation>Diagonales croisées</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>Texture</translation>
    </message>
    <message>
        <source>Auto Adjust</source>
        <translation>Ajustement automatique</translation>
    </message>
    <message>
        <source>Horizontal scale</source>
        <translation>Échelle horizontale</translation>
    </message>
    <message>
        <source>Vertical scale</source>
        <translation>Échelle verticale</translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation>Décalage horizontal</translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation>Décalage vertical</translation>
    </message>
    <message>
        <source>Select Texture</source>
        <translation>Choisir la texture</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp *.gif)</source>
        <translation>Fichiers image (*.png *.jpg *.bmp *.gif)</translation>
    </message>
</context>
<context>
    <name>CameraAction</name>
    <message>
        <source>Create Camera</source>
        <translation>Créer une caméra</translation>
    </message>
</context>
<context>
    <name>CameraContextWidget</name>
    <message>
        <source>Camera Mode</source>
        <translation>Mode caméra</translation>
    </message>
    <message>
        <source>Remove All Cameras</source>
        <translation>Supprimer toutes les caméras</translation>
    </message>
    <message>
        <source>Use Default Viewport</source>
        <translation>Utiliser la vue principale</translation>
    </message>
    <message>
        <source>Create New Viewport</source>
        <translation>Créer une nouvelle vue</translation>
    </message>
</context>
<context>
    <name>CameraGraphicsView</name>
    <message>
        <source>Camera for %1</source>
        <translation>Caméra pour %1</translation>
    </message>
</context>
<context>
    <name>ChainAction</name>
    <message>
        <source>Create Chain</source>
        <translation>Créer une chaîne</translation>
    </message>
</context>
<context>
    <name>ChainContextWidget</name>
    <message>
        <source>Circle Radius</source>
        <translation>Rayon du cercle</translation>
    </message>
</context>
<context>
    <name>CircleAction</name>
    <message>
        <source>Create Circle</source>
        <translation>Créer un cercle</translation>
    </message>
    <message>
        <source>radius=%1</source>
        <translation>rayon=%1</translation>
    </message>
</context>
<context>
    <name>ColorContextWidget</name>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Choisir...</translation>
    </message>
</context>
<context>
    <name>DifferenceAction</name>
    <message>
        <source>Difference</source>
        <translation>Différence</translation>
    </message>
</context>
<context>
    <name>DistanceJointAction</name>
    <message>
        <source>Create Distance Joint</source>
        <translation>Créer une liaison de distance</translation>
    </message>
</context>
<context>
    <name>DownloadDialog</name>
    <message>
        <source>Maximum number of scenes to download</source>
        <translation>Nombre maximal de scènes à télécharger</translation>
    </message>
    <message>
        <source>Save to</source>
        <translation>Enregistrer dans</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
    </message>
    <message>
        <source>Download scenes from %1</source>
        <translation>Télécharger des scènes depuis %1</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Failed to retrieve file list from server.</source>
        <translation>Impossible d&apos;obtenir la liste des fichiers du serveur.</translation>
    </message>
</context>
<context>
    <name>DownloadProgressDialog</name>
    <message>
        <source>Scene Filename</source>
        <translation>Fichier de scène</translation>
    </message>
    <message>
        <source>Download Information</source>
        <translation>Informations de téléchargement</translation>
    </message>
    <message>
        <source>Refused: not a file of this folder.</source>
        <translation>Refusé : pas un fichier de ce dossier.</translation>
    </message>
    <message>
        <source>Download Progress</source>
        <translation>Progression du téléchargement</translation>
    </message>
    <message>
        <source>Successfully downloaded.</source>
        <translation>Téléchargé avec succès.</translation>
    </message>
    <message>
        <source>Already downloaded.</source>
        <translation>Déjà téléchargé.</translation>
    </message>
    <message>
        <source>Failed to open file for writing.</source>
        <translation>Impossible d&apos;ouvrir le fichier en écriture.</translation>
    </message>
    <message>
        <source>Refused: larger than %1 MB.</source>
        <translation>Refusé : plus de %1 Mo.</translation>
    </message>
</context>
<context>
    <name>EraseAction</name>
    <message>
        <source>Erase Item</source>
        <translation>Gommer un objet</translation>
    </message>
</context>
<context>
    <name>EraseContextWidget</name>
    <message>
        <source>Eraser Size</source>
        <translation>Taille de la gomme</translation>
    </message>
</context>
<context>
    <name>ExplodeAction</name>
    <message>
        <source>Explode Item</source>
        <translation>Faire exploser un objet</translation>
    </message>
</context>
<context>
    <name>ExplodeContextWidget</name>
    <message>
        <source>Explode Method</source>
        <translation>Méthode d&apos;explosion</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Triangulate</source>
        <translation>Découper en triangles</translation>
    </message>
    <message>
        <source>Squarify</source>
        <translation>Découper en carrés</translation>
    </message>
    <message>
        <source>Circlify</source>
        <translation>Découper en cercles</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Image Export</source>
        <translation>Export d&apos;image</translation>
    </message>
    <message>
        <source>Directory</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
    </message>
    <message>
        <source>Filename</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>(without extension)</source>
        <translation>(sans extension)</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Please enter a file name.</source>
        <translation>Veuillez saisir un nom de fichier.</translation>
    </message>
    <message>
        <source>File %1 already exists</source>
        <translation>Le fichier %1 existe déjà</translation>
    </message>
    <message>
        <source>Failed to save image</source>
        <translation>Impossible d&apos;enregistrer l&apos;image</translation>
    </message>
</context>
<context>
    <name>GearAction</name>
    <message>
        <source>Create Gear</source>
        <translation>Créer un engrenage</translation>
    </message>
</context>
<context>
    <name>GearContextWidget</name>
    <message>
        <source>Gear Tooth Size</source>
        <translation>Taille des dents</translation>
    </message>
    <message>
        <source>Gear Tooth Count Divisor</source>
        <translation>Diviseur du nombre de dents</translation>
    </message>
    <message>
        <source>Create Revolute Joint</source>
        <translation>Créer une liaison pivot</translation>
    </message>
</context>
<context>
    <name>GraphicsView</name>
    <message>
        <source>OpenGL is not available here; the view draws without it.</source>
        <translation>OpenGL n&apos;est pas disponible ici ; la vue est dessinée sans OpenGL.</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>OpenGL draws in software here (%1); the view draws without it, which is faster.</source>
        <translation>OpenGL dessine ici de manière logicielle (%1) ; la vue dessine sans lui, ce qui est plus rapide.</translation>
    </message>
</context>
<context>
    <name>GraphicsViewPropertiesWidget</name>
    <message>
        <source>Background</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Choisir...</translation>
    </message>
    <message>
        <source>Body With Camera</source>
        <translation>Corps suivi</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Échelle</translation>
    </message>
</context>
<context>
    <name>GunAction</name>
    <message>
        <source>Shoot Item</source>
        <translation>Tirer un objet</translation>
    </message>
</context>
<context>
    <name>HelpWidget</name>
    <message>
        <source>Brivane Help</source>
        <translation>Aide de Brivane</translation>
    </message>
</context>
<context>
    <name>ImageAction</name>
    <message>
        <source>Create Image</source>
        <translation>Créer depuis une image</translation>
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
        <translation>Choisir...</translation>
    </message>
    <message>
        <source>Polygon Threshold</source>
        <translation>Seuil du polygone</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>Select Image</source>
        <translation>Choisir une image</translation>
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
        <translation>Le programme contient une erreur de syntaxe.</translation>
    </message>
    <message>
        <source>The program is incomplete.</source>
        <translation>Le programme est incomplet.</translation>
    </message>
    <message>
        <source>

[Line: %1, Column: %2]</source>
        <translation>

[Ligne : %1, Colonne : %2]</translation>
    </message>
</context>
<context>
    <name>LinkContextWidget</name>
    <message>
        <source>Attach Point</source>
        <translation>Point d&apos;attache</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Premier</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Dernier</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Les deux</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>New Scene</source>
        <translation>Nouvelle scène</translation>
    </message>
    <message>
        <source>Creates a new scene</source>
        <translation>Crée une nouvelle scène</translation>
    </message>
    <message>
        <source>Save Scene</source>
        <translation>Enregistrer la scène</translation>
    </message>
    <message>
        <source>Saves current scene</source>
        <translation>Enregistre la scène actuelle</translation>
    </message>
    <message>
        <source>Save Scene As...</source>
        <translation>Enregistrer la scène sous...</translation>
    </message>
    <message>
        <source>Saves current scene as</source>
        <translation>Enregistre la scène actuelle sous un autre nom</translation>
    </message>
    <message>
        <source>Load Scene...</source>
        <translation>Charger une scène...</translation>
    </message>
    <message>
        <source>Loads a scene</source>
        <translation>Charge une scène</translation>
    </message>
    <message>
        <source>Upload Scene...</source>
        <translation>Téléverser la scène...</translation>
    </message>
    <message>
        <source>Uploads current scene to %1</source>
        <translation>Téléverse la scène actuelle vers %1</translation>
    </message>
    <message>
        <source>Download Scenes...</source>
        <translation>Télécharger des scènes...</translation>
    </message>
    <message>
        <source>Downloads scenes from %1</source>
        <translation>Télécharge des scènes depuis %1</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exporter...</translation>
    </message>
    <message>
        <source>Exports current scene as an image</source>
        <translation>Exporte la scène actuelle sous forme d&apos;image</translation>
    </message>
    <message>
        <source>Evaluate Script...</source>
        <translation>Exécuter un script...</translation>
    </message>
    <message>
        <source>Evaluates a .script file</source>
        <translation>Exécute un fichier .script</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Quits the application</source>
        <translation>Quitte l&apos;application</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Selects all items of the scene</source>
        <translation>Sélectionne tous les objets de la scène</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Zooms in</source>
        <translation>Effectue un zoom avant</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Zooms out</source>
        <translation>Effectue un zoom arrière</translation>
    </message>
    <message>
        <source>Zoom Extents</source>
        <translation>Zoom sur l&apos;ensemble</translation>
    </message>
    <message>
        <source>Zooms in or out to fit the extents of the scene</source>
        <translation>Effectue un zoom avant ou arrière pour afficher toute la scène</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>Shows all toolbars</source>
        <translation>Affiche toutes les barres d&apos;outils</translation>
    </message>
    <message>
        <source>Hide all</source>
        <translation>Tout masquer</translation>
    </message>
    <message>
        <source>Hides all toolbars</source>
        <translation>Masque toutes les barres d&apos;outils</translation>
    </message>
    <message>
        <source>Shows all dock widgets</source>
        <translation>Affiche tous les panneaux ancrables</translation>
    </message>
    <message>
        <source>Hides all dock widgets</source>
        <translation>Masque tous les panneaux ancrables</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Toggles fullscreen mode</source>
        <translation>Active ou désactive le mode plein écran</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Shows the application&apos;s help file</source>
        <translation>Affiche le fichier d&apos;aide de l&apos;application</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>À propos...</translation>
    </message>
    <message>
        <source>Shows the application&apos;s About box</source>
        <translation>Affiche la boîte « À propos » de l&apos;application</translation>
    </message>
    <message>
        <source>About Qt...</source>
        <translation>À propos de Qt...</translation>
    </message>
    <message>
        <source>Shows the Qt library&apos;s About box</source>
        <translation>Affiche la boîte « À propos » de la bibliothèque Qt</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Lecture/Pause</translation>
    </message>
    <message>
        <source>Starts/Pauses the simulation</source>
        <translation>Démarre ou met en pause la simulation</translation>
    </message>
    <message>
        <source>Select/Move</source>
        <translation>Sélectionner/Déplacer</translation>
    </message>
    <message>
        <source>Selects and/or moves an item</source>
        <translation>Sélectionne et/ou déplace un objet</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Removes an item or a selection of items from the scene</source>
        <translation>Supprime un objet ou une sélection d&apos;objets de la scène</translation>
    </message>
    <message>
        <source>Explode Item</source>
        <translation>Faire exploser un objet</translation>
    </message>
    <message>
        <source>Explodes an item</source>
        <translation>Fait exploser un objet</translation>
    </message>
    <message>
        <source>Erase Item</source>
        <translation>Gommer un objet</translation>
    </message>
    <message>
        <source>Erases parts of an item</source>
        <translation>Efface des parties d&apos;un objet</translation>
    </message>
    <message>
        <source>Create Camera</source>
        <translation>Créer une caméra</translation>
    </message>
    <message>
        <source>Creates a camera that follows an item</source>
        <translation>Crée une caméra qui suit un objet</translation>
    </message>
    <message>
        <source>Create Tracer</source>
        <translation>Créer un traceur</translation>
    </message>
    <message>
        <source>Creates a tracer that follows an item</source>
        <translation>Crée un traceur qui suit un objet</translation>
    </message>
    <message>
        <source>Shoot Item</source>
        <translation>Tirer un objet</translation>
    </message>
    <message>
        <source>Shoots an item</source>
        <translation>Tire un objet</translation>
    </message>
    <message>
        <source>Create Plot</source>
        <translation>Créer un graphique</translation>
    </message>
    <message>
        <source>Creates a plot for a given item</source>
        <translation>Crée un graphique pour un objet donné</translation>
    </message>
    <message>
        <source>Create Rectangle</source>
        <translation>Créer un rectangle</translation>
    </message>
    <message>
        <source>Creates a rectangle</source>
        <translation>Crée un rectangle</translation>
    </message>
    <message>
        <source>Create Circle</source>
        <translation>Créer un cercle</translation>
    </message>
    <message>
        <source>Creates a circle</source>
        <translation>Crée un cercle</translation>
    </message>
    <message>
        <source>Create Polygon</source>
        <translation>Créer un polygone</translation>
    </message>
    <message>
        <source>Creates a polygon</source>
        <translation>Crée un polygone</translation>
    </message>
    <message>
        <source>Create Balloon</source>
        <translation>Créer un ballon</translation>
    </message>
    <message>
        <source>Creates a balloon</source>
        <translation>Crée un ballon</translation>
    </message>
    <message>
        <source>Create freehand shape</source>
        <translation>Créer une forme à main levée</translation>
    </message>
    <message>
        <source>Freehand drawing of random shapes</source>
        <translation>Dessin à main levée de formes quelconques</translation>
    </message>
    <message>
        <source>Create Chain</source>
        <translation>Créer une chaîne</translation>
    </message>
    <message>
        <source>Creates a chain</source>
        <translation>Crée une chaîne</translation>
    </message>
    <message>
        <source>Create Rope</source>
        <translation>Créer une corde</translation>
    </message>
    <message>
        <source>Creates a rope</source>
        <translation>Crée une corde</translation>
    </message>
    <message>
        <source>Create Text</source>
        <translation>Créer un texte</translation>
    </message>
    <message>
        <source>Creates items from text</source>
        <translation>Crée des objets à partir d&apos;un texte</translation>
    </message>
    <message>
        <source>Create Gear</source>
        <translation>Créer un engrenage</translation>
    </message>
    <message>
        <source>Creates a gear</source>
        <translation>Crée un engrenage</translation>
    </message>
    <message>
        <source>Create Image</source>
        <translation>Créer depuis une image</translation>
    </message>
    <message>
        <source>Creates a shape based on the outline of a (png) image</source>
        <translation>Crée une forme d&apos;après le contour d&apos;une image (PNG)</translation>
    </message>
    <message>
        <source>Create Distance Joint</source>
        <translation>Créer une liaison de distance</translation>
    </message>
    <message>
        <source>Creates a distance joint between two items (or an item and the background)</source>
        <translation>Crée une liaison de distance entre deux objets (ou entre un objet et l&apos;arrière-plan)</translation>
    </message>
    <message>
        <source>Create Revolute Joint</source>
        <translation>Créer une liaison pivot</translation>
    </message>
    <message>
        <source>Creates a revolute joint between two items (or an item and the background)</source>
        <translation>Crée une liaison pivot entre deux objets (ou entre un objet et l&apos;arrière-plan)</translation>
    </message>
    <message>
        <source>Create Prismatic Joint</source>
        <translation>Créer une liaison glissière</translation>
    </message>
    <message>
        <source>Creates a prismatic joint between two items</source>
        <translation>Crée une liaison glissière entre deux objets</translation>
    </message>
    <message>
        <source>Create Pulley Joint</source>
        <translation>Créer une liaison poulie</translation>
    </message>
    <message>
        <source>Creates a pulley joint between two items</source>
        <translation>Crée une liaison poulie entre deux objets</translation>
    </message>
    <message>
        <source>Create Spring</source>
        <translation>Créer un ressort</translation>
    </message>
    <message>
        <source>Creates a spring between two items</source>
        <translation>Crée un ressort entre deux objets</translation>
    </message>
    <message>
        <source>Union</source>
        <translation>Union</translation>
    </message>
    <message>
        <source>Creates an item from the union of two other items</source>
        <translation>Crée un objet à partir de l&apos;union de deux autres objets</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Différence</translation>
    </message>
    <message>
        <source>Creates an item from the difference of two other items</source>
        <translation>Crée un objet à partir de la différence de deux autres objets</translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation>Intersection</translation>
    </message>
    <message>
        <source>Creates an item from the intersection of two other items</source>
        <translation>Crée un objet à partir de l&apos;intersection de deux autres objets</translation>
    </message>
    <message>
        <source>General Toolbar</source>
        <translation>Barre d&apos;outils générale</translation>
    </message>
    <message>
        <source>Bodies Toolbar</source>
        <translation>Barre d&apos;outils des corps</translation>
    </message>
    <message>
        <source>Joints Toolbar</source>
        <translation>Barre d&apos;outils des liaisons</translation>
    </message>
    <message>
        <source>Forces Toolbar</source>
        <translation>Barre d&apos;outils des forces</translation>
    </message>
    <message>
        <source>Boolean Toolbar</source>
        <translation>Barre d&apos;outils booléenne</translation>
    </message>
    <message>
        <source>Snap Toolbar</source>
        <translation>Barre d&apos;outils d&apos;aimantation</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>Console</translation>
    </message>
    <message>
        <source>Scene Properties</source>
        <translation>Propriétés de la scène</translation>
    </message>
    <message>
        <source>Property Editor</source>
        <translation>Éditeur de propriétés</translation>
    </message>
    <message>
        <source>Quick Load</source>
        <translation>Chargement rapide</translation>
    </message>
    <message>
        <source>Commands History</source>
        <translation>Historique des commandes</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Barres d&apos;outils</translation>
    </message>
    <message>
        <source>Dock Widgets</source>
        <translation>Panneaux ancrables</translation>
    </message>
    <message>
        <source>Perspectives</source>
        <translation>Perspectives</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>Action Context Toolbar</source>
        <translation>Barre d&apos;outils contextuelle de l&apos;outil</translation>
    </message>
    <message>
        <source>New file created</source>
        <translation>Nouveau fichier créé</translation>
    </message>
    <message>
        <source>File saved (%1)</source>
        <translation>Fichier enregistré (%1)</translation>
    </message>
    <message>
        <source>File loaded (%1)</source>
        <translation>Fichier chargé (%1)</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Charger</translation>
    </message>
    <message>
        <source>*.script</source>
        <translation>*.script</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Stop Script</source>
        <translation>Arrêter le script</translation>
    </message>
    <message>
        <source>Stops the script that is running (Escape)</source>
        <translation>Arrête le script en cours d&apos;exécution (Échap)</translation>
    </message>
    <message>
        <source>Upload Scene</source>
        <translation>Envoyer la scène</translation>
    </message>
    <message>
        <source>The scene needs to be saved before uploading.
Please save the scene and try again.</source>
        <translation>La scène doit être enregistrée avant l&apos;envoi.
Enregistrez la scène et réessayez.</translation>
    </message>
</context>
<context>
    <name>PhysicsWorldPropertiesWidget</name>
    <message>
        <source>Gravity</source>
        <translation>Gravité</translation>
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
        <translation>Fréquence des pas</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>Iterations</source>
        <translation>Itérations</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Warm Starting</source>
        <translation>Démarrage à chaud</translation>
    </message>
    <message>
        <source>Continuous Physics</source>
        <translation>Physique continue</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informations</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Secondes</translation>
    </message>
    <message>
        <source>Bodies</source>
        <translation>Corps</translation>
    </message>
    <message>
        <source>Joints</source>
        <translation>Liaisons</translation>
    </message>
</context>
<context>
    <name>PlayPauseAction</name>
    <message>
        <source>Play/Pause</source>
        <translation>Lecture/Pause</translation>
    </message>
</context>
<context>
    <name>PlotAction</name>
    <message>
        <source>Create Plot</source>
        <translation>Créer un graphique</translation>
    </message>
</context>
<context>
    <name>PlotWidget</name>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Accélération</translation>
    </message>
    <message>
        <source>Time (sec)</source>
        <translation>Temps (s)</translation>
    </message>
    <message>
        <source>Speed (m/sec)</source>
        <translation>Vitesse (m/s)</translation>
    </message>
</context>
<context>
    <name>PolygonAction</name>
    <message>
        <source>Create Polygon</source>
        <translation>Créer un polygone</translation>
    </message>
</context>
<context>
    <name>PolygonClipper</name>
    <message>
        <source>Clipper Failed...</source>
        <translation>Échec de Clipper...</translation>
    </message>
</context>
<context>
    <name>PrismaticJointAction</name>
    <message>
        <source>Create Prismatic Joint</source>
        <translation>Créer une liaison glissière</translation>
    </message>
</context>
<context>
    <name>PropertyDelegate</name>
    <message>
        <source>Select Color</source>
        <translation>Choisir la couleur</translation>
    </message>
</context>
<context>
    <name>PropertyEditorWidget</name>
    <message>
        <source>&lt;div align=&apos;right&apos;&gt;&lt;i&gt;&lt;font size=&apos;10px&apos;&gt;(Edit properties with double-click)&lt;/font&gt;&lt;/i&gt;&lt;/div&gt;</source>
        <translation>&lt;div align=&apos;right&apos;&gt;&lt;i&gt;&lt;font size=&apos;10px&apos;&gt;(Modifier les propriétés par double-clic)&lt;/font&gt;&lt;/i&gt;&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Pinceau</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>Specify the filter categories that %1 belongs to.</source>
        <translation>Indiquez les catégories de filtre auxquelles %1 appartient.</translation>
    </message>
    <message>
        <source>Specify the filter categories that %1 collides with.</source>
        <translation>Indiquez les catégories de filtre avec lesquelles %1 entre en collision.</translation>
    </message>
</context>
<context>
    <name>PropertyModel</name>
    <message>
        <source>Property</source>
        <translation>Propriété</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
</context>
<context>
    <name>PulleyJointAction</name>
    <message>
        <source>Create Pulley Joint</source>
        <translation>Créer une liaison poulie</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Version: %1</source>
        <translation>Version : %1</translation>
    </message>
    <message>
        <source>Made by the Brivane Project</source>
        <translation>Réalisé par le projet Brivane</translation>
    </message>
    <message>
        <source>Balloon</source>
        <translation>Ballon</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Cercle</translation>
    </message>
    <message>
        <source>Distance Joint</source>
        <translation>Liaison de distance</translation>
    </message>
    <message>
        <source>Linear Impulse</source>
        <translation>Impulsion linéaire</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polygone</translation>
    </message>
    <message>
        <source>Prismatic Joint</source>
        <translation>Liaison glissière</translation>
    </message>
    <message>
        <source>Pulley Joint</source>
        <translation>Liaison poulie</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Revolute Joint</source>
        <translation>Liaison pivot</translation>
    </message>
    <message>
        <source>Spring Force</source>
        <translation>Force de ressort</translation>
    </message>
    <message>
        <source>Gear</source>
        <translation>Engrenage</translation>
    </message>
    <message>
        <source>Union</source>
        <translation>Union</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Différence</translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation>Intersection</translation>
    </message>
    <message>
        <source>Circlify</source>
        <translation>Découper en cercles</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Not exploded: %1 pieces would be made, more than %2.</source>
        <translation>Pas d&apos;éclatement : %1 morceaux seraient créés, plus de %2.</translation>
    </message>
    <message>
        <source>Squarify</source>
        <translation>Découper en carrés</translation>
    </message>
    <message>
        <source>Triangulate</source>
        <translation>Découper en triangles</translation>
    </message>
    <message>
        <source>Chain</source>
        <translation>Chaîne</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Rope</source>
        <translation>Corde</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>A two-dimensional physics sandbox.</source>
        <translation>Un bac à sable de physique en deux dimensions.</translation>
    </message>
    <message>
        <source>A scene file to open.</source>
        <translation>Un fichier de scène à ouvrir.</translation>
    </message>
    <message>
        <source>Updates Available</source>
        <translation>Mises à jour disponibles</translation>
    </message>
    <message>
        <source>A new version of Brivane is available.
Update the application?</source>
        <translation>Une nouvelle version de Brivane est disponible.
Mettre à jour l&apos;application ?</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Failed to launch the updater.
Please run it manually using the following command:

%1/maintenancetool</source>
        <translation>Impossible de lancer le programme de mise à jour.
Lancez-le à la main avec la commande suivante :

%1/maintenancetool</translation>
    </message>
</context>
<context>
    <name>QuickLoadWidget</name>
    <message>
        <source>Icon SIze</source>
        <translation>Taille des icônes</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Ouvrir un dossier</translation>
    </message>
</context>
<context>
    <name>RectangleAction</name>
    <message>
        <source>Create Rectangle</source>
        <translation>Créer un rectangle</translation>
    </message>
    <message>
        <source>width=%1
height=%2</source>
        <translation>largeur=%1
hauteur=%2</translation>
    </message>
</context>
<context>
    <name>RemoveAction</name>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>RevoluteJointAction</name>
    <message>
        <source>Create Revolute Joint</source>
        <translation>Créer une liaison pivot</translation>
    </message>
</context>
<context>
    <name>RevoluteJointContextWidget</name>
    <message>
        <source>Radius</source>
        <translation>Rayon</translation>
    </message>
</context>
<context>
    <name>RopeAction</name>
    <message>
        <source>Create Rope</source>
        <translation>Créer une corde</translation>
    </message>
</context>
<context>
    <name>RopeContextWidget</name>
    <message>
        <source>Rectangle Width</source>
        <translation>Largeur du rectangle</translation>
    </message>
</context>
<context>
    <name>ScenePropertiesWidget</name>
    <message>
        <source>Physics World</source>
        <translation>Monde physique</translation>
    </message>
    <message>
        <source>Graphics View</source>
        <translation>Vue</translation>
    </message>
</context>
<context>
    <name>SelectAction</name>
    <message>
        <source>Select/Move</source>
        <translation>Sélectionner/Déplacer</translation>
    </message>
</context>
<context>
    <name>SettingsWidget</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>Graphisme</translation>
    </message>
    <message>
        <source>Use OpenGL</source>
        <translation>Utiliser OpenGL</translation>
    </message>
    <message>
        <source>Antialiasing</source>
        <translation>Anticrénelage</translation>
    </message>
    <message>
        <source>Physics</source>
        <translation>Physique</translation>
    </message>
    <message>
        <source>Timer Interval</source>
        <translation>Intervalle du minuteur</translation>
    </message>
    <message>
        <source>Bodies Defaults</source>
        <translation>Valeurs par défaut des corps</translation>
    </message>
    <message>
        <source>Linear Damping</source>
        <translation>Amortissement linéaire</translation>
    </message>
    <message>
        <source>Angular Damping</source>
        <translation>Amortissement angulaire</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Frottement</translation>
    </message>
    <message>
        <source>Restitution</source>
        <translation>Restitution</translation>
    </message>
    <message>
        <source>Allow Sleep</source>
        <translation>Autoriser le repos</translation>
    </message>
    <message>
        <source>Is Bullet</source>
        <translation>Est un projectile</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>GUI Style</source>
        <translation>Style de l&apos;interface</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Create ground on start-up</source>
        <translation>Créer le sol au démarrage</translation>
    </message>
    <message>
        <source>Show scale indicator</source>
        <translation>Afficher l&apos;échelle</translation>
    </message>
    <message>
        <source>Show tips at start-up</source>
        <translation>Afficher les astuces au démarrage</translation>
    </message>
    <message>
        <source>Attach script debugger</source>
        <translation>Attacher le débogueur de scripts</translation>
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
        <translation>Aimanter à la grille (F9)</translation>
    </message>
    <message>
        <source>Snaps to grid</source>
        <translation>Aimante à la grille</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Taille :</translation>
    </message>
    <message>
        <source>Snap To Objects (F10)</source>
        <translation>Aimanter aux objets (F10)</translation>
    </message>
    <message>
        <source>Snaps to objects</source>
        <translation>Aimante aux objets</translation>
    </message>
    <message>
        <source>Distance:</source>
        <translation>Distance :</translation>
    </message>
</context>
<context>
    <name>SocialDialog</name>
    <message>
        <source>%1 is a &lt;b&gt;free software&lt;/b&gt;. Please &lt;b&gt;support it&lt;/b&gt; by submitting it to your favourite social networking sites using the buttons below.</source>
        <translation>%1 est un &lt;b&gt;logiciel libre&lt;/b&gt;. &lt;b&gt;Soutenez-le&lt;/b&gt; en le partageant sur vos réseaux sociaux préférés avec les boutons ci-dessous.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Please Support %1</source>
        <translation>Soutenez %1</translation>
    </message>
</context>
<context>
    <name>SpringForceAction</name>
    <message>
        <source>Create Spring</source>
        <translation>Créer un ressort</translation>
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
        <translation>Amortissement</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>&lt;B&gt;FPS&lt;/B&gt;: %1</source>
        <translation>&lt;B&gt;FPS&lt;/B&gt; : %1</translation>
    </message>
    <message>
        <source>&lt;B&gt;X&lt;/B&gt;: %1</source>
        <translation>&lt;B&gt;X&lt;/B&gt; : %1</translation>
    </message>
    <message>
        <source>&lt;B&gt;Y&lt;/B&gt;: %1</source>
        <translation>&lt;B&gt;Y&lt;/B&gt; : %1</translation>
    </message>
</context>
<context>
    <name>TextAction</name>
    <message>
        <source>Create Text</source>
        <translation>Créer un texte</translation>
    </message>
</context>
<context>
    <name>TextContextWidget</name>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Font Family</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Font Size</source>
        <translation>Taille de police</translation>
    </message>
</context>
<context>
    <name>TipDialog</name>
    <message>
        <source>Tip of the Day</source>
        <translation>Astuce du jour</translation>
    </message>
    <message>
        <source>Show tip at startup</source>
        <translation>Afficher l&apos;astuce au démarrage</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Précédente</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivante</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>You could &lt;B&gt;improve rendering performance&lt;/B&gt; by enabling OpenGL in settings.</source>
        <translation>Vous pouvez &lt;B&gt;accélérer l&apos;affichage&lt;/B&gt; en activant OpenGL dans les réglages.</translation>
    </message>
    <message>
        <source>You can show and hide the Property Editor using Shift+P.</source>
        <translation>Vous pouvez afficher et masquer l&apos;éditeur de propriétés avec Maj+P.</translation>
    </message>
    <message>
        <source>You can show and hide the Console using Shift+~.</source>
        <translation>Vous pouvez afficher et masquer la console avec Maj+~.</translation>
    </message>
    <message>
        <source>You can switch between &lt;B&gt;perspectives&lt;/B&gt; using &lt;I&gt;Alt + 1 .. 4&lt;/I&gt;.</source>
        <translation>Vous pouvez changer de &lt;B&gt;perspective&lt;/B&gt; avec &lt;I&gt;Alt + 1 .. 4&lt;/I&gt;.</translation>
    </message>
    <message>
        <source>&lt;B&gt;Download&lt;/B&gt; scenes that other people have created by selecting &lt;I&gt;File::Download&lt;/I&gt; from the menu bar.</source>
        <translation>&lt;B&gt;Téléchargez&lt;/B&gt; les scènes créées par d&apos;autres avec &lt;I&gt;Fichier::Télécharger&lt;/I&gt; dans la barre de menus.</translation>
    </message>
    <message>
        <source>You can &lt;B&gt;upload&lt;/B&gt; your scene to &lt;A HREF=&apos;%1&apos;&gt;%2&lt;/A&gt; by selecting &lt;I&gt;File::Upload&lt;/I&gt; from the menu bar.</source>
        <translation>Vous pouvez &lt;B&gt;envoyer&lt;/B&gt; votre scène sur &lt;A HREF=&apos;%1&apos;&gt;%2&lt;/A&gt; avec &lt;I&gt;Fichier::Envoyer&lt;/I&gt; dans la barre de menus.</translation>
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
        <translation>Essentiel</translation>
    </message>
    <message>
        <source>Upload As</source>
        <translation>Envoyer en tant que</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Optional</source>
        <translation>Facultatif</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Mots-clés</translation>
    </message>
    <message>
        <source>Uploading: %p%</source>
        <translation>Envoi : %p%</translation>
    </message>
    <message>
        <source>Bug Report</source>
        <translation>Rapport de bogue</translation>
    </message>
    <message>
        <source>Educational</source>
        <translation>Éducatif</translation>
    </message>
    <message>
        <source>Mechanisms</source>
        <translation>Mécanismes</translation>
    </message>
    <message>
        <source>Ragdolls</source>
        <translation>Pantins</translation>
    </message>
    <message>
        <source>Vehicles</source>
        <translation>Véhicules</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Anonymous User</source>
        <translation>Utilisateur anonyme</translation>
    </message>
    <message>
        <source>Registered User</source>
        <translation>Utilisateur inscrit</translation>
    </message>
    <message>
        <source>If you don&apos;t already have an account, you can create one &lt;a href=&apos;%1&apos;&gt;here&lt;/a&gt;</source>
        <translation>Si vous n&apos;avez pas encore de compte, vous pouvez en créer un &lt;a href=&apos;%1&apos;&gt;ici&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Upload %1</source>
        <translation>Envoyer %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Please fill in username and password</source>
        <translation>Veuillez saisir le nom d&apos;utilisateur et le mot de passe</translation>
    </message>
    <message>
        <source>Bad reply from server</source>
        <translation>Réponse invalide du serveur</translation>
    </message>
    <message>
        <source>Could not reach the scene repository: %1</source>
        <translation>Impossible de joindre le dépôt de scènes : %1</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Succès</translation>
    </message>
    <message>
        <source>Your scene has been successfully uploaded &lt;a href=&apos;%1&apos;&gt;here&lt;/a&gt;.</source>
        <translation>Votre scène a bien été envoyée &lt;a href=&apos;%1&apos;&gt;ici&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>The server replied with the following message:
%1</source>
        <translation>Le serveur a répondu par le message suivant :
%1</translation>
    </message>
</context>
<context>
    <name>XMLReader</name>
    <message>
        <source>Trying to load a scene which was created with another version of the application. </source>
        <translation>Chargement d&apos;une scène créée avec une autre version de l&apos;application. </translation>
    </message>
    <message>
        <source>(Scene version: %1 Application version: %2)</source>
        <translation>(Version de la scène : %1, version de l&apos;application : %2)</translation>
    </message>
</context>
<context>
    <name>XPolygonF</name>
    <message>
        <source>Skipped %1 triangles</source>
        <translation>Triangles ignorés : %1</translation>
    </message>
</context>
</TS>
