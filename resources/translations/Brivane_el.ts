<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="el_GR">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Σχετικά</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Συντελεστές</translation>
    </message>
    <message>
        <source>ChangeLog</source>
        <translation>Αλλαγές</translation>
    </message>
    <message>
        <source>About </source>
        <translation>Σχετικά με </translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Could not remove temp directory.</source>
        <translation>Δεν ήταν δυνατή η διαγραφή του προσωρινού φακέλου.</translation>
    </message>
    <message>
        <source>Could not create temp directory.</source>
        <translation>Δεν ήταν δυνατή η δημιουργία του προσωρινού φακέλου.</translation>
    </message>
    <message>
        <source>Could not set language: Unknown language: %1</source>
        <translation>Δεν ήταν δυνατός ο ορισμός της γλώσσας: Άγνωστη γλώσσα: %1</translation>
    </message>
    <message>
        <source>%1 has been successfully loaded.</source>
        <translation>Το %1 φορτώθηκε με επιτυχία.</translation>
    </message>
    <message>
        <source>%1 failed to load.</source>
        <translation>Αποτυχία φόρτωσης του %1.</translation>
    </message>
    <message>
        <source>Script debugger attached.</source>
        <translation>Ο αποσφαλματωτής σεναρίων συνδέθηκε.</translation>
    </message>
    <message>
        <source>Script debugger detached.</source>
        <translation>Ο αποσφαλματωτής σεναρίων αποσυνδέθηκε.</translation>
    </message>
    <message>
        <source>Supported OpenGL Versions:</source>
        <translation>Υποστηριζόμενες εκδόσεις OpenGL:</translation>
    </message>
    <message>
        <source>%1 is not evaluated: a script file may hold at most %2 MB.</source>
        <translation>Το %1 δεν εκτελείται: ένα αρχείο σεναρίου μπορεί να έχει το πολύ %2 MB.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Φόρτωση...</translation>
    </message>
    <message>
        <source>The script was stopped.</source>
        <translation>Το σενάριο σταμάτησε.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Σφάλμα</translation>
    </message>
    <message>
        <source>Could not open the scene %1.</source>
        <translation>Δεν ήταν δυνατό το άνοιγμα της σκηνής %1.</translation>
    </message>
</context>
<context>
    <name>BalloonAction</name>
    <message>
        <source>Create Balloon</source>
        <translation>Δημιουργία μπαλονιού</translation>
    </message>
</context>
<context>
    <name>BrushAction</name>
    <message>
        <source>Create freehand shape</source>
        <translation>Δημιουργία ελεύθερου σχήματος</translation>
    </message>
</context>
<context>
    <name>BrushContextWidget</name>
    <message>
        <source>Brush Size</source>
        <translation>Μέγεθος πινέλου</translation>
    </message>
</context>
<context>
    <name>BrushDialog</name>
    <message>
        <source>Select Brush</source>
        <translation>Επιλογή πινέλου</translation>
    </message>
    <message>
        <source>Color/Pattern</source>
        <translation>Χρώμα/Μοτίβο</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Χρώμα</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Επιλογή...</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Μοτίβο</translation>
    </message>
    <message>
        <source>No Brush</source>
        <translation>Χωρίς πινέλο</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Συμπαγές</translation>
    </message>
    <message>
        <source>Dense1</source>
        <translation>Πυκνό 1</translation>
    </message>
    <message>
        <source>Dense2</source>
        <translation>Πυκνό 2</translation>
    </message>
    <message>
        <source>Dense3</source>
        <translation>Πυκνό 3</translation>
    </message>
    <message>
        <source>Dense4</source>
        <translation>Πυκνό 4</translation>
    </message>
    <message>
        <source>Dense5</source>
        <translation>Πυκνό 5</translation>
    </message>
    <message>
        <source>Dense6</source>
        <translation>Πυκνό 6</translation>
    </message>
    <message>
        <source>Dense7</source>
        <translation>Πυκνό 7</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Οριζόντιο</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Κατακόρυφο</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>Σταυρός</translation>
    </message>
    <message>
        <source>Backward diagonal</source>
        <translation>Διαγώνια προς τα πίσω</translation>
    </message>
    <message>
        <source>Forward diagonal</source>
        <translation>Διαγώνια προς τα εμπρός</translation>
    </message>
    <message>
        <source>Crossing diagonal</source>
        <translation>Διασταυρούμενες διαγώνιες</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>Υφή</translation>
    </message>
    <message>
        <source>Auto Adjust</source>
        <translation>Αυτόματη προσαρμογή</translation>
    </message>
    <message>
        <source>Horizontal scale</source>
        <translation>Οριζόντια κλίμακα</translation>
    </message>
    <message>
        <source>Vertical scale</source>
        <translation>Κατακόρυφη κλίμακα</translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation>Οριζόντια μετατόπιση</translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation>Κατακόρυφη μετατόπιση</translation>
    </message>
    <message>
        <source>Select Texture</source>
        <translation>Επιλογή υφής</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp *.gif)</source>
        <translation>Αρχεία εικόνας (*.png *.jpg *.bmp *.gif)</translation>
    </message>
</context>
<context>
    <name>CameraAction</name>
    <message>
        <source>Create Camera</source>
        <translation>Δημιουργία κάμερας</translation>
    </message>
</context>
<context>
    <name>CameraContextWidget</name>
    <message>
        <source>Camera Mode</source>
        <translation>Λειτουργία κάμερας</translation>
    </message>
    <message>
        <source>Remove All Cameras</source>
        <translation>Αφαίρεση όλων των καμερών</translation>
    </message>
    <message>
        <source>Use Default Viewport</source>
        <translation>Χρήση κύριας προβολής</translation>
    </message>
    <message>
        <source>Create New Viewport</source>
        <translation>Δημιουργία νέας προβολής</translation>
    </message>
</context>
<context>
    <name>CameraGraphicsView</name>
    <message>
        <source>Camera for %1</source>
        <translation>Κάμερα για %1</translation>
    </message>
</context>
<context>
    <name>ChainAction</name>
    <message>
        <source>Create Chain</source>
        <translation>Δημιουργία αλυσίδας</translation>
    </message>
