<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id_ID">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Tentang</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Kredit</translation>
    </message>
    <message>
        <source>ChangeLog</source>
        <translation>Perubahan</translation>
    </message>
    <message>
        <source>About </source>
        <translation>Tentang </translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Could not remove temp directory.</source>
        <translation>Tidak dapat menghapus direktori sementara.</translation>
    </message>
    <message>
        <source>Could not create temp directory.</source>
        <translation>Tidak dapat membuat direktori sementara.</translation>
    </message>
    <message>
        <source>Could not set language: Unknown language: %1</source>
        <translation>Tidak dapat mengatur bahasa: Bahasa tidak dikenal: %1</translation>
    </message>
    <message>
        <source>%1 has been successfully loaded.</source>
        <translation>%1 berhasil dimuat.</translation>
    </message>
    <message>
        <source>%1 failed to load.</source>
        <translation>%1 gagal dimuat.</translation>
    </message>
    <message>
        <source>Script debugger attached.</source>
        <translation>Debugger skrip terpasang.</translation>
    </message>
    <message>
        <source>Script debugger detached.</source>
        <translation>Debugger skrip dilepas.</translation>
    </message>
    <message>
        <source>Supported OpenGL Versions:</source>
        <translation>Versi OpenGL yang Didukung:</translation>
    </message>
    <message>
        <source>%1 is not evaluated: a script file may hold at most %2 MB.</source>
        <translation>%1 tidak dievaluasi: berkas skrip paling besar %2 MB.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Memuat...</translation>
    </message>
    <message>
        <source>The script was stopped.</source>
        <translation>Skrip dihentikan.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Galat</translation>
    </message>
    <message>
        <source>Could not open the scene %1.</source>
        <translation>Adegan %1 tidak dapat dibuka.</translation>
    </message>
</context>
<context>
    <name>BalloonAction</name>
    <message>
        <source>Create Balloon</source>
        <translation>Buat Balon</translation>
    </message>
</context>
<context>
    <name>BrushAction</name>
    <message>
        <source>Create freehand shape</source>
        <translation>Buat bentuk tangan bebas</translation>
    </message>
</context>
<context>
    <name>BrushContextWidget</name>
    <message>
        <source>Brush Size</source>
        <translation>Ukuran kuas</translation>
    </message>
</context>
<context>
    <name>BrushDialog</name>
    <message>
        <source>Select Brush</source>
        <translation>Pilih Kuas</translation>
    </message>
    <message>
        <source>Color/Pattern</source>
        <translation>Warna/Pola</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Warna</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Pilih...</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Pola</translation>
    </message>
    <message>
        <source>No Brush</source>
        <translation>Tanpa kuas</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Padat</translation>
    </message>
    <message>
        <source>Dense1</source>
        <translation>Rapat 1</translation>
    </message>
    <message>
        <source>Dense2</source>
        <translation>Rapat 2</translation>
    </message>
    <message>
        <source>Dense3</source>
        <translation>Rapat 3</translation>
    </message>
    <message>
        <source>Dense4</source>
        <translation>Rapat 4</translation>
    </message>
    <message>
        <source>Dense5</source>
        <translation>Rapat 5</translation>
    </message>
    <message>
        <source>Dense6</source>
        <translation>Rapat 6</translation>
    </message>
    <message>
        <source>Dense7</source>
        <translation>Rapat 7</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertikal</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>Silang</translation>
    </message>
    <message>
        <source>Backward diagonal</source>
        <translation>Diagonal mundur</translation>
    </message>
    <message>
        <source>Forward diagonal</source>
        <translation>Diagonal maju</translation>
    </message>
    <message>
        <source>Crossing diagonal</source>
        <translation>Diagonal bersilang</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>Tekstur</translation>
    </message>
    <message>
        <source>Auto Adjust</source>
        <translation>Sesuaikan Otomatis</translation>
    </message>
    <message>
        <source>Horizontal scale</source>
        <translation>Skala horizontal</translation>
    </message>
    <message>
        <source>Vertical scale</source>
        <translation>Skala vertikal</translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation>Geser horizontal</translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation>Geser vertikal</translation>
    </message>
    <message>
        <source>Select Texture</source>
        <translation>Pilih Tekstur</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp *.gif)</source>
        <translation>Berkas gambar (*.png *.jpg *.bmp *.gif)</translation>
    </message>
</context>
<context>
    <name>CameraAction</name>
    <message>
        <source>Create Camera</source>
        <translation>Buat Kamera</translation>
    </message>
</context>
<context>
    <name>CameraContextWidget</name>
    <message>
        <source>Camera Mode</source>
        <translation>Mode kamera</translation>
    </message>
    <message>
        <source>Remove All Cameras</source>
        <translation>Hapus semua kamera</translation>
    </message>
    <message>
        <source>Use Default Viewport</source>
        <translation>Gunakan tampilan utama</translation>
    </message>
    <message>
        <source>Create New Viewport</source>
        <translation>Buat tampilan baru</translation>
    </message>
</context>
<context>
    <name>CameraGraphicsView</name>
    <message>
        <source>Camera for %1</source>
        <translation>Kamera untuk %1</translation>
    </message>
</context>
<context>
    <name>ChainAction</name>
    <message>
        <source>Create Chain</source>
        <translation>Buat Rantai</translation>
    </message>