</context>
<context>
    <name>ChainContextWidget</name>
    <message>
        <source>Circle Radius</source>
        <translation>Ακτίνα κύκλου</translation>
    </message>
</context>
<context>
    <name>CircleAction</name>
    <message>
        <source>Create Circle</source>
        <translation>Δημιουργία κύκλου</translation>
    </message>
    <message>
        <source>radius=%1</source>
        <translation>ακτίνα=%1</translation>
    </message>
</context>
<context>
    <name>ColorContextWidget</name>
    <message>
        <source>Color</source>
        <translation>Χρώμα</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Επιλογή...</translation>
    </message>
</context>
<context>
    <name>DifferenceAction</name>
    <message>
        <source>Difference</source>
        <translation>Διαφορά</translation>
    </message>
</context>
<context>
    <name>DistanceJointAction</name>
    <message>
        <source>Create Distance Joint</source>
        <translation>Δημιουργία άρθρωσης απόστασης</translation>
    </message>
</context>
<context>
    <name>DownloadDialog</name>
    <message>
        <source>Maximum number of scenes to download</source>
        <translation>Μέγιστος αριθμός σκηνών για λήψη</translation>
    </message>
    <message>
        <source>Save to</source>
        <translation>Αποθήκευση σε</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Αναζήτηση...</translation>
    </message>
    <message>
        <source>Download scenes from %1</source>
        <translation>Λήψη σκηνών από %1</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>Επιλογή φακέλου</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Σφάλμα</translation>
    </message>
    <message>
        <source>Failed to retrieve file list from server.</source>
        <translation>Αποτυχία λήψης της λίστας αρχείων από τον διακομιστή.</translation>
    </message>
</context>
<context>
    <name>DownloadProgressDialog</name>
    <message>
        <source>Scene Filename</source>
        <translation>Αρχείο σκηνής</translation>
    </message>
    <message>
        <source>Download Information</source>
        <translation>Πληροφορίες λήψης</translation>
    </message>
    <message>
        <source>Refused: not a file of this folder.</source>
        <translation>Απορρίφθηκε: δεν είναι αρχείο αυτού του φακέλου.</translation>
    </message>
    <message>
        <source>Download Progress</source>
        <translation>Πρόοδος λήψης</translation>
    </message>
    <message>
        <source>Successfully downloaded.</source>
        <translation>Η λήψη ολοκληρώθηκε.</translation>
    </message>
    <message>
        <source>Already downloaded.</source>
        <translation>Έχει ήδη ληφθεί.</translation>
    </message>
    <message>
        <source>Failed to open file for writing.</source>
        <translation>Αποτυχία ανοίγματος αρχείου για εγγραφή.</translation>
    </message>
    <message>
        <source>Refused: larger than %1 MB.</source>
        <translation>Απορρίφθηκε: μεγαλύτερο από %1 MB.</translation>
    </message>
</context>
<context>
    <name>EraseAction</name>
    <message>
        <source>Erase Item</source>
        <translation>Σβήσιμο αντικειμένου</translation>
    </message>
</context>
<context>
    <name>EraseContextWidget</name>
    <message>
        <source>Eraser Size</source>
        <translation>Μέγεθος γόμας</translation>
    </message>
</context>
<context>
    <name>ExplodeAction</name>
    <message>
        <source>Explode Item</source>
        <translation>Έκρηξη αντικειμένου</translation>
    </message>
</context>
<context>
    <name>ExplodeContextWidget</name>
    <message>
        <source>Explode Method</source>
        <translation>Μέθοδος διάσπασης</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Μέγεθος</translation>
    </message>
    <message>
        <source>Triangulate</source>
        <translation>Σε τρίγωνα</translation>
    </message>
    <message>
        <source>Squarify</source>
        <translation>Σε τετράγωνα</translation>
    </message>
    <message>
        <source>Circlify</source>
        <translation>Σε κύκλους</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>Εξαγωγή</translation>
    </message>
    <message>
        <source>Image Export</source>
        <translation>Εξαγωγή εικόνας</translation>
    </message>
    <message>
        <source>Directory</source>
        <translation>Φάκελος</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Αναζήτηση...</translation>
    </message>
    <message>
        <source>Filename</source>
        <translation>Όνομα αρχείου</translation>
    </message>
    <message>
        <source>(without extension)</source>
        <translation>(χωρίς επέκταση)</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Πλάτος</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Ύψος</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Μορφή</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Ποιότητα</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>Επιλογή φακέλου</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Σφάλμα</translation>
    </message>
    <message>
        <source>Please enter a file name.</source>
        <translation>Εισαγάγετε όνομα αρχείου.</translation>
    </message>
    <message>
        <source>File %1 already exists</source>
        <translation>Το αρχείο %1 υπάρχει ήδη</translation>
    </message>
    <message>
        <source>Failed to save image</source>
        <translation>Η αποθήκευση της εικόνας απέτυχε</translation>
    </message>
</context>
<context>
    <name>GearAction</name>
    <message>
        <source>Create Gear</source>
        <translation>Δημιουργία γραναζιού</translation>
    </message>
</context>
<context>
    <name>GearContextWidget</name>
    <message>
        <source>Gear Tooth Size</source>
        <translation>Μέγεθος δοντιού</translation>
    </message>
    <message>
        <source>Gear Tooth Count Divisor</source>
        <translation>Διαιρέτης πλήθους δοντιών</translation>
    </message>
    <message>
        <source>Create Revolute Joint</source>
        <translation>Δημιουργία περιστροφικής άρθρωσης</translation>
    </message>
</context>
<context>
    <name>GraphicsView</name>
    <message>
        <source>OpenGL is not available here; the view draws without it.</source>
        <translation>Το OpenGL δεν είναι διαθέσιμο εδώ· η προβολή σχεδιάζεται χωρίς αυτό.</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>OpenGL draws in software here (%1); the view draws without it, which is faster.</source>
        <translation>Το OpenGL σχεδιάζει εδώ με λογισμικό (%1)· η προβολή σχεδιάζει χωρίς αυτό, κάτι που είναι ταχύτερο.</translation>
    </message>
</context>
<context>
    <name>GraphicsViewPropertiesWidget</name>
    <message>
        <source>Background</source>
        <translation>Φόντο</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Επιλογή...</translation>
    </message>
    <message>
        <source>Body With Camera</source>
        <translation>Σώμα με κάμερα</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Κλίμακα</translation>
    </message>
</context>
<context>
    <name>GunAction</name>
    <message>
        <source>Shoot Item</source>
        <translation>Εκτόξευση αντικειμένου</translation>
    </message>
</context>
<context>
    <name>HelpWidget</name>
    <message>
        <source>Brivane Help</source>
        <translation>Βοήθεια Brivane</translation>
    </message>
</context>
<context>
    <name>ImageAction</name>
    <message>
        <source>Create Image</source>
        <translation>Δημιουργία από εικόνα</translation>
    </message>
</context>
<context>
    <name>ImageContextWidget</name>
    <message>
        <source>Image</source>
        <translation>Εικόνα</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Επιλογή...</translation>
    </message>
    <message>
        <source>Polygon Threshold</source>
        <translation>Κατώφλι πολυγώνου</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Κλίμακα</translation>
    </message>
    <message>
        <source>Select Image</source>
        <translation>Επιλογή εικόνας</translation>
    </message>
    <message>
        <source>Images (*.png *.xpm *.jpg)</source>
        <translation>Εικόνες (*.png *.xpm *.jpg)</translation>
    </message>
</context>
<context>
    <name>IntersectionAction</name>
    <message>
        <source>Intersection</source>
        <translation>Τομή</translation>
    </message>
</context>
<context>
    <name>JSDialog</name>
    <message>
        <source>The program contains a syntax error.</source>
        <translation>Το πρόγραμμα περιέχει συντακτικό σφάλμα.</translation>
    </message>
    <message>
        <source>The program is incomplete.</source>
        <translation>Το πρόγραμμα είναι ημιτελές.</translation>
    </message>
    <message>
        <source>

[Line: %1, Column: %2]</source>
        <translation>

[Γραμμή: %1, Στήλη: %2]</translation>
    </message>