</context>
<context>
    <name>ChainContextWidget</name>
    <message>
        <source>Circle Radius</source>
        <translation>Jari-jari lingkaran</translation>
    </message>
</context>
<context>
    <name>CircleAction</name>
    <message>
        <source>Create Circle</source>
        <translation>Buat Lingkaran</translation>
    </message>
    <message>
        <source>radius=%1</source>
        <translation>jari-jari=%1</translation>
    </message>
</context>
<context>
    <name>ColorContextWidget</name>
    <message>
        <source>Color</source>
        <translation>Warna</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Pilih...</translation>
    </message>
</context>
<context>
    <name>DifferenceAction</name>
    <message>
        <source>Difference</source>
        <translation>Selisih</translation>
    </message>
</context>
<context>
    <name>DistanceJointAction</name>
    <message>
        <source>Create Distance Joint</source>
        <translation>Buat Sambungan Jarak</translation>
    </message>
</context>
<context>
    <name>DownloadDialog</name>
    <message>
        <source>Maximum number of scenes to download</source>
        <translation>Jumlah maksimum adegan yang diunduh</translation>
    </message>
    <message>
        <source>Save to</source>
        <translation>Simpan ke</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Telusuri...</translation>
    </message>
    <message>
        <source>Download scenes from %1</source>
        <translation>Unduh adegan dari %1</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>Pilih folder</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Galat</translation>
    </message>
    <message>
        <source>Failed to retrieve file list from server.</source>
        <translation>Gagal mengambil daftar berkas dari server.</translation>
    </message>
</context>
<context>
    <name>DownloadProgressDialog</name>
    <message>
        <source>Scene Filename</source>
        <translation>Berkas adegan</translation>
    </message>
    <message>
        <source>Download Information</source>
        <translation>Informasi unduhan</translation>
    </message>
    <message>
        <source>Refused: not a file of this folder.</source>
        <translation>Ditolak: bukan berkas folder ini.</translation>
    </message>
    <message>
        <source>Download Progress</source>
        <translation>Kemajuan unduhan</translation>
    </message>
    <message>
        <source>Successfully downloaded.</source>
        <translation>Berhasil diunduh.</translation>
    </message>
    <message>
        <source>Already downloaded.</source>
        <translation>Sudah diunduh.</translation>
    </message>
    <message>
        <source>Failed to open file for writing.</source>
        <translation>Gagal membuka berkas untuk ditulis.</translation>
    </message>
    <message>
        <source>Refused: larger than %1 MB.</source>
        <translation>Ditolak: lebih dari %1 MB.</translation>
    </message>
</context>
<context>
    <name>EraseAction</name>
    <message>
        <source>Erase Item</source>
        <translation>Hapus Bagian Objek</translation>
    </message>
</context>
<context>
    <name>EraseContextWidget</name>
    <message>
        <source>Eraser Size</source>
        <translation>Ukuran penghapus</translation>
    </message>
</context>
<context>
    <name>ExplodeAction</name>
    <message>
        <source>Explode Item</source>
        <translation>Ledakkan Objek</translation>
    </message>
</context>
<context>
    <name>ExplodeContextWidget</name>
    <message>
        <source>Explode Method</source>
        <translation>Metode ledakan</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Ukuran</translation>
    </message>
    <message>
        <source>Triangulate</source>
        <translation>Pecah jadi segitiga</translation>
    </message>
    <message>
        <source>Squarify</source>
        <translation>Pecah jadi persegi</translation>
    </message>
    <message>
        <source>Circlify</source>
        <translation>Pecah jadi lingkaran</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>Ekspor</translation>
    </message>
    <message>
        <source>Image Export</source>
        <translation>Ekspor gambar</translation>
    </message>
    <message>
        <source>Directory</source>
        <translation>Direktori</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Telusuri...</translation>
    </message>
    <message>
        <source>Filename</source>
        <translation>Nama berkas</translation>
    </message>
    <message>
        <source>(without extension)</source>
        <translation>(tanpa ekstensi)</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Lebar</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Tinggi</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Kualitas</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>Pilih folder</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Galat</translation>
    </message>
    <message>
        <source>Please enter a file name.</source>
        <translation>Masukkan nama berkas.</translation>
    </message>
    <message>
        <source>File %1 already exists</source>
        <translation>Berkas %1 sudah ada</translation>
    </message>
    <message>
        <source>Failed to save image</source>
        <translation>Gagal menyimpan gambar</translation>
    </message>
</context>
<context>
    <name>GearAction</name>
    <message>
        <source>Create Gear</source>
        <translation>Buat Roda Gigi</translation>
    </message>
</context>
<context>
    <name>GearContextWidget</name>
    <message>
        <source>Gear Tooth Size</source>
        <translation>Ukuran gigi</translation>
    </message>
    <message>
        <source>Gear Tooth Count Divisor</source>
        <translation>Pembagi jumlah gigi</translation>
    </message>
    <message>
        <source>Create Revolute Joint</source>
        <translation>Buat Sambungan Putar</translation>
    </message>
</context>
<context>
    <name>GraphicsView</name>
    <message>
        <source>OpenGL is not available here; the view draws without it.</source>
        <translation>OpenGL tidak tersedia di sini; tampilan digambar tanpa OpenGL.</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>OpenGL draws in software here (%1); the view draws without it, which is faster.</source>
        <translation>OpenGL menggambar dengan perangkat lunak di sini (%1); tampilan menggambar tanpanya, yang lebih cepat.</translation>
    </message>
</context>
<context>
    <name>GraphicsViewPropertiesWidget</name>
    <message>
        <source>Background</source>
        <translation>Latar belakang</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Pilih...</translation>
    </message>
    <message>
        <source>Body With Camera</source>
        <translation>Benda berkamera</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skala</translation>
    </message>
</context>
<context>
    <name>GunAction</name>
    <message>
        <source>Shoot Item</source>
        <translation>Tembakkan Objek</translation>
    </message>
</context>
<context>
    <name>HelpWidget</name>
    <message>
        <source>Brivane Help</source>
        <translation>Bantuan Brivane</translation>
    </message>
</context>
<context>
    <name>ImageAction</name>
    <message>
        <source>Create Image</source>
        <translation>Buat dari Gambar</translation>
    </message>
</context>
<context>
    <name>ImageContextWidget</name>
    <message>
        <source>Image</source>
        <translation>Gambar</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Pilih...</translation>
    </message>
    <message>
        <source>Polygon Threshold</source>
        <translation>Ambang poligon</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skala</translation>
    </message>
    <message>
        <source>Select Image</source>
        <translation>Pilih gambar</translation>
    </message>
    <message>
        <source>Images (*.png *.xpm *.jpg)</source>
        <translation>Gambar (*.png *.xpm *.jpg)</translation>
    </message>
</context>
<context>
    <name>IntersectionAction</name>
    <message>
        <source>Intersection</source>
        <translation>Irisan</translation>
    </message>
</context>
<context>
    <name>JSDialog</name>
    <message>
        <source>The program contains a syntax error.</source>
        <translation>Program berisi kesalahan sintaks.</translation>
    </message>
    <message>
        <source>The program is incomplete.</source>
        <translation>Program belum lengkap.</translation>
    </message>
    <message>
        <source>

[Line: %1, Column: %2]</source>
        <translation>

[Baris: %1, Kolom: %2]</translation>
    </message>