</context>
<context>
    <name>LinkContextWidget</name>
    <message>
        <source>Attach Point</source>
        <translation>Σημείο στερέωσης</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Αρχή</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Τέλος</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Κανένα</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Και τα δύο</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>New Scene</source>
        <translation>Νέα σκηνή</translation>
    </message>
    <message>
        <source>Creates a new scene</source>
        <translation>Δημιουργεί μια νέα σκηνή</translation>
    </message>
    <message>
        <source>Save Scene</source>
        <translation>Αποθήκευση σκηνής</translation>
    </message>
    <message>
        <source>Saves current scene</source>
        <translation>Αποθηκεύει την τρέχουσα σκηνή</translation>
    </message>
    <message>
        <source>Save Scene As...</source>
        <translation>Αποθήκευση σκηνής ως...</translation>
    </message>
    <message>
        <source>Saves current scene as</source>
        <translation>Αποθηκεύει την τρέχουσα σκηνή με άλλο όνομα</translation>
    </message>
    <message>
        <source>Load Scene...</source>
        <translation>Φόρτωση σκηνής...</translation>
    </message>
    <message>
        <source>Loads a scene</source>
        <translation>Φορτώνει μια σκηνή</translation>
    </message>
    <message>
        <source>Upload Scene...</source>
        <translation>Αποστολή σκηνής...</translation>
    </message>
    <message>
        <source>Uploads current scene to %1</source>
        <translation>Ανεβάζει την τρέχουσα σκηνή στο %1</translation>
    </message>
    <message>
        <source>Download Scenes...</source>
        <translation>Λήψη σκηνών...</translation>
    </message>
    <message>
        <source>Downloads scenes from %1</source>
        <translation>Κατεβάζει σκηνές από το %1</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Εξαγωγή...</translation>
    </message>
    <message>
        <source>Exports current scene as an image</source>
        <translation>Εξάγει την τρέχουσα σκηνή ως εικόνα</translation>
    </message>
    <message>
        <source>Evaluate Script...</source>
        <translation>Εκτέλεση σεναρίου...</translation>
    </message>
    <message>
        <source>Evaluates a .script file</source>
        <translation>Εκτελεί ένα αρχείο .script</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Έξοδος</translation>
    </message>
    <message>
        <source>Quits the application</source>
        <translation>Τερματίζει την εφαρμογή</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Αναίρεση</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Επανάληψη</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Επιλογή όλων</translation>
    </message>
    <message>
        <source>Selects all items of the scene</source>
        <translation>Επιλέγει όλα τα αντικείμενα της σκηνής</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Μεγέθυνση</translation>
    </message>
    <message>
        <source>Zooms in</source>
        <translation>Μεγεθύνει την προβολή</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Σμίκρυνση</translation>
    </message>
    <message>
        <source>Zooms out</source>
        <translation>Σμικρύνει την προβολή</translation>
    </message>
    <message>
        <source>Zoom Extents</source>
        <translation>Προσαρμογή στη σκηνή</translation>
    </message>
    <message>
        <source>Zooms in or out to fit the extents of the scene</source>
        <translation>Μεγεθύνει ή σμικρύνει την προβολή ώστε να χωρά ολόκληρη η σκηνή</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Εμφάνιση όλων</translation>
    </message>
    <message>
        <source>Shows all toolbars</source>
        <translation>Εμφανίζει όλες τις γραμμές εργαλείων</translation>
    </message>
    <message>
        <source>Hide all</source>
        <translation>Απόκρυψη όλων</translation>
    </message>
    <message>
        <source>Hides all toolbars</source>
        <translation>Αποκρύπτει όλες τις γραμμές εργαλείων</translation>
    </message>
    <message>
        <source>Shows all dock widgets</source>
        <translation>Εμφανίζει όλα τα προσαρτώμενα παράθυρα</translation>
    </message>
    <message>
        <source>Hides all dock widgets</source>
        <translation>Αποκρύπτει όλα τα προσαρτώμενα παράθυρα</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Πλήρης οθόνη</translation>
    </message>
    <message>
        <source>Toggles fullscreen mode</source>
        <translation>Ενεργοποιεί ή απενεργοποιεί τη λειτουργία πλήρους οθόνης</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Βοήθεια</translation>
    </message>
    <message>
        <source>Shows the application&apos;s help file</source>
        <translation>Εμφανίζει το αρχείο βοήθειας της εφαρμογής</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>Σχετικά...</translation>
    </message>
    <message>
        <source>Shows the application&apos;s About box</source>
        <translation>Εμφανίζει το πλαίσιο «Σχετικά» της εφαρμογής</translation>
    </message>
    <message>
        <source>About Qt...</source>
        <translation>Σχετικά με το Qt...</translation>
    </message>
    <message>
        <source>Shows the Qt library&apos;s About box</source>
        <translation>Εμφανίζει το πλαίσιο «Σχετικά» της βιβλιοθήκης Qt</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Έναρξη/Παύση</translation>
    </message>
    <message>
        <source>Starts/Pauses the simulation</source>
        <translation>Ξεκινά ή θέτει σε παύση την προσομοίωση</translation>
    </message>
    <message>
        <source>Select/Move</source>
        <translation>Επιλογή/Μετακίνηση</translation>
    </message>
    <message>
        <source>Selects and/or moves an item</source>
        <translation>Επιλέγει ή/και μετακινεί ένα αντικείμενο</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Αφαίρεση</translation>
    </message>
    <message>
        <source>Removes an item or a selection of items from the scene</source>
        <translation>Αφαιρεί ένα αντικείμενο ή μια επιλογή αντικειμένων από τη σκηνή</translation>
    </message>
    <message>
        <source>Explode Item</source>
        <translation>Έκρηξη αντικειμένου</translation>
    </message>
    <message>
        <source>Explodes an item</source>
        <translation>Προκαλεί την έκρηξη ενός αντικειμένου</translation>
    </message>
    <message>
        <source>Erase Item</source>
        <translation>Σβήσιμο αντικειμένου</translation>
    </message>
    <message>
        <source>Erases parts of an item</source>
        <translation>Σβήνει τμήματα ενός αντικειμένου</translation>
    </message>
    <message>
        <source>Create Camera</source>
        <translation>Δημιουργία κάμερας</translation>
    </message>
    <message>
        <source>Creates a camera that follows an item</source>
        <translation>Δημιουργεί μια κάμερα που ακολουθεί ένα αντικείμενο</translation>
    </message>
    <message>
        <source>Create Tracer</source>
        <translation>Δημιουργία ιχνηλάτη</translation>
    </message>
    <message>
        <source>Creates a tracer that follows an item</source>
        <translation>Δημιουργεί έναν ιχνηλάτη που ακολουθεί ένα αντικείμενο</translation>
    </message>
    <message>
        <source>Shoot Item</source>
        <translation>Εκτόξευση αντικειμένου</translation>
    </message>
    <message>
        <source>Shoots an item</source>
        <translation>Εκτοξεύει ένα αντικείμενο</translation>
    </message>
    <message>
        <source>Create Plot</source>
        <translation>Δημιουργία γραφήματος</translation>
    </message>
    <message>
        <source>Creates a plot for a given item</source>
        <translation>Δημιουργεί ένα γράφημα για ένα συγκεκριμένο αντικείμενο</translation>
    </message>
    <message>
        <source>Create Rectangle</source>
        <translation>Δημιουργία ορθογωνίου</translation>
    </message>
    <message>
        <source>Creates a rectangle</source>
        <translation>Δημιουργεί ένα ορθογώνιο</translation>
    </message>
    <message>
        <source>Create Circle</source>
        <translation>Δημιουργία κύκλου</translation>
    </message>
    <message>
        <source>Creates a circle</source>
        <translation>Δημιουργεί έναν κύκλο</translation>
    </message>
    <message>
        <source>Create Polygon</source>
        <translation>Δημιουργία πολυγώνου</translation>
    </message>
    <message>
        <source>Creates a polygon</source>
        <translation>Δημιουργεί ένα πολύγωνο</translation>
    </message>
    <message>
        <source>Create Balloon</source>
        <translation>Δημιουργία μπαλονιού</translation>
    </message>
    <message>
        <source>Creates a balloon</source>
        <translation>Δημιουργεί ένα μπαλόνι</translation>
    </message>
    <message>
        <source>Create freehand shape</source>
        <translation>Δημιουργία ελεύθερου σχήματος</translation>
    </message>
    <message>
        <source>Freehand drawing of random shapes</source>
        <translation>Ελεύθερη σχεδίαση τυχαίων σχημάτων</translation>
    </message>
    <message>
        <source>Create Chain</source>
        <translation>Δημιουργία αλυσίδας</translation>
    </message>
    <message>
        <source>Creates a chain</source>
        <translation>Δημιουργεί μια αλυσίδα</translation>
    </message>
    <message>
        <source>Create Rope</source>
        <translation>Δημιουργία σχοινιού</translation>
    </message>
    <message>
        <source>Creates a rope</source>
        <translation>Δημιουργεί ένα σχοινί</translation>
    </message>
    <message>
        <source>Create Text</source>
        <translation>Δημιουργία κειμένου</translation>
    </message>
    <message>
        <source>Creates items from text</source>
        <translation>Δημιουργεί αντικείμενα από κείμενο</translation>
    </message>
    <message>
        <source>Create Gear</source>
        <translation>Δημιουργία γραναζιού</translation>
    </message>
    <message>
        <source>Creates a gear</source>
        <translation>Δημιουργεί ένα γρανάζι</translation>
    </message>
    <message>
        <source>Create Image</source>
        <translation>Δημιουργία από εικόνα</translation>
    </message>
    <message>
        <source>Creates a shape based on the outline of a (png) image</source>
        <translation>Δημιουργεί ένα σχήμα με βάση το περίγραμμα μιας εικόνας (PNG)</translation>
    </message>
    <message>
        <source>Create Distance Joint</source>
        <translation>Δημιουργία άρθρωσης απόστασης</translation>
    </message>
    <message>
        <source>Creates a distance joint between two items (or an item and the background)</source>
        <translation>Δημιουργεί μια άρθρωση απόστασης μεταξύ δύο αντικειμένων (ή ενός αντικειμένου και του φόντου)</translation>
    </message>
    <message>
        <source>Create Revolute Joint</source>
        <translation>Δημιουργία περιστροφικής άρθρωσης</translation>
    </message>
    <message>
        <source>Creates a revolute joint between two items (or an item and the background)</source>
        <translation>Δημιουργεί μια περιστροφική άρθρωση μεταξύ δύο αντικειμένων (ή ενός αντικειμένου και του φόντου)</translation>
    </message>
    <message>
        <source>Create Prismatic Joint</source>
        <translation>Δημιουργία πρισματικής άρθρωσης</translation>
    </message>
    <message>
        <source>Creates a prismatic joint between two items</source>
        <translation>Δημιουργεί μια πρισματική άρθρωση μεταξύ δύο αντικειμένων</translation>
    </message>
    <message>
        <source>Create Pulley Joint</source>
        <translation>Δημιουργία άρθρωσης τροχαλίας</translation>
    </message>
    <message>
        <source>Creates a pulley joint between two items</source>
        <translation>Δημιουργεί μια άρθρωση τροχαλίας μεταξύ δύο αντικειμένων</translation>
    </message>
    <message>
        <source>Create Spring</source>
        <translation>Δημιουργία ελατηρίου</translation>
    </message>
    <message>
        <source>Creates a spring between two items</source>
        <translation>Δημιουργεί ένα ελατήριο μεταξύ δύο αντικειμένων</translation>
    </message>
    <message>
        <source>Union</source>
        <translation>Ένωση</translation>
    </message>
    <message>
        <source>Creates an item from the union of two other items</source>
        <translation>Δημιουργεί ένα αντικείμενο από την ένωση δύο άλλων αντικειμένων</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Διαφορά</translation>
    </message>
    <message>
        <source>Creates an item from the difference of two other items</source>
        <translation>Δημιουργεί ένα αντικείμενο από τη διαφορά δύο άλλων αντικειμένων</translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation>Τομή</translation>
    </message>
    <message>
        <source>Creates an item from the intersection of two other items</source>
        <translation>Δημιουργεί ένα αντικείμενο από την τομή δύο άλλων αντικειμένων</translation>
    </message>
    <message>
        <source>General Toolbar</source>
        <translation>Γενική γραμμή εργαλείων</translation>
    </message>
    <message>
        <source>Bodies Toolbar</source>
        <translation>Γραμμή εργαλείων σωμάτων</translation>
    </message>
    <message>
        <source>Joints Toolbar</source>
        <translation>Γραμμή εργαλείων αρθρώσεων</translation>
    </message>
    <message>
        <source>Forces Toolbar</source>
        <translation>Γραμμή εργαλείων δυνάμεων</translation>
    </message>
    <message>
        <source>Boolean Toolbar</source>
        <translation>Γραμμή εργαλείων λογικών πράξεων</translation>
    </message>
    <message>
        <source>Snap Toolbar</source>
        <translation>Γραμμή εργαλείων προσκόλλησης</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ρυθμίσεις</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>Κονσόλα</translation>
    </message>
    <message>
        <source>Scene Properties</source>
        <translation>Ιδιότητες σκηνής</translation>
    </message>
    <message>
        <source>Property Editor</source>
        <translation>Επεξεργαστής ιδιοτήτων</translation>
    </message>
    <message>
        <source>Quick Load</source>
        <translation>Γρήγορη φόρτωση</translation>
    </message>
    <message>
        <source>Commands History</source>
        <translation>Ιστορικό εντολών</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Αρχείο</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Επεξεργασία</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Προβολή</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Ζουμ</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Γραμμές εργαλείων</translation>
    </message>
    <message>
        <source>Dock Widgets</source>
        <translation>Προσαρτώμενα παράθυρα</translation>
    </message>
    <message>
        <source>Perspectives</source>
        <translation>Προοπτικές</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Βοήθεια</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Έτοιμο</translation>
    </message>
    <message>
        <source>Action Context Toolbar</source>
        <translation>Γραμμή εργαλείων περιβάλλοντος εργαλείου</translation>
    </message>
    <message>
        <source>New file created</source>
        <translation>Δημιουργήθηκε νέο αρχείο</translation>
    </message>
    <message>
        <source>File saved (%1)</source>
        <translation>Το αρχείο αποθηκεύτηκε (%1)</translation>
    </message>
    <message>
        <source>File loaded (%1)</source>
        <translation>Το αρχείο φορτώθηκε (%1)</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Φόρτωση</translation>
    </message>
    <message>
        <source>*.script</source>
        <translation>*.script</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Αποθήκευση</translation>
    </message>
    <message>
        <source>Stop Script</source>
        <translation>Διακοπή σεναρίου</translation>
    </message>
    <message>
        <source>Stops the script that is running (Escape)</source>
        <translation>Σταματά το σενάριο που εκτελείται (Escape)</translation>
    </message>
    <message>
        <source>Upload Scene</source>
        <translation>Μεταφόρτωση σκηνής</translation>
    </message>
    <message>
        <source>The scene needs to be saved before uploading.
Please save the scene and try again.</source>
        <translation>Η σκηνή πρέπει να αποθηκευτεί πριν τη μεταφόρτωση.
Αποθηκεύστε τη σκηνή και δοκιμάστε ξανά.</translation>
    </message>
</context>
<context>
    <name>PhysicsWorldPropertiesWidget</name>
    <message>
        <source>Gravity</source>
        <translation>Βαρύτητα</translation>
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
        <translation>Συχνότητα βημάτων</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>Iterations</source>
        <translation>Επαναλήψεις</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Ταχύτητα</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Θέση</translation>
    </message>
    <message>
        <source>Warm Starting</source>
        <translation>Θερμή εκκίνηση</translation>
    </message>
    <message>
        <source>Continuous Physics</source>
        <translation>Συνεχής φυσική</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Πληροφορίες</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Δευτερόλεπτα</translation>
    </message>
    <message>
        <source>Bodies</source>
        <translation>Σώματα</translation>
    </message>
    <message>
        <source>Joints</source>
        <translation>Αρθρώσεις</translation>
    </message>
</context>
<context>
    <name>PlayPauseAction</name>
    <message>
        <source>Play/Pause</source>
        <translation>Έναρξη/Παύση</translation>
    </message>
</context>
<context>
    <name>PlotAction</name>
    <message>
        <source>Create Plot</source>
        <translation>Δημιουργία γραφήματος</translation>
    </message>