</context>
<context>
    <name>LinkContextWidget</name>
    <message>
        <source>Attach Point</source>
        <translation>Titik kait</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Pertama</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Terakhir</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Tidak ada</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Keduanya</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>New Scene</source>
        <translation>Adegan Baru</translation>
    </message>
    <message>
        <source>Creates a new scene</source>
        <translation>Membuat adegan baru</translation>
    </message>
    <message>
        <source>Save Scene</source>
        <translation>Simpan Adegan</translation>
    </message>
    <message>
        <source>Saves current scene</source>
        <translation>Menyimpan adegan saat ini</translation>
    </message>
    <message>
        <source>Save Scene As...</source>
        <translation>Simpan Adegan Sebagai...</translation>
    </message>
    <message>
        <source>Saves current scene as</source>
        <translation>Menyimpan adegan saat ini dengan nama lain</translation>
    </message>
    <message>
        <source>Load Scene...</source>
        <translation>Muat Adegan...</translation>
    </message>
    <message>
        <source>Loads a scene</source>
        <translation>Memuat adegan</translation>
    </message>
    <message>
        <source>Upload Scene...</source>
        <translation>Unggah Adegan...</translation>
    </message>
    <message>
        <source>Uploads current scene to %1</source>
        <translation>Mengunggah adegan saat ini ke %1</translation>
    </message>
    <message>
        <source>Download Scenes...</source>
        <translation>Unduh Adegan...</translation>
    </message>
    <message>
        <source>Downloads scenes from %1</source>
        <translation>Mengunduh adegan dari %1</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Ekspor...</translation>
    </message>
    <message>
        <source>Exports current scene as an image</source>
        <translation>Mengekspor adegan saat ini sebagai gambar</translation>
    </message>
    <message>
        <source>Evaluate Script...</source>
        <translation>Jalankan Skrip...</translation>
    </message>
    <message>
        <source>Evaluates a .script file</source>
        <translation>Menjalankan berkas .script</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Keluar</translation>
    </message>
    <message>
        <source>Quits the application</source>
        <translation>Keluar dari aplikasi</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Batalkan</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ulangi</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Pilih Semua</translation>
    </message>
    <message>
        <source>Selects all items of the scene</source>
        <translation>Memilih semua objek dalam adegan</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Perbesar</translation>
    </message>
    <message>
        <source>Zooms in</source>
        <translation>Memperbesar tampilan</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Perkecil</translation>
    </message>
    <message>
        <source>Zooms out</source>
        <translation>Memperkecil tampilan</translation>
    </message>
    <message>
        <source>Zoom Extents</source>
        <translation>Paskan ke Adegan</translation>
    </message>
    <message>
        <source>Zooms in or out to fit the extents of the scene</source>
        <translation>Memperbesar atau memperkecil tampilan agar seluruh adegan terlihat</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tampilkan semua</translation>
    </message>
    <message>
        <source>Shows all toolbars</source>
        <translation>Menampilkan semua bilah alat</translation>
    </message>
    <message>
        <source>Hide all</source>
        <translation>Sembunyikan semua</translation>
    </message>
    <message>
        <source>Hides all toolbars</source>
        <translation>Menyembunyikan semua bilah alat</translation>
    </message>
    <message>
        <source>Shows all dock widgets</source>
        <translation>Menampilkan semua panel dok</translation>
    </message>
    <message>
        <source>Hides all dock widgets</source>
        <translation>Menyembunyikan semua panel dok</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Layar Penuh</translation>
    </message>
    <message>
        <source>Toggles fullscreen mode</source>
        <translation>Mengaktifkan atau menonaktifkan mode layar penuh</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Bantuan</translation>
    </message>
    <message>
        <source>Shows the application&apos;s help file</source>
        <translation>Menampilkan berkas bantuan aplikasi</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>Tentang...</translation>
    </message>
    <message>
        <source>Shows the application&apos;s About box</source>
        <translation>Menampilkan kotak Tentang aplikasi</translation>
    </message>
    <message>
        <source>About Qt...</source>
        <translation>Tentang Qt...</translation>
    </message>
    <message>
        <source>Shows the Qt library&apos;s About box</source>
        <translation>Menampilkan kotak Tentang pustaka Qt</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Jalankan/Jeda</translation>
    </message>
    <message>
        <source>Starts/Pauses the simulation</source>
        <translation>Menjalankan atau menjeda simulasi</translation>
    </message>
    <message>
        <source>Select/Move</source>
        <translation>Pilih/Pindahkan</translation>
    </message>
    <message>
        <source>Selects and/or moves an item</source>
        <translation>Memilih dan/atau memindahkan objek</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Removes an item or a selection of items from the scene</source>
        <translation>Menghapus objek atau pilihan objek dari adegan</translation>
    </message>
    <message>
        <source>Explode Item</source>
        <translation>Ledakkan Objek</translation>
    </message>
    <message>
        <source>Explodes an item</source>
        <translation>Meledakkan objek</translation>
    </message>
    <message>
        <source>Erase Item</source>
        <translation>Hapus Bagian Objek</translation>
    </message>
    <message>
        <source>Erases parts of an item</source>
        <translation>Menghapus bagian-bagian dari objek</translation>
    </message>
    <message>
        <source>Create Camera</source>
        <translation>Buat Kamera</translation>
    </message>
    <message>
        <source>Creates a camera that follows an item</source>
        <translation>Membuat kamera yang mengikuti objek</translation>
    </message>
    <message>
        <source>Create Tracer</source>
        <translation>Buat Pelacak Jejak</translation>
    </message>
    <message>
        <source>Creates a tracer that follows an item</source>
        <translation>Membuat pelacak jejak yang mengikuti objek</translation>
    </message>
    <message>
        <source>Shoot Item</source>
        <translation>Tembakkan Objek</translation>
    </message>
    <message>
        <source>Shoots an item</source>
        <translation>Menembakkan objek</translation>
    </message>
    <message>
        <source>Create Plot</source>
        <translation>Buat Grafik</translation>
    </message>
    <message>
        <source>Creates a plot for a given item</source>
        <translation>Membuat grafik untuk objek tertentu</translation>
    </message>
    <message>
        <source>Create Rectangle</source>
        <translation>Buat Persegi Panjang</translation>
    </message>
    <message>
        <source>Creates a rectangle</source>
        <translation>Membuat persegi panjang</translation>
    </message>
    <message>
        <source>Create Circle</source>
        <translation>Buat Lingkaran</translation>
    </message>
    <message>
        <source>Creates a circle</source>
        <translation>Membuat lingkaran</translation>
    </message>
    <message>
        <source>Create Polygon</source>
        <translation>Buat Poligon</translation>
    </message>
    <message>
        <source>Creates a polygon</source>
        <translation>Membuat poligon</translation>
    </message>
    <message>
        <source>Create Balloon</source>
        <translation>Buat Balon</translation>
    </message>
    <message>
        <source>Creates a balloon</source>
        <translation>Membuat balon</translation>
    </message>
    <message>
        <source>Create freehand shape</source>
        <translation>Buat bentuk tangan bebas</translation>
    </message>
    <message>
        <source>Freehand drawing of random shapes</source>
        <translation>Menggambar bentuk sembarang dengan tangan bebas</translation>
    </message>
    <message>
        <source>Create Chain</source>
        <translation>Buat Rantai</translation>
    </message>
    <message>
        <source>Creates a chain</source>
        <translation>Membuat rantai</translation>
    </message>
    <message>
        <source>Create Rope</source>
        <translation>Buat Tali</translation>
    </message>
    <message>
        <source>Creates a rope</source>
        <translation>Membuat tali</translation>
    </message>
    <message>
        <source>Create Text</source>
        <translation>Buat Teks</translation>
    </message>
    <message>
        <source>Creates items from text</source>
        <translation>Membuat objek dari teks</translation>
    </message>
    <message>
        <source>Create Gear</source>
        <translation>Buat Roda Gigi</translation>
    </message>
    <message>
        <source>Creates a gear</source>
        <translation>Membuat roda gigi</translation>
    </message>
    <message>
        <source>Create Image</source>
        <translation>Buat dari Gambar</translation>
    </message>
    <message>
        <source>Creates a shape based on the outline of a (png) image</source>
        <translation>Membuat bentuk berdasarkan garis luar gambar (PNG)</translation>
    </message>
    <message>
        <source>Create Distance Joint</source>
        <translation>Buat Sambungan Jarak</translation>
    </message>
    <message>
        <source>Creates a distance joint between two items (or an item and the background)</source>
        <translation>Membuat sambungan jarak antara dua objek (atau antara objek dan latar belakang)</translation>
    </message>
    <message>
        <source>Create Revolute Joint</source>
        <translation>Buat Sambungan Putar</translation>
    </message>
    <message>
        <source>Creates a revolute joint between two items (or an item and the background)</source>
        <translation>Membuat sambungan putar antara dua objek (atau antara objek dan latar belakang)</translation>
    </message>
    <message>
        <source>Create Prismatic Joint</source>
        <translation>Buat Sambungan Prismatik</translation>
    </message>
    <message>
        <source>Creates a prismatic joint between two items</source>
        <translation>Membuat sambungan prismatik antara dua objek</translation>
    </message>
    <message>
        <source>Create Pulley Joint</source>
        <translation>Buat Sambungan Katrol</translation>
    </message>
    <message>
        <source>Creates a pulley joint between two items</source>
        <translation>Membuat sambungan katrol antara dua objek</translation>
    </message>
    <message>
        <source>Create Spring</source>
        <translation>Buat Pegas</translation>
    </message>
    <message>
        <source>Creates a spring between two items</source>
        <translation>Membuat pegas antara dua objek</translation>
    </message>
    <message>
        <source>Union</source>
        <translation>Gabungan</translation>
    </message>
    <message>
        <source>Creates an item from the union of two other items</source>
        <translation>Membuat objek dari gabungan dua objek lain</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Selisih</translation>
    </message>
    <message>
        <source>Creates an item from the difference of two other items</source>
        <translation>Membuat objek dari selisih dua objek lain</translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation>Irisan</translation>
    </message>
    <message>
        <source>Creates an item from the intersection of two other items</source>
        <translation>Membuat objek dari irisan dua objek lain</translation>
    </message>
    <message>
        <source>General Toolbar</source>
        <translation>Bilah Alat Umum</translation>
    </message>
    <message>
        <source>Bodies Toolbar</source>
        <translation>Bilah Alat Benda</translation>
    </message>
    <message>
        <source>Joints Toolbar</source>
        <translation>Bilah Alat Sambungan</translation>
    </message>
    <message>
        <source>Forces Toolbar</source>
        <translation>Bilah Alat Gaya</translation>
    </message>
    <message>
        <source>Boolean Toolbar</source>
        <translation>Bilah Alat Boolean</translation>
    </message>
    <message>
        <source>Snap Toolbar</source>
        <translation>Bilah Alat Tambat</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Pengaturan</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>Konsol</translation>
    </message>
    <message>
        <source>Scene Properties</source>
        <translation>Properti Adegan</translation>
    </message>
    <message>
        <source>Property Editor</source>
        <translation>Penyunting Properti</translation>
    </message>
    <message>
        <source>Quick Load</source>
        <translation>Muat Cepat</translation>
    </message>
    <message>
        <source>Commands History</source>
        <translation>Riwayat Perintah</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Berkas</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Sunting</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Tampilan</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Bilah Alat</translation>
    </message>
    <message>
        <source>Dock Widgets</source>
        <translation>Panel Dok</translation>
    </message>
    <message>
        <source>Perspectives</source>
        <translation>Perspektif</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>B&amp;antuan</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Siap</translation>
    </message>
    <message>
        <source>Action Context Toolbar</source>
        <translation>Bilah Alat Konteks</translation>
    </message>
    <message>
        <source>New file created</source>
        <translation>Berkas baru dibuat</translation>
    </message>
    <message>
        <source>File saved (%1)</source>
        <translation>Berkas disimpan (%1)</translation>
    </message>
    <message>
        <source>File loaded (%1)</source>
        <translation>Berkas dimuat (%1)</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Muat</translation>
    </message>
    <message>
        <source>*.script</source>
        <translation>*.script</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Simpan</translation>
    </message>
    <message>
        <source>Stop Script</source>
        <translation>Hentikan Skrip</translation>
    </message>
    <message>
        <source>Stops the script that is running (Escape)</source>
        <translation>Menghentikan skrip yang sedang berjalan (Escape)</translation>
    </message>
    <message>
        <source>Upload Scene</source>
        <translation>Unggah adegan</translation>
    </message>
    <message>
        <source>The scene needs to be saved before uploading.