</context>
<context>
    <name>PlotWidget</name>
    <message>
        <source>Speed</source>
        <translation>Ταχύτητα</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Επιτάχυνση</translation>
    </message>
    <message>
        <source>Time (sec)</source>
        <translation>Χρόνος (s)</translation>
    </message>
    <message>
        <source>Speed (m/sec)</source>
        <translation>Ταχύτητα (m/s)</translation>
    </message>
</context>
<context>
    <name>PolygonAction</name>
    <message>
        <source>Create Polygon</source>
        <translation>Δημιουργία πολυγώνου</translation>
    </message>
</context>
<context>
    <name>PolygonClipper</name>
    <message>
        <source>Clipper Failed...</source>
        <translation>Αποτυχία του Clipper...</translation>
    </message>
</context>
<context>
    <name>PrismaticJointAction</name>
    <message>
        <source>Create Prismatic Joint</source>
        <translation>Δημιουργία πρισματικής άρθρωσης</translation>
    </message>
</context>
<context>
    <name>PropertyDelegate</name>
    <message>
        <source>Select Color</source>
        <translation>Επιλογή χρώματος</translation>
    </message>
</context>
<context>
    <name>PropertyEditorWidget</name>
    <message>
        <source>&lt;div align=&apos;right&apos;&gt;&lt;i&gt;&lt;font size=&apos;10px&apos;&gt;(Edit properties with double-click)&lt;/font&gt;&lt;/i&gt;&lt;/div&gt;</source>
        <translation>&lt;div align=&apos;right&apos;&gt;&lt;i&gt;&lt;font size=&apos;10px&apos;&gt;(Επεξεργασία ιδιοτήτων με διπλό κλικ)&lt;/font&gt;&lt;/i&gt;&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Πινέλο</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Επιλογή</translation>
    </message>
    <message>
        <source>Specify the filter categories that %1 belongs to.</source>
        <translation>Ορίστε τις κατηγορίες φίλτρου στις οποίες ανήκει το %1.</translation>
    </message>
    <message>
        <source>Specify the filter categories that %1 collides with.</source>
        <translation>Ορίστε τις κατηγορίες φίλτρου με τις οποίες συγκρούεται το %1.</translation>
    </message>
</context>
<context>
    <name>PropertyModel</name>
    <message>
        <source>Property</source>
        <translation>Ιδιότητα</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Τιμή</translation>
    </message>
</context>
<context>
    <name>PulleyJointAction</name>
    <message>
        <source>Create Pulley Joint</source>
        <translation>Δημιουργία άρθρωσης τροχαλίας</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Version: %1</source>
        <translation>Έκδοση: %1</translation>
    </message>
    <message>
        <source>Made by the Brivane Project</source>
        <translation>Δημιουργήθηκε από το Έργο Brivane</translation>
    </message>
    <message>
        <source>Balloon</source>
        <translation>Μπαλόνι</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Κύκλος</translation>
    </message>
    <message>
        <source>Distance Joint</source>
        <translation>Άρθρωση απόστασης</translation>
    </message>
    <message>
        <source>Linear Impulse</source>
        <translation>Γραμμική ώθηση</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Έναρξη</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Πολύγωνο</translation>
    </message>
    <message>
        <source>Prismatic Joint</source>
        <translation>Πρισματική άρθρωση</translation>
    </message>
    <message>
        <source>Pulley Joint</source>
        <translation>Άρθρωση τροχαλίας</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Ορθογώνιο</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Αφαίρεση</translation>
    </message>
    <message>
        <source>Revolute Joint</source>
        <translation>Περιστροφική άρθρωση</translation>
    </message>
    <message>
        <source>Spring Force</source>
        <translation>Δύναμη ελατηρίου</translation>
    </message>
    <message>
        <source>Gear</source>
        <translation>Γρανάζι</translation>
    </message>
    <message>
        <source>Union</source>
        <translation>Ένωση</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Διαφορά</translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation>Τομή</translation>
    </message>
    <message>
        <source>Circlify</source>
        <translation>Σε κύκλους</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Σβήσιμο</translation>
    </message>
    <message>
        <source>Not exploded: %1 pieces would be made, more than %2.</source>
        <translation>Δεν έγινε διάσπαση: θα δημιουργούνταν %1 κομμάτια, περισσότερα από %2.</translation>
    </message>
    <message>
        <source>Squarify</source>
        <translation>Σε τετράγωνα</translation>
    </message>
    <message>
        <source>Triangulate</source>
        <translation>Σε τρίγωνα</translation>
    </message>
    <message>
        <source>Chain</source>
        <translation>Αλυσίδα</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Εικόνα</translation>
    </message>
    <message>
        <source>Rope</source>
        <translation>Σχοινί</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Κείμενο</translation>
    </message>
    <message>
        <source>A two-dimensional physics sandbox.</source>
        <translation>Ένα δισδιάστατο περιβάλλον πειραμάτων φυσικής.</translation>
    </message>
    <message>
        <source>A scene file to open.</source>
        <translation>Ένα αρχείο σκηνής για άνοιγμα.</translation>
    </message>
    <message>
        <source>Updates Available</source>
        <translation>Διαθέσιμες ενημερώσεις</translation>
    </message>
    <message>
        <source>A new version of Brivane is available.
Update the application?</source>
        <translation>Μια νέα έκδοση του Brivane είναι διαθέσιμη.
Ενημέρωση της εφαρμογής;</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Σφάλμα</translation>
    </message>
    <message>
        <source>Failed to launch the updater.
Please run it manually using the following command:

%1/maintenancetool</source>
        <translation>Η εκκίνηση του προγράμματος ενημέρωσης απέτυχε.
Εκτελέστε το χειροκίνητα με την εντολή:

%1/maintenancetool</translation>
    </message>
</context>
<context>
    <name>QuickLoadWidget</name>
    <message>
        <source>Icon SIze</source>
        <translation>Μέγεθος εικονιδίων</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Αναζήτηση...</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Άνοιγμα φακέλου</translation>
    </message>
</context>
<context>
    <name>RectangleAction</name>
    <message>
        <source>Create Rectangle</source>
        <translation>Δημιουργία ορθογωνίου</translation>
    </message>
    <message>
        <source>width=%1
height=%2</source>
        <translation>πλάτος=%1
ύψος=%2</translation>
    </message>
</context>
<context>
    <name>RemoveAction</name>
    <message>
        <source>Remove</source>
        <translation>Αφαίρεση</translation>
    </message>
</context>
<context>
    <name>RevoluteJointAction</name>
    <message>
        <source>Create Revolute Joint</source>
        <translation>Δημιουργία περιστροφικής άρθρωσης</translation>
    </message>
</context>
<context>
    <name>RevoluteJointContextWidget</name>
    <message>
        <source>Radius</source>
        <translation>Ακτίνα</translation>
    </message>
</context>
<context>
    <name>RopeAction</name>
    <message>
        <source>Create Rope</source>
        <translation>Δημιουργία σχοινιού</translation>
    </message>
</context>
<context>
    <name>RopeContextWidget</name>
    <message>
        <source>Rectangle Width</source>
        <translation>Πλάτος ορθογωνίου</translation>
    </message>
</context>
<context>
    <name>ScenePropertiesWidget</name>
    <message>
        <source>Physics World</source>
        <translation>Φυσικός κόσμος</translation>
    </message>
    <message>
        <source>Graphics View</source>
        <translation>Προβολή</translation>
    </message>
</context>
<context>
    <name>SelectAction</name>
    <message>
        <source>Select/Move</source>
        <translation>Επιλογή/Μετακίνηση</translation>
    </message>
</context>
<context>
    <name>SettingsWidget</name>
    <message>
        <source>Settings</source>
        <translation>Ρυθμίσεις</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>Γραφικά</translation>
    </message>
    <message>
        <source>Use OpenGL</source>
        <translation>Χρήση OpenGL</translation>
    </message>
    <message>
        <source>Antialiasing</source>
        <translation>Εξομάλυνση</translation>
    </message>
    <message>
        <source>Physics</source>
        <translation>Φυσική</translation>
    </message>
    <message>
        <source>Timer Interval</source>
        <translation>Διάστημα χρονιστή</translation>
    </message>
    <message>
        <source>Bodies Defaults</source>
        <translation>Προεπιλογές σωμάτων</translation>
    </message>
    <message>
        <source>Linear Damping</source>
        <translation>Γραμμική απόσβεση</translation>
    </message>
    <message>
        <source>Angular Damping</source>
        <translation>Γωνιακή απόσβεση</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Τριβή</translation>
    </message>
    <message>
        <source>Restitution</source>
        <translation>Αναπήδηση</translation>
    </message>
    <message>
        <source>Allow Sleep</source>
        <translation>Να επιτρέπεται ο ύπνος</translation>
    </message>
    <message>
        <source>Is Bullet</source>
        <translation>Είναι βλήμα</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Γενικά</translation>
    </message>
    <message>
        <source>GUI Style</source>
        <translation>Στυλ γραφικού περιβάλλοντος</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Γλώσσα</translation>
    </message>
    <message>
        <source>Create ground on start-up</source>
        <translation>Δημιουργία εδάφους στην εκκίνηση</translation>
    </message>
    <message>
        <source>Show scale indicator</source>
        <translation>Εμφάνιση δείκτη κλίμακας</translation>
    </message>
    <message>
        <source>Show tips at start-up</source>
        <translation>Εμφάνιση συμβουλών στην εκκίνηση</translation>
    </message>
    <message>
        <source>Attach script debugger</source>
        <translation>Σύνδεση αποσφαλματωτή σεναρίων</translation>
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
        <translation>Προσκόλληση στο πλέγμα (F9)</translation>
    </message>
    <message>
        <source>Snaps to grid</source>
        <translation>Προσκολλά στο πλέγμα</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Μέγεθος:</translation>
    </message>
    <message>
        <source>Snap To Objects (F10)</source>
        <translation>Προσκόλληση σε αντικείμενα (F10)</translation>
    </message>
    <message>
        <source>Snaps to objects</source>
        <translation>Προσκολλά σε αντικείμενα</translation>
    </message>
    <message>
        <source>Distance:</source>
        <translation>Απόσταση:</translation>
    </message>
</context>
<context>
    <name>SocialDialog</name>
    <message>
        <source>%1 is a &lt;b&gt;free software&lt;/b&gt;. Please &lt;b&gt;support it&lt;/b&gt; by submitting it to your favourite social networking sites using the buttons below.</source>
        <translation>Το %1 είναι &lt;b&gt;ελεύθερο λογισμικό&lt;/b&gt;. &lt;b&gt;Υποστηρίξτε το&lt;/b&gt; κοινοποιώντας το στα αγαπημένα σας κοινωνικά δίκτυα με τα παρακάτω κουμπιά.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Έξοδος</translation>
    </message>
    <message>
        <source>Please Support %1</source>
        <translation>Υποστηρίξτε το %1</translation>
    </message>
</context>
<context>
    <name>SpringForceAction</name>
    <message>
        <source>Create Spring</source>
        <translation>Δημιουργία ελατηρίου</translation>
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
        <translation>Απόσβεση</translation>
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
        <translation>Δημιουργία κειμένου</translation>
    </message>
</context>
<context>
    <name>TextContextWidget</name>
    <message>
        <source>Text</source>
        <translation>Κείμενο</translation>
    </message>
    <message>
        <source>Font Family</source>
        <translation>Γραμματοσειρά</translation>
    </message>
    <message>
        <source>Font Size</source>
        <translation>Μέγεθος γραμματοσειράς</translation>
    </message>