Please save the scene and try again.</source>
        <translation>Adegan harus disimpan sebelum diunggah.
Simpan adegan lalu coba lagi.</translation>
    </message>
</context>
<context>
    <name>PhysicsWorldPropertiesWidget</name>
    <message>
        <source>Gravity</source>
        <translation>Gravitasi</translation>
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
        <translation>Frekuensi langkah</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>Iterations</source>
        <translation>Iterasi</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Kecepatan</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posisi</translation>
    </message>
    <message>
        <source>Warm Starting</source>
        <translation>Mulai hangat</translation>
    </message>
    <message>
        <source>Continuous Physics</source>
        <translation>Fisika kontinu</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informasi</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Detik</translation>
    </message>
    <message>
        <source>Bodies</source>
        <translation>Benda</translation>
    </message>
    <message>
        <source>Joints</source>
        <translation>Sendi</translation>
    </message>
</context>
<context>
    <name>PlayPauseAction</name>
    <message>
        <source>Play/Pause</source>
        <translation>Jalankan/Jeda</translation>
    </message>
</context>
<context>
    <name>PlotAction</name>
    <message>
        <source>Create Plot</source>
        <translation>Buat Grafik</translation>
    </message>
</context>
<context>
    <name>PlotWidget</name>
    <message>
        <source>Speed</source>
        <translation>Kecepatan</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Percepatan</translation>
    </message>
    <message>
        <source>Time (sec)</source>
        <translation>Waktu (detik)</translation>
    </message>
    <message>
        <source>Speed (m/sec)</source>
        <translation>Kecepatan (m/detik)</translation>
    </message>
</context>
<context>
    <name>PolygonAction</name>
    <message>
        <source>Create Polygon</source>
        <translation>Buat Poligon</translation>
    </message>
</context>
<context>
    <name>PolygonClipper</name>
    <message>
        <source>Clipper Failed...</source>
        <translation>Clipper Gagal...</translation>
    </message>
</context>
<context>
    <name>PrismaticJointAction</name>
    <message>
        <source>Create Prismatic Joint</source>
        <translation>Buat Sambungan Prismatik</translation>
    </message>
</context>
<context>
    <name>PropertyDelegate</name>
    <message>
        <source>Select Color</source>
        <translation>Pilih Warna</translation>
    </message>
</context>
<context>
    <name>PropertyEditorWidget</name>
    <message>
        <source>&lt;div align=&apos;right&apos;&gt;&lt;i&gt;&lt;font size=&apos;10px&apos;&gt;(Edit properties with double-click)&lt;/font&gt;&lt;/i&gt;&lt;/div&gt;</source>
        <translation>&lt;div align=&apos;right&apos;&gt;&lt;i&gt;&lt;font size=&apos;10px&apos;&gt;(Ubah properti dengan klik ganda)&lt;/font&gt;&lt;/i&gt;&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Kuas</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Pilih</translation>
    </message>
    <message>
        <source>Specify the filter categories that %1 belongs to.</source>
        <translation>Tentukan kategori filter tempat %1 berada.</translation>
    </message>
    <message>
        <source>Specify the filter categories that %1 collides with.</source>
        <translation>Tentukan kategori filter yang bertabrakan dengan %1.</translation>
    </message>
</context>
<context>
    <name>PropertyModel</name>
    <message>
        <source>Property</source>
        <translation>Properti</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Nilai</translation>
    </message>
</context>
<context>
    <name>PulleyJointAction</name>
    <message>
        <source>Create Pulley Joint</source>
        <translation>Buat Sambungan Katrol</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Version: %1</source>
        <translation>Versi: %1</translation>
    </message>
    <message>
        <source>Made by the Brivane Project</source>
        <translation>Dibuat oleh Proyek Brivane</translation>
    </message>
    <message>
        <source>Balloon</source>
        <translation>Balon</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Lingkaran</translation>
    </message>
    <message>
        <source>Distance Joint</source>
        <translation>Sambungan Jarak</translation>
    </message>
    <message>
        <source>Linear Impulse</source>
        <translation>Impuls Linear</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Jalankan</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Poligon</translation>
    </message>
    <message>
        <source>Prismatic Joint</source>
        <translation>Sambungan Prismatik</translation>
    </message>
    <message>
        <source>Pulley Joint</source>
        <translation>Sambungan Katrol</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Persegi Panjang</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Revolute Joint</source>
        <translation>Sambungan Putar</translation>
    </message>
    <message>
        <source>Spring Force</source>
        <translation>Gaya Pegas</translation>
    </message>
    <message>
        <source>Gear</source>
        <translation>Roda Gigi</translation>
    </message>
    <message>
        <source>Union</source>
        <translation>Gabungan</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Selisih</translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation>Irisan</translation>
    </message>
    <message>
        <source>Circlify</source>
        <translation>Pecah jadi lingkaran</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Not exploded: %1 pieces would be made, more than %2.</source>
        <translation>Tidak dipecah: akan terbentuk %1 kepingan, lebih dari %2.</translation>
    </message>
    <message>
        <source>Squarify</source>
        <translation>Pecah jadi persegi</translation>
    </message>
    <message>
        <source>Triangulate</source>
        <translation>Pecah jadi segitiga</translation>
    </message>
    <message>
        <source>Chain</source>
        <translation>Rantai</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Gambar</translation>
    </message>
    <message>
        <source>Rope</source>
        <translation>Tali</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Teks</translation>
    </message>
    <message>
        <source>A two-dimensional physics sandbox.</source>
        <translation>Kotak pasir fisika dua dimensi.</translation>
    </message>
    <message>
        <source>A scene file to open.</source>
        <translation>Berkas adegan yang akan dibuka.</translation>
    </message>
    <message>
        <source>Updates Available</source>
        <translation>Pembaruan tersedia</translation>
    </message>
    <message>
        <source>A new version of Brivane is available.
Update the application?</source>
        <translation>Versi baru Brivane tersedia.
Perbarui aplikasi?</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Galat</translation>
    </message>
    <message>
        <source>Failed to launch the updater.
Please run it manually using the following command:

%1/maintenancetool</source>
        <translation>Gagal menjalankan pembaru.
Jalankan secara manual dengan perintah berikut:

%1/maintenancetool</translation>
    </message>
</context>
<context>
    <name>QuickLoadWidget</name>
    <message>
        <source>Icon SIze</source>
        <translation>Ukuran ikon</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Telusuri...</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Buka folder</translation>
    </message>
</context>
<context>
    <name>RectangleAction</name>
    <message>
        <source>Create Rectangle</source>
        <translation>Buat Persegi Panjang</translation>
    </message>
    <message>
        <source>width=%1