</context>
<context>
    <name>TipDialog</name>
    <message>
        <source>Tip of the Day</source>
        <translation>Συμβουλή της ημέρας</translation>
    </message>
    <message>
        <source>Show tip at startup</source>
        <translation>Εμφάνιση συμβουλής στην εκκίνηση</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Προηγούμενη</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Επόμενη</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Κλείσιμο</translation>
    </message>
    <message>
        <source>You could &lt;B&gt;improve rendering performance&lt;/B&gt; by enabling OpenGL in settings.</source>
        <translation>Μπορείτε να &lt;B&gt;βελτιώσετε την ταχύτητα σχεδίασης&lt;/B&gt; ενεργοποιώντας το OpenGL στις ρυθμίσεις.</translation>
    </message>
    <message>
        <source>You can show and hide the Property Editor using Shift+P.</source>
        <translation>Εμφανίζετε και κρύβετε τον επεξεργαστή ιδιοτήτων με Shift+P.</translation>
    </message>
    <message>
        <source>You can show and hide the Console using Shift+~.</source>
        <translation>Εμφανίζετε και κρύβετε την κονσόλα με Shift+~.</translation>
    </message>
    <message>
        <source>You can switch between &lt;B&gt;perspectives&lt;/B&gt; using &lt;I&gt;Alt + 1 .. 4&lt;/I&gt;.</source>
        <translation>Αλλάζετε &lt;B&gt;προοπτική&lt;/B&gt; με &lt;I&gt;Alt + 1 .. 4&lt;/I&gt;.</translation>
    </message>
    <message>
        <source>&lt;B&gt;Download&lt;/B&gt; scenes that other people have created by selecting &lt;I&gt;File::Download&lt;/I&gt; from the menu bar.</source>
        <translation>&lt;B&gt;Κατεβάστε&lt;/B&gt; σκηνές άλλων από το &lt;I&gt;Αρχείο::Λήψη&lt;/I&gt; στη γραμμή μενού.</translation>
    </message>
    <message>
        <source>You can &lt;B&gt;upload&lt;/B&gt; your scene to &lt;A HREF=&apos;%1&apos;&gt;%2&lt;/A&gt; by selecting &lt;I&gt;File::Upload&lt;/I&gt; from the menu bar.</source>
        <translation>Μπορείτε να &lt;B&gt;ανεβάσετε&lt;/B&gt; τη σκηνή σας στο &lt;A HREF=&apos;%1&apos;&gt;%2&lt;/A&gt; από το &lt;I&gt;Αρχείο::Μεταφόρτωση&lt;/I&gt; στη γραμμή μενού.</translation>
    </message>
</context>
<context>
    <name>UnionAction</name>
    <message>
        <source>Union</source>
        <translation>Ένωση</translation>
    </message>
</context>
<context>
    <name>UploadDialog</name>
    <message>
        <source>Basic</source>
        <translation>Βασικά</translation>
    </message>
    <message>
        <source>Upload As</source>
        <translation>Μεταφόρτωση ως</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Σύνδεση</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Όνομα χρήστη</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Κωδικός</translation>
    </message>
    <message>
        <source>Optional</source>
        <translation>Προαιρετικά</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Κατηγορία</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Περιγραφή</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Λέξεις-κλειδιά</translation>
    </message>
    <message>
        <source>Uploading: %p%</source>
        <translation>Μεταφόρτωση: %p%</translation>
    </message>
    <message>
        <source>Bug Report</source>
        <translation>Αναφορά σφάλματος</translation>
    </message>
    <message>
        <source>Educational</source>
        <translation>Εκπαιδευτικό</translation>
    </message>
    <message>
        <source>Mechanisms</source>
        <translation>Μηχανισμοί</translation>
    </message>
    <message>
        <source>Ragdolls</source>
        <translation>Κούκλες</translation>
    </message>
    <message>
        <source>Vehicles</source>
        <translation>Οχήματα</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Γενικά</translation>
    </message>
    <message>
        <source>Anonymous User</source>
        <translation>Ανώνυμος χρήστης</translation>
    </message>
    <message>
        <source>Registered User</source>
        <translation>Εγγεγραμμένος χρήστης</translation>
    </message>
    <message>
        <source>If you don&apos;t already have an account, you can create one &lt;a href=&apos;%1&apos;&gt;here&lt;/a&gt;</source>
        <translation>Αν δεν έχετε ήδη λογαριασμό, μπορείτε να δημιουργήσετε έναν &lt;a href=&apos;%1&apos;&gt;εδώ&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Upload %1</source>
        <translation>Μεταφόρτωση %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Σφάλμα</translation>
    </message>
    <message>
        <source>Please fill in username and password</source>
        <translation>Συμπληρώστε όνομα χρήστη και κωδικό</translation>
    </message>
    <message>
        <source>Bad reply from server</source>
        <translation>Μη έγκυρη απάντηση από τον διακομιστή</translation>
    </message>
    <message>
        <source>Could not reach the scene repository: %1</source>
        <translation>Δεν ήταν δυνατή η σύνδεση με το αποθετήριο σκηνών: %1</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Επιτυχία</translation>
    </message>
    <message>
        <source>Your scene has been successfully uploaded &lt;a href=&apos;%1&apos;&gt;here&lt;/a&gt;.</source>
        <translation>Η σκηνή σας μεταφορτώθηκε με επιτυχία &lt;a href=&apos;%1&apos;&gt;εδώ&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>The server replied with the following message:
%1</source>
        <translation>Ο διακομιστής απάντησε με το εξής μήνυμα:
%1</translation>
    </message>
</context>
<context>
    <name>XMLReader</name>
    <message>
        <source>Trying to load a scene which was created with another version of the application. </source>
        <translation>Φορτώνεται μια σκηνή που δημιουργήθηκε με άλλη έκδοση της εφαρμογής. </translation>
    </message>
    <message>
        <source>(Scene version: %1 Application version: %2)</source>
        <translation>(Έκδοση σκηνής: %1, έκδοση εφαρμογής: %2)</translation>
    </message>
</context>
<context>
    <name>XPolygonF</name>
    <message>
        <source>Skipped %1 triangles</source>
        <translation>Τρίγωνα που παραλείφθηκαν: %1</translation>
    </message>
</context>
</TS>