height=%2</source>
        <translation>lebar=%1
tinggi=%2</translation>
    </message>
</context>
<context>
    <name>RemoveAction</name>
    <message>
        <source>Remove</source>
        <translation>Hapus</translation>
    </message>
</context>
<context>
    <name>RevoluteJointAction</name>
    <message>
        <source>Create Revolute Joint</source>
        <translation>Buat Sambungan Putar</translation>
    </message>
</context>
<context>
    <name>RevoluteJointContextWidget</name>
    <message>
        <source>Radius</source>
        <translation>Jari-jari</translation>
    </message>
</context>
<context>
    <name>RopeAction</name>
    <message>
        <source>Create Rope</source>
        <translation>Buat Tali</translation>
    </message>
</context>
<context>
    <name>RopeContextWidget</name>
    <message>
        <source>Rectangle Width</source>
        <translation>Lebar persegi panjang</translation>
    </message>
</context>
<context>
    <name>ScenePropertiesWidget</name>
    <message>
        <source>Physics World</source>
        <translation>Dunia fisika</translation>
    </message>
    <message>
        <source>Graphics View</source>
        <translation>Tampilan</translation>
    </message>
</context>
<context>
    <name>SelectAction</name>
    <message>
        <source>Select/Move</source>
        <translation>Pilih/Pindahkan</translation>
    </message>
</context>
<context>
    <name>SettingsWidget</name>
    <message>
        <source>Settings</source>
        <translation>Pengaturan</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>Grafis</translation>
    </message>
    <message>
        <source>Use OpenGL</source>
        <translation>Gunakan OpenGL</translation>
    </message>
    <message>
        <source>Antialiasing</source>
        <translation>Antialiasing</translation>
    </message>
    <message>
        <source>Physics</source>
        <translation>Fisika</translation>
    </message>
    <message>
        <source>Timer Interval</source>
        <translation>Interval pewaktu</translation>
    </message>
    <message>
        <source>Bodies Defaults</source>
        <translation>Bawaan benda</translation>
    </message>
    <message>
        <source>Linear Damping</source>
        <translation>Redaman linear</translation>
    </message>
    <message>
        <source>Angular Damping</source>
        <translation>Redaman sudut</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Gesekan</translation>
    </message>
    <message>
        <source>Restitution</source>
        <translation>Restitusi</translation>
    </message>
    <message>
        <source>Allow Sleep</source>
        <translation>Izinkan tidur</translation>
    </message>
    <message>
        <source>Is Bullet</source>
        <translation>Adalah peluru</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Umum</translation>
    </message>
    <message>
        <source>GUI Style</source>
        <translation>Gaya antarmuka</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Bahasa</translation>
    </message>
    <message>
        <source>Create ground on start-up</source>
        <translation>Buat tanah saat mulai</translation>
    </message>
    <message>
        <source>Show scale indicator</source>
        <translation>Tampilkan penunjuk skala</translation>
    </message>
    <message>
        <source>Show tips at start-up</source>
        <translation>Tampilkan kiat saat mulai</translation>
    </message>
    <message>
        <source>Attach script debugger</source>
        <translation>Pasang debugger skrip</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 md</translation>
    </message>
</context>
<context>
    <name>SnapWidget</name>
    <message>
        <source>Snap To Grid (F9)</source>
        <translation>Tempel ke kisi (F9)</translation>
    </message>
    <message>
        <source>Snaps to grid</source>
        <translation>Menempel ke kisi</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Ukuran:</translation>
    </message>
    <message>
        <source>Snap To Objects (F10)</source>
        <translation>Tempel ke objek (F10)</translation>
    </message>
    <message>
        <source>Snaps to objects</source>
        <translation>Menempel ke objek</translation>
    </message>
    <message>
        <source>Distance:</source>
        <translation>Jarak:</translation>
    </message>
</context>
<context>
    <name>SocialDialog</name>
    <message>
        <source>%1 is a &lt;b&gt;free software&lt;/b&gt;. Please &lt;b&gt;support it&lt;/b&gt; by submitting it to your favourite social networking sites using the buttons below.</source>
        <translation>%1 adalah &lt;b&gt;perangkat lunak bebas&lt;/b&gt;. &lt;b&gt;Dukunglah&lt;/b&gt; dengan membagikannya ke jejaring sosial favorit Anda melalui tombol di bawah.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Keluar</translation>
    </message>
    <message>
        <source>Please Support %1</source>
        <translation>Dukung %1</translation>
    </message>
</context>
<context>
    <name>SpringForceAction</name>
    <message>
        <source>Create Spring</source>
        <translation>Buat Pegas</translation>
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
        <translation>Redaman</translation>
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
        <translation>Buat Teks</translation>
    </message>
</context>
<context>
    <name>TextContextWidget</name>
    <message>
        <source>Text</source>
        <translation>Teks</translation>
    </message>
    <message>
        <source>Font Family</source>
        <translation>Jenis huruf</translation>
    </message>
    <message>
        <source>Font Size</source>
        <translation>Ukuran huruf</translation>
    </message>
</context>
<context>
    <name>TipDialog</name>
    <message>
        <source>Tip of the Day</source>
        <translation>Tip hari ini</translation>
    </message>
    <message>
        <source>Show tip at startup</source>
        <translation>Tampilkan tip saat mulai</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Sebelumnya</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Berikutnya</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Tutup</translation>
    </message>
    <message>
        <source>You could &lt;B&gt;improve rendering performance&lt;/B&gt; by enabling OpenGL in settings.</source>
        <translation>Anda dapat &lt;B&gt;mempercepat tampilan&lt;/B&gt; dengan mengaktifkan OpenGL di pengaturan.</translation>
    </message>
    <message>
        <source>You can show and hide the Property Editor using Shift+P.</source>
        <translation>Tampilkan dan sembunyikan Editor Properti dengan Shift+P.</translation>
    </message>
    <message>
        <source>You can show and hide the Console using Shift+~.</source>
        <translation>Tampilkan dan sembunyikan Konsol dengan Shift+~.</translation>
    </message>
    <message>
        <source>You can switch between &lt;B&gt;perspectives&lt;/B&gt; using &lt;I&gt;Alt + 1 .. 4&lt;/I&gt;.</source>
        <translation>Beralih antar &lt;B&gt;perspektif&lt;/B&gt; dengan &lt;I&gt;Alt + 1 .. 4&lt;/I&gt;.</translation>
    </message>
    <message>
        <source>&lt;B&gt;Download&lt;/B&gt; scenes that other people have created by selecting &lt;I&gt;File::Download&lt;/I&gt; from the menu bar.</source>
        <translation>&lt;B&gt;Unduh&lt;/B&gt; adegan buatan orang lain melalui &lt;I&gt;Berkas::Unduh&lt;/I&gt; di bilah menu.</translation>
    </message>
    <message>
        <source>You can &lt;B&gt;upload&lt;/B&gt; your scene to &lt;A HREF=&apos;%1&apos;&gt;%2&lt;/A&gt; by selecting &lt;I&gt;File::Upload&lt;/I&gt; from the menu bar.</source>
        <translation>Anda dapat &lt;B&gt;mengunggah&lt;/B&gt; adegan ke &lt;A HREF=&apos;%1&apos;&gt;%2&lt;/A&gt; melalui &lt;I&gt;Berkas::Unggah&lt;/I&gt; di bilah menu.</translation>
    </message>
</context>
<context>
    <name>UnionAction</name>
    <message>
        <source>Union</source>
        <translation>Gabungan</translation>
    </message>
</context>
<context>
    <name>UploadDialog</name>
    <message>
        <source>Basic</source>
        <translation>Dasar</translation>
    </message>
    <message>
        <source>Upload As</source>
        <translation>Unggah sebagai</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Masuk</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nama pengguna</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Kata sandi</translation>
    </message>
    <message>
        <source>Optional</source>
        <translation>Opsional</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategori</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Deskripsi</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Kata kunci</translation>
    </message>
    <message>
        <source>Uploading: %p%</source>
        <translation>Mengunggah: %p%</translation>
    </message>
    <message>
        <source>Bug Report</source>
        <translation>Laporan kutu</translation>
    </message>
    <message>
        <source>Educational</source>
        <translation>Edukasi</translation>
    </message>
    <message>
        <source>Mechanisms</source>
        <translation>Mekanisme</translation>
    </message>
    <message>
        <source>Ragdolls</source>
        <translation>Boneka</translation>
    </message>
    <message>
        <source>Vehicles</source>
        <translation>Kendaraan</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Umum</translation>
    </message>
    <message>
        <source>Anonymous User</source>
        <translation>Pengguna anonim</translation>
    </message>
    <message>
        <source>Registered User</source>
        <translation>Pengguna terdaftar</translation>
    </message>
    <message>
        <source>If you don&apos;t already have an account, you can create one &lt;a href=&apos;%1&apos;&gt;here&lt;/a&gt;</source>
        <translation>Jika belum punya akun, Anda dapat membuatnya &lt;a href=&apos;%1&apos;&gt;di sini&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Upload %1</source>
        <translation>Unggah %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Galat</translation>
    </message>
    <message>
        <source>Please fill in username and password</source>
        <translation>Isi nama pengguna dan kata sandi</translation>
    </message>
    <message>
        <source>Bad reply from server</source>
        <translation>Balasan server tidak valid</translation>
    </message>
    <message>
        <source>Could not reach the scene repository: %1</source>
        <translation>Tidak dapat menjangkau repositori adegan: %1</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Berhasil</translation>
    </message>
    <message>
        <source>Your scene has been successfully uploaded &lt;a href=&apos;%1&apos;&gt;here&lt;/a&gt;.</source>
        <translation>Adegan Anda berhasil diunggah &lt;a href=&apos;%1&apos;&gt;di sini&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>The server replied with the following message:
%1</source>
        <translation>Server membalas dengan pesan berikut:
%1</translation>
    </message>
</context>
<context>
    <name>XMLReader</name>
    <message>
        <source>Trying to load a scene which was created with another version of the application. </source>
        <translation>Memuat adegan yang dibuat dengan versi aplikasi yang lain. </translation>
    </message>
    <message>
        <source>(Scene version: %1 Application version: %2)</source>
        <translation>(Versi adegan: %1, versi aplikasi: %2)</translation>
    </message>
</context>
<context>
    <name>XPolygonF</name>
    <message>
        <source>Skipped %1 triangles</source>
        <translation>%1 segitiga dilewati</translation>
    </message>
</context>
</TS>
