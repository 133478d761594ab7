<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Благодарности</translation>
    </message>
    <message>
        <source>ChangeLog</source>
        <translation>Изменения</translation>
    </message>
    <message>
        <source>About </source>
        <translation>О программе </translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Could not remove temp directory.</source>
        <translation>Не удалось удалить временный каталог.</translation>
    </message>
    <message>
        <source>Could not create temp directory.</source>
        <translation>Не удалось создать временный каталог.</translation>
    </message>
    <message>
        <source>Could not set language: Unknown language: %1</source>
        <translation>Не удалось установить язык: неизвестный язык: %1</translation>
    </message>
    <message>
        <source>%1 has been successfully loaded.</source>
        <translation>%1 успешно загружен.</translation>
    </message>
    <message>
        <source>%1 failed to load.</source>
        <translation>Не удалось загрузить %1.</translation>
    </message>
    <message>
        <source>Script debugger attached.</source>
        <translation>Отладчик скриптов подключён.</translation>
    </message>
    <message>
        <source>Script debugger detached.</source>
        <translation>Отладчик скриптов отключён.</translation>
    </message>
    <message>
        <source>Supported OpenGL Versions:</source>
        <translation>Поддерживаемые версии OpenGL:</translation>
    </message>
    <message>
        <source>%1 is not evaluated: a script file may hold at most %2 MB.</source>
        <translation>%1 не выполняется: файл сценария может занимать не более %2 МБ.</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Загрузка...</translation>
    </message>
    <message>
        <source>The script was stopped.</source>
        <translation>Скрипт остановлен.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Could not open the scene %1.</source>
        <translation>Не удалось открыть сцену %1.</translation>
    </message>
</context>
<context>
    <name>BalloonAction</name>
    <message>
        <source>Create Balloon</source>
        <translation>Создать воздушный шар</translation>
    </message>
</context>
<context>
    <name>BrushAction</name>
    <message>
        <source>Create freehand shape</source>
        <translation>Создать фигуру от руки</translation>
    </message>
</context>
<context>
    <name>BrushContextWidget</name>
    <message>
        <source>Brush Size</source>
        <translation>Размер кисти</translation>
    </message>
</context>
<context>
    <name>BrushDialog</name>
    <message>
        <source>Select Brush</source>
        <translation>Выбор кисти</translation>
    </message>
    <message>
        <source>Color/Pattern</source>
        <translation>Цвет/Узор</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Цвет</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Выбрать...</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Узор</translation>
    </message>
    <message>
        <source>No Brush</source>
        <translation>Без заливки</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Сплошная</translation>
    </message>
    <message>
        <source>Dense1</source>
        <translation>Плотная 1</translation>
    </message>
    <message>
        <source>Dense2</source>
        <translation>Плотная 2</translation>
    </message>
    <message>
        <source>Dense3</source>
        <translation>Плотная 3</translation>
    </message>
    <message>
        <source>Dense4</source>
        <translation>Плотная 4</translation>
    </message>
    <message>
        <source>Dense5</source>
        <translation>Плотная 5</translation>
    </message>
    <message>
        <source>Dense6</source>
        <translation>Плотная 6</translation>
    </message>
    <message>
        <source>Dense7</source>
        <translation>Плотная 7</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Горизонталь</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Вертикаль</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>Клетка</translation>
    </message>
    <message>
        <source>Backward diagonal</source>
        <translation>Обратная диагональ</translation>
    </message>
    <message>
        <source>Forward diagonal</source>
        <translation>Прямая диагональ</translation>
    </message>
    <message>
        <source>Crossing diagonal</source>
        <translation>Косая клетка</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>Текстура</translation>
    </message>
    <message>
        <source>Auto Adjust</source>
        <translation>Подогнать</translation>
    </message>
    <message>
        <source>Horizontal scale</source>
        <translation>Масштаб по горизонтали</translation>
    </message>
    <message>
        <source>Vertical scale</source>
        <translation>Масштаб по вертикали</translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation>Сдвиг по горизонтали</translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation>Сдвиг по вертикали</translation>
    </message>
    <message>
        <source>Select Texture</source>
        <translation>Выбор текстуры</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp *.gif)</source>
        <translation>Изображения (*.png *.jpg *.bmp *.gif)</translation>
    </message>
</context>
<context>
    <name>CameraAction</name>
    <message>
        <source>Create Camera</source>
        <translation>Создать камеру</translation>
    </message>
</context>
<context>
    <name>CameraContextWidget</name>
    <message>
        <source>Camera Mode</source>
        <translation>Режим камеры</translation>
    </message>
    <message>
        <source>Remove All Cameras</source>
        <translation>Удалить все камеры</translation>
    </message>
    <message>
        <source>Use Default Viewport</source>
        <translation>Использовать основной вид</translation>
    </message>
    <message>
        <source>Create New Viewport</source>
        <translation>Создать новый вид</translation>
    </message>
</context>
<context>
    <name>CameraGraphicsView</name>
    <message>
        <source>Camera for %1</source>
        <translation>Камера для %1</translation>
    </message>
</context>
<context>
    <name>ChainAction</name>
    <message>
        <source>Create Chain</source>
        <translation>Создать цепь</translation>
    </message>
</context>
<context>
    <name>ChainContextWidget</name>
    <message>
        <source>Circle Radius</source>
        <translation>Радиус круга</translation>
    </message>
</context>
<context>
    <name>CircleAction</name>
    <message>
        <source>Create Circle</source>
        <translation>Создать круг</translation>
    </message>
    <message>
        <source>radius=%1</source>
        <translation>радиус=%1</translation>
    </message>
</context>
<context>
    <name>ColorContextWidget</name>
    <message>
        <source>Color</source>
        <translation>Цвет</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Выбрать...</translation>
    </message>
</context>
<context>
    <name>DifferenceAction</name>
    <message>
        <source>Difference</source>
        <translation>Разность</translation>
    </message>
</context>
<context>
    <name>DistanceJointAction</name>
    <message>
        <source>Create Distance Joint</source>
        <translation>Создать дистанционное соединение</translation>
    </message>
</context>
<context>
    <name>DownloadDialog</name>
    <message>
        <source>Maximum number of scenes to download</source>
        <translation>Наибольшее число сцен для загрузки</translation>
    </message>
    <message>
        <source>Save to</source>
        <translation>Сохранить в</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Обзор...</translation>
    </message>
    <message>
        <source>Download scenes from %1</source>
        <translation>Загрузить сцены с %1</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>Выбрать папку</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Failed to retrieve file list from server.</source>
        <translation>Не удалось получить список файлов с сервера.</translation>
    </message>
</context>
<context>
    <name>DownloadProgressDialog</name>
    <message>
        <source>Scene Filename</source>
        <translation>Файл сцены</translation>
    </message>
    <message>
        <source>Download Information</source>
        <translation>Сведения о загрузке</translation>
    </message>
    <message>
        <source>Refused: not a file of this folder.</source>
        <translation>Отклонено: не файл этой папки.</translation>
    </message>
    <message>
        <source>Download Progress</source>
        <translation>Ход загрузки</translation>
    </message>
    <message>
        <source>Successfully downloaded.</source>
        <translation>Успешно загружено.</translation>
    </message>
    <message>
        <source>Already downloaded.</source>
        <translation>Уже загружено.</translation>
    </message>
    <message>
        <source>Failed to open file for writing.</source>
        <translation>Не удалось открыть файл для записи.</translation>
    </message>
    <message>
        <source>Refused: larger than %1 MB.</source>
        <translation>Отклонено: больше %1 МБ.</translation>
    </message>
</context>
<context>
    <name>EraseAction</name>
    <message>
        <source>Erase Item</source>
        <translation>Стереть часть объекта</translation>
    </message>
</context>
<context>
    <name>EraseContextWidget</name>
    <message>
        <source>Eraser Size</source>
        <translation>Размер ластика</translation>
    </message>
</context>
<context>
    <name>ExplodeAction</name>
    <message>
        <source>Explode Item</source>
        <translation>Взорвать объект</translation>
    </message>
</context>
<context>
    <name>ExplodeContextWidget</name>
    <message>
        <source>Explode Method</source>
        <translation>Способ взрыва</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Triangulate</source>
        <translation>Разбить на треугольники</translation>
    </message>
    <message>
        <source>Squarify</source>
        <translation>Разбить на квадраты</translation>
    </message>
    <message>
        <source>Circlify</source>
        <translation>Разбить на круги</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>Image Export</source>
        <translation>Экспорт изображения</translation>
    </message>
    <message>
        <source>Directory</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Обзор...</translation>
    </message>
    <message>
        <source>Filename</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>(without extension)</source>
        <translation>(без расширения)</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Ширина</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Высота</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Формат</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Качество</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>Выбрать папку</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Please enter a file name.</source>
        <translation>Введите имя файла.</translation>
    </message>
    <message>
        <source>File %1 already exists</source>
        <translation>Файл %1 уже существует</translation>
    </message>
    <message>
        <source>Failed to save image</source>
        <translation>Не удалось сохранить изображение</translation>
    </message>
</context>
<context>
    <name>GearAction</name>
    <message>
        <source>Create Gear</source>
        <translation>Создать шестерню</translation>
    </message>
</context>
<context>
    <name>GearContextWidget</name>
    <message>
        <source>Gear Tooth Size</source>
        <translation>Размер зуба</translation>
    </message>
    <message>
        <source>Gear Tooth Count Divisor</source>
        <translation>Делитель числа зубьев</translation>
    </message>
    <message>
        <source>Create Revolute Joint</source>
        <translation>Создать шарнирное соединение</translation>
    </message>
</context>
<context>
    <name>GraphicsView</name>
    <message>
        <source>OpenGL is not available here; the view draws without it.</source>
        <translation>OpenGL здесь недоступен; вид отрисовывается без него.</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 м</translation>
    </message>
    <message>
        <source>OpenGL draws in software here (%1); the view draws without it, which is faster.</source>
        <translation>OpenGL здесь рисует программно (%1); вид рисует без него, так быстрее.</translation>
    </message>
</context>
<context>
    <name>GraphicsViewPropertiesWidget</name>
    <message>
        <source>Background</source>
        <translation>Фон</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Выбрать...</translation>
    </message>
    <message>
        <source>Body With Camera</source>
        <translation>Тело с камерой</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Масштаб</translation>
    </message>
</context>
<context>
    <name>GunAction</name>
    <message>
        <source>Shoot Item</source>
        <translation>Выстрелить объектом</translation>
    </message>
</context>
<context>
    <name>HelpWidget</name>
    <message>
        <source>Brivane Help</source>
        <translation>Справка Brivane</translation>
    </message>
</context>
<context>
    <name>ImageAction</name>
    <message>
        <source>Create Image</source>
        <translation>Создать из изображения</translation>
    </message>
</context>
<context>
    <name>ImageContextWidget</name>
    <message>
        <source>Image</source>
        <translation>Изображение</translation>
    </message>
    <message>
        <source>Select...</source>
        <translation>Выбрать...</translation>
    </message>
    <message>
        <source>Polygon Threshold</source>
        <translation>Порог многоугольника</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Масштаб</translation>
    </message>
    <message>
        <source>Select Image</source>
        <translation>Выбрать изображение</translation>
    </message>
    <message>
        <source>Images (*.png *.xpm *.jpg)</source>
        <translation>Изображения (*.png *.xpm *.jpg)</translation>
    </message>
</context>
<context>
    <name>IntersectionAction</name>
    <message>
        <source>Intersection</source>
        <translation>Пересечение</translation>
    </message>
</context>
<context>
    <name>JSDialog</name>
    <message>
        <source>The program contains a syntax error.</source>
        <translation>В программе синтаксическая ошибка.</translation>
    </message>
    <message>
        <source>The program is incomplete.</source>
        <translation>Программа не завершена.</translation>
    </message>
    <message>
        <source>

[Line: %1, Column: %2]</source>
        <translation>

[Строка: %1, Столбец: %2]</translation>
    </message>
</context>
<context>
    <name>LinkContextWidget</name>
    <message>
        <source>Attach Point</source>
        <translation>Точка крепления</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Первая</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Последняя</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Обе</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>New Scene</source>
        <translation>Новая сцена</translation>
    </message>
    <message>
        <source>Creates a new scene</source>
        <translation>Создаёт новую сцену</translation>
    </message>
    <message>
        <source>Save Scene</source>
        <translation>Сохранить сцену</translation>
    </message>
    <message>
        <source>Saves current scene</source>
        <translation>Сохраняет текущую сцену</translation>
    </message>
    <message>
        <source>Save Scene As...</source>
        <translation>Сохранить сцену как...</translation>
    </message>
    <message>
        <source>Saves current scene as</source>
        <translation>Сохраняет текущую сцену под другим именем</translation>
    </message>
    <message>
        <source>Load Scene...</source>
        <translation>Загрузить сцену...</translation>
    </message>
    <message>
        <source>Loads a scene</source>
        <translation>Загружает сцену</translation>
    </message>
    <message>
        <source>Upload Scene...</source>
        <translation>Отправить сцену...</translation>
    </message>
    <message>
        <source>Uploads current scene to %1</source>
        <translation>Отправляет текущую сцену на %1</translation>
    </message>
    <message>
        <source>Download Scenes...</source>
        <translation>Скачать сцены...</translation>
    </message>
    <message>
        <source>Downloads scenes from %1</source>
        <translation>Скачивает сцены с %1</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Экспорт...</translation>
    </message>
    <message>
        <source>Exports current scene as an image</source>
        <translation>Экспортирует текущую сцену в изображение</translation>
    </message>
    <message>
        <source>Evaluate Script...</source>
        <translation>Выполнить скрипт...</translation>
    </message>
    <message>
        <source>Evaluates a .script file</source>
        <translation>Выполняет файл .script</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Quits the application</source>
        <translation>Завершает работу приложения</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Выделить всё</translation>
    </message>
    <message>
        <source>Selects all items of the scene</source>
        <translation>Выделяет все объекты сцены</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Увеличить</translation>
    </message>
    <message>
        <source>Zooms in</source>
        <translation>Увеличивает масштаб</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Уменьшить</translation>
    </message>
    <message>
        <source>Zooms out</source>
        <translation>Уменьшает масштаб</translation>
    </message>
    <message>
        <source>Zoom Extents</source>
        <translation>Показать всю сцену</translation>
    </message>
    <message>
        <source>Zooms in or out to fit the extents of the scene</source>
        <translation>Изменяет масштаб так, чтобы была видна вся сцена</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Показать все</translation>
    </message>
    <message>
        <source>Shows all toolbars</source>
        <translation>Показывает все панели инструментов</translation>
    </message>
    <message>
        <source>Hide all</source>
        <translation>Скрыть все</translation>
    </message>
    <message>
        <source>Hides all toolbars</source>
        <translation>Скрывает все панели инструментов</translation>
    </message>
    <message>
        <source>Shows all dock widgets</source>
        <translation>Показывает все прикрепляемые панели</translation>
    </message>
    <message>
        <source>Hides all dock widgets</source>
        <translation>Скрывает все прикрепляемые панели</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Полноэкранный режим</translation>
    </message>
    <message>
        <source>Toggles fullscreen mode</source>
        <translation>Включает или выключает полноэкранный режим</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Shows the application&apos;s help file</source>
        <translation>Открывает файл справки приложения</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>О программе...</translation>
    </message>
    <message>
        <source>Shows the application&apos;s About box</source>
        <translation>Показывает окно «О программе»</translation>
    </message>
    <message>
        <source>About Qt...</source>
        <translation>О Qt...</translation>
    </message>
    <message>
        <source>Shows the Qt library&apos;s About box</source>
        <translation>Показывает окно сведений о библиотеке Qt</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Пуск/Пауза</translation>
    </message>
    <message>
        <source>Starts/Pauses the simulation</source>
        <translation>Запускает или приостанавливает симуляцию</translation>
    </message>
    <message>
        <source>Select/Move</source>
        <translation>Выбрать/Переместить</translation>
    </message>
    <message>
        <source>Selects and/or moves an item</source>
        <translation>Выделяет и/или перемещает объект</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Removes an item or a selection of items from the scene</source>
        <translation>Удаляет объект или выделенные объекты со сцены</translation>
    </message>
    <message>
        <source>Explode Item</source>
        <translation>Взорвать объект</translation>
    </message>
    <message>
        <source>Explodes an item</source>
        <translation>Взрывает объект</translation>
    </message>
    <message>
        <source>Erase Item</source>
        <translation>Стереть часть объекта</translation>
    </message>
    <message>
        <source>Erases parts of an item</source>
        <translation>Стирает части объекта</translation>
    </message>
    <message>
        <source>Create Camera</source>
        <translation>Создать камеру</translation>
    </message>
    <message>
        <source>Creates a camera that follows an item</source>
        <translation>Создаёт камеру, следующую за объектом</translation>
    </message>
    <message>
        <source>Create Tracer</source>
        <translation>Создать след</translation>
    </message>
    <message>
        <source>Creates a tracer that follows an item</source>
        <translation>Создаёт след, отслеживающий объект</translation>
    </message>
    <message>
        <source>Shoot Item</source>
        <translation>Выстрелить объектом</translation>
    </message>
    <message>
        <source>Shoots an item</source>
        <translation>Стреляет объектом</translation>
    </message>
    <message>
        <source>Create Plot</source>
        <translation>Создать график</translation>
    </message>
    <message>
        <source>Creates a plot for a given item</source>
        <translation>Создаёт график для выбранного объекта</translation>
    </message>
    <message>
        <source>Create Rectangle</source>
        <translation>Создать прямоугольник</translation>
    </message>
    <message>
        <source>Creates a rectangle</source>
        <translation>Создаёт прямоугольник</translation>
    </message>
    <message>
        <source>Create Circle</source>
        <translation>Создать круг</translation>
    </message>
    <message>
        <source>Creates a circle</source>
        <translation>Создаёт круг</translation>
    </message>
    <message>
        <source>Create Polygon</source>
        <translation>Создать многоугольник</translation>
    </message>
    <message>
        <source>Creates a polygon</source>
        <translation>Создаёт многоугольник</translation>
    </message>
    <message>
        <source>Create Balloon</source>
        <translation>Создать воздушный шар</translation>
    </message>
    <message>
        <source>Creates a balloon</source>
        <translation>Создаёт воздушный шар</translation>
    </message>
    <message>
        <source>Create freehand shape</source>
        <translation>Создать фигуру от руки</translation>
    </message>
    <message>
        <source>Freehand drawing of random shapes</source>
        <translation>Рисование произвольных фигур от руки</translation>
    </message>
    <message>
        <source>Create Chain</source>
        <translation>Создать цепь</translation>
    </message>
    <message>
        <source>Creates a chain</source>
        <translation>Создаёт цепь</translation>
    </message>
    <message>
        <source>Create Rope</source>
        <translation>Создать верёвку</translation>
    </message>
    <message>
        <source>Creates a rope</source>
        <translation>Создаёт верёвку</translation>
    </message>
    <message>
        <source>Create Text</source>
        <translation>Создать текст</translation>
    </message>
    <message>
        <source>Creates items from text</source>
        <translation>Создаёт объекты из текста</translation>
    </message>
    <message>
        <source>Create Gear</source>
        <translation>Создать шестерню</translation>
    </message>
    <message>
        <source>Creates a gear</source>
        <translation>Создаёт шестерню</translation>
    </message>
    <message>
        <source>Create Image</source>
        <translation>Создать из изображения</translation>
    </message>
    <message>
        <source>Creates a shape based on the outline of a (png) image</source>
        <translation>Создаёт фигуру по контуру изображения (PNG)</translation>
    </message>
    <message>
        <source>Create Distance Joint</source>
        <translation>Создать дистанционное соединение</translation>
    </message>
    <message>
        <source>Creates a distance joint between two items (or an item and the background)</source>
        <translation>Создаёт дистанционное соединение между двумя объектами (или между объектом и фоном)</translation>
    </message>
    <message>
        <source>Create Revolute Joint</source>
        <translation>Создать шарнирное соединение</translation>
    </message>
    <message>
        <source>Creates a revolute joint between two items (or an item and the background)</source>
        <translation>Создаёт шарнирное соединение между двумя объектами (или между объектом и фоном)</translation>
    </message>
    <message>
        <source>Create Prismatic Joint</source>
        <translation>Создать призматическое соединение</translation>
    </message>
    <message>
        <source>Creates a prismatic joint between two items</source>
        <translation>Создаёт призматическое соединение между двумя объектами</translation>
    </message>
    <message>
        <source>Create Pulley Joint</source>
        <translation>Создать блочное соединение</translation>
    </message>
    <message>
        <source>Creates a pulley joint between two items</source>
        <translation>Создаёт блочное соединение между двумя объектами</translation>
    </message>
    <message>
        <source>Create Spring</source>
        <translation>Создать пружину</translation>
    </message>
    <message>
        <source>Creates a spring between two items</source>
        <translation>Создаёт пружину между двумя объектами</translation>
    </message>
    <message>
        <source>Union</source>
        <translation>Объединение</translation>
    </message>
    <message>
        <source>Creates an item from the union of two other items</source>
        <translation>Создаёт объект из объединения двух других объектов</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Разность</translation>
    </message>
    <message>
        <source>Creates an item from the difference of two other items</source>
        <translation>Создаёт объект из разности двух других объектов</translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation>Пересечение</translation>
    </message>
    <message>
        <source>Creates an item from the intersection of two other items</source>
        <translation>Создаёт объект из пересечения двух других объектов</translation>
    </message>
    <message>
        <source>General Toolbar</source>
        <translation>Основная панель инструментов</translation>
    </message>
    <message>
        <source>Bodies Toolbar</source>
        <translation>Панель тел</translation>
    </message>
    <message>
        <source>Joints Toolbar</source>
        <translation>Панель соединений</translation>
    </message>
    <message>
        <source>Forces Toolbar</source>
        <translation>Панель сил</translation>
    </message>
    <message>
        <source>Boolean Toolbar</source>
        <translation>Панель булевых операций</translation>
    </message>
    <message>
        <source>Snap Toolbar</source>
        <translation>Панель привязки</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>Консоль</translation>
    </message>
    <message>
        <source>Scene Properties</source>
        <translation>Свойства сцены</translation>
    </message>
    <message>
        <source>Property Editor</source>
        <translation>Редактор свойств</translation>
    </message>
    <message>
        <source>Quick Load</source>
        <translation>Быстрая загрузка</translation>
    </message>
    <message>
        <source>Commands History</source>
        <translation>История команд</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Масштаб</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Панели инструментов</translation>
    </message>
    <message>
        <source>Dock Widgets</source>
        <translation>Прикрепляемые панели</translation>
    </message>
    <message>
        <source>Perspectives</source>
        <translation>Перспективы</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Action Context Toolbar</source>
        <translation>Контекстная панель инструмента</translation>
    </message>
    <message>
        <source>New file created</source>
        <translation>Создан новый файл</translation>
    </message>
    <message>
        <source>File saved (%1)</source>
        <translation>Файл сохранён (%1)</translation>
    </message>
    <message>
        <source>File loaded (%1)</source>
        <translation>Файл загружен (%1)</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Загрузить</translation>
    </message>
    <message>
        <source>*.script</source>
        <translation>*.script</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Stop Script</source>
        <translation>Остановить скрипт</translation>
    </message>
    <message>
        <source>Stops the script that is running (Escape)</source>
        <translation>Останавливает выполняемый скрипт (Escape)</translation>
    </message>
    <message>
        <source>Upload Scene</source>
        <translation>Отправить сцену</translation>
    </message>
    <message>
        <source>The scene needs to be saved before uploading.
Please save the scene and try again.</source>
        <translation>Перед отправкой сцену нужно сохранить.
Сохраните сцену и попробуйте снова.</translation>
    </message>
</context>
<context>
    <name>PhysicsWorldPropertiesWidget</name>
    <message>
        <source>Gravity</source>
        <translation>Гравитация</translation>
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
        <translation>Частота шагов</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Гц</translation>
    </message>
    <message>
        <source>Iterations</source>
        <translation>Итерации</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Положение</translation>
    </message>
    <message>
        <source>Warm Starting</source>
        <translation>Тёплый старт</translation>
    </message>
    <message>
        <source>Continuous Physics</source>
        <translation>Непрерывная физика</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Сведения</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Секунды</translation>
    </message>
    <message>
        <source>Bodies</source>
        <translation>Тела</translation>
    </message>
    <message>
        <source>Joints</source>
        <translation>Соединения</translation>
    </message>
</context>
<context>
    <name>PlayPauseAction</name>
    <message>
        <source>Play/Pause</source>
        <translation>Пуск/Пауза</translation>
    </message>
</context>
<context>
    <name>PlotAction</name>
    <message>
        <source>Create Plot</source>
        <translation>Создать график</translation>
    </message>
</context>
<context>
    <name>PlotWidget</name>
    <message>
        <source>Speed</source>
        <translation>Скорость</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Ускорение</translation>
    </message>
    <message>
        <source>Time (sec)</source>
        <translation>Время (с)</translation>
    </message>
    <message>
        <source>Speed (m/sec)</source>
        <translation>Скорость (м/с)</translation>
    </message>
</context>
<context>
    <name>PolygonAction</name>
    <message>
        <source>Create Polygon</source>
        <translation>Создать многоугольник</translation>
    </message>
</context>
<context>
    <name>PolygonClipper</name>
    <message>
        <source>Clipper Failed...</source>
        <translation>Ошибка Clipper...</translation>
    </message>
</context>
<context>
    <name>PrismaticJointAction</name>
    <message>
        <source>Create Prismatic Joint</source>
        <translation>Создать призматическое соединение</translation>
    </message>
</context>
<context>
    <name>PropertyDelegate</name>
    <message>
        <source>Select Color</source>
        <translation>Выбор цвета</translation>
    </message>
</context>
<context>
    <name>PropertyEditorWidget</name>
    <message>
        <source>&lt;div align=&apos;right&apos;&gt;&lt;i&gt;&lt;font size=&apos;10px&apos;&gt;(Edit properties with double-click)&lt;/font&gt;&lt;/i&gt;&lt;/div&gt;</source>
        <translation>&lt;div align=&apos;right&apos;&gt;&lt;i&gt;&lt;font size=&apos;10px&apos;&gt;(Свойства изменяются двойным щелчком)&lt;/font&gt;&lt;/i&gt;&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Brush</source>
        <translation>Кисть</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Выбрать</translation>
    </message>
    <message>
        <source>Specify the filter categories that %1 belongs to.</source>
        <translation>Укажите категории фильтра, к которым относится %1.</translation>
    </message>
    <message>
        <source>Specify the filter categories that %1 collides with.</source>
        <translation>Укажите категории фильтра, с которыми сталкивается %1.</translation>
    </message>
</context>
<context>
    <name>PropertyModel</name>
    <message>
        <source>Property</source>
        <translation>Свойство</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
</context>
<context>
    <name>PulleyJointAction</name>
    <message>
        <source>Create Pulley Joint</source>
        <translation>Создать блочное соединение</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Version: %1</source>
        <translation>Версия: %1</translation>
    </message>
    <message>
        <source>Made by the Brivane Project</source>
        <translation>Создано проектом Brivane</translation>
    </message>
    <message>
        <source>Balloon</source>
        <translation>Воздушный шар</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Круг</translation>
    </message>
    <message>
        <source>Distance Joint</source>
        <translation>Дистанционное соединение</translation>
    </message>
    <message>
        <source>Linear Impulse</source>
        <translation>Линейный импульс</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Пуск</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Многоугольник</translation>
    </message>
    <message>
        <source>Prismatic Joint</source>
        <translation>Призматическое соединение</translation>
    </message>
    <message>
        <source>Pulley Joint</source>
        <translation>Блочное соединение</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Прямоугольник</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Revolute Joint</source>
        <translation>Шарнирное соединение</translation>
    </message>
    <message>
        <source>Spring Force</source>
        <translation>Сила пружины</translation>
    </message>
    <message>
        <source>Gear</source>
        <translation>Шестерня</translation>
    </message>
    <message>
        <source>Union</source>
        <translation>Объединение</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Разность</translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation>Пересечение</translation>
    </message>
    <message>
        <source>Circlify</source>
        <translation>Разбить на круги</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Стирание</translation>
    </message>
    <message>
        <source>Not exploded: %1 pieces would be made, more than %2.</source>
        <translation>Не разбито: получилось бы %1 частей, больше чем %2.</translation>
    </message>
    <message>
        <source>Squarify</source>
        <translation>Разбить на квадраты</translation>
    </message>
    <message>
        <source>Triangulate</source>
        <translation>Разбить на треугольники</translation>
    </message>
    <message>
        <source>Chain</source>
        <translation>Цепь</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Изображение</translation>
    </message>
    <message>
        <source>Rope</source>
        <translation>Верёвка</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>A two-dimensional physics sandbox.</source>
        <translation>Двумерная физическая песочница.</translation>
    </message>
    <message>
        <source>A scene file to open.</source>
        <translation>Файл сцены для открытия.</translation>
    </message>
    <message>
        <source>Updates Available</source>
        <translation>Доступны обновления</translation>
    </message>
    <message>
        <source>A new version of Brivane is available.
Update the application?</source>
        <translation>Доступна новая версия Brivane.
Обновить программу?</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Failed to launch the updater.
Please run it manually using the following command:

%1/maintenancetool</source>
        <translation>Не удалось запустить программу обновления.
Запустите её вручную командой:

%1/maintenancetool</translation>
    </message>
</context>
<context>
    <name>QuickLoadWidget</name>
    <message>
        <source>Icon SIze</source>
        <translation>Размер значков</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Обзор...</translation>
    </message>
    <message>
        <source>Open Directory</source>
        <translation>Открыть папку</translation>
    </message>
</context>
<context>
    <name>RectangleAction</name>
    <message>
        <source>Create Rectangle</source>
        <translation>Создать прямоугольник</translation>
    </message>
    <message>
        <source>width=%1
height=%2</source>
        <translation>ширина=%1
высота=%2</translation>
    </message>
</context>
<context>
    <name>RemoveAction</name>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
</context>
<context>
    <name>RevoluteJointAction</name>
    <message>
        <source>Create Revolute Joint</source>
        <translation>Создать шарнирное соединение</translation>
    </message>
</context>
<context>
    <name>RevoluteJointContextWidget</name>
    <message>
        <source>Radius</source>
        <translation>Радиус</translation>
    </message>
</context>
<context>
    <name>RopeAction</name>
    <message>
        <source>Create Rope</source>
        <translation>Создать верёвку</translation>
    </message>
</context>
<context>
    <name>RopeContextWidget</name>
    <message>
        <source>Rectangle Width</source>
        <translation>Ширина прямоугольника</translation>
    </message>
</context>
<context>
    <name>ScenePropertiesWidget</name>
    <message>
        <source>Physics World</source>
        <translation>Физический мир</translation>
    </message>
    <message>
        <source>Graphics View</source>
        <translation>Вид</translation>
    </message>
</context>
<context>
    <name>SelectAction</name>
    <message>
        <source>Select/Move</source>
        <translation>Выбрать/Переместить</translation>
    </message>
</context>
<context>
    <name>SettingsWidget</name>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>Графика</translation>
    </message>
    <message>
        <source>Use OpenGL</source>
        <translation>Использовать OpenGL</translation>
    </message>
    <message>
        <source>Antialiasing</source>
        <translation>Сглаживание</translation>
    </message>
    <message>
        <source>Physics</source>
        <translation>Физика</translation>
    </message>
    <message>
        <source>Timer Interval</source>
        <translation>Интервал таймера</translation>
    </message>
    <message>
        <source>Bodies Defaults</source>
        <translation>Значения для новых тел</translation>
    </message>
    <message>
        <source>Linear Damping</source>
        <translation>Линейное затухание</translation>
    </message>
    <message>
        <source>Angular Damping</source>
        <translation>Угловое затухание</translation>
    </message>
    <message>
        <source>Friction</source>
        <translation>Трение</translation>
    </message>
    <message>
        <source>Restitution</source>
        <translation>Упругость</translation>
    </message>
    <message>
        <source>Allow Sleep</source>
        <translation>Разрешить сон</translation>
    </message>
    <message>
        <source>Is Bullet</source>
        <translation>Снаряд</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>GUI Style</source>
        <translation>Стиль интерфейса</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Create ground on start-up</source>
        <translation>Создавать землю при запуске</translation>
    </message>
    <message>
        <source>Show scale indicator</source>
        <translation>Показывать масштаб</translation>
    </message>
    <message>
        <source>Show tips at start-up</source>
        <translation>Показывать советы при запуске</translation>
    </message>
    <message>
        <source>Attach script debugger</source>
        <translation>Подключить отладчик скриптов</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 мс</translation>
    </message>
</context>
<context>
    <name>SnapWidget</name>
    <message>
        <source>Snap To Grid (F9)</source>
        <translation>Привязка к сетке (F9)</translation>
    </message>
    <message>
        <source>Snaps to grid</source>
        <translation>Привязывает к сетке</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Размер:</translation>
    </message>
    <message>
        <source>Snap To Objects (F10)</source>
        <translation>Привязка к объектам (F10)</translation>
    </message>
    <message>
        <source>Snaps to objects</source>
        <translation>Привязывает к объектам</translation>
    </message>
    <message>
        <source>Distance:</source>
        <translation>Расстояние:</translation>
    </message>
</context>
<context>
    <name>SocialDialog</name>
    <message>
        <source>%1 is a &lt;b&gt;free software&lt;/b&gt;. Please &lt;b&gt;support it&lt;/b&gt; by submitting it to your favourite social networking sites using the buttons below.</source>
        <translation>%1 — &lt;b&gt;свободная программа&lt;/b&gt;. &lt;b&gt;Поддержите её&lt;/b&gt;, поделившись ею в любимых социальных сетях с помощью кнопок ниже.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Please Support %1</source>
        <translation>Поддержите %1</translation>
    </message>
</context>
<context>
    <name>SpringForceAction</name>
    <message>
        <source>Create Spring</source>
        <translation>Создать пружину</translation>
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
        <translation>Затухание</translation>
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
        <translation>Создать текст</translation>
    </message>
</context>
<context>
    <name>TextContextWidget</name>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Font Family</source>
        <translation>Шрифт</translation>
    </message>
    <message>
        <source>Font Size</source>
        <translation>Размер шрифта</translation>
    </message>
</context>
<context>
    <name>TipDialog</name>
    <message>
        <source>Tip of the Day</source>
        <translation>Совет дня</translation>
    </message>
    <message>
        <source>Show tip at startup</source>
        <translation>Показывать совет при запуске</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>You could &lt;B&gt;improve rendering performance&lt;/B&gt; by enabling OpenGL in settings.</source>
        <translation>Можно &lt;B&gt;ускорить отрисовку&lt;/B&gt;, включив OpenGL в настройках.</translation>
    </message>
    <message>
        <source>You can show and hide the Property Editor using Shift+P.</source>
        <translation>Редактор свойств показывается и скрывается клавишами Shift+P.</translation>
    </message>
    <message>
        <source>You can show and hide the Console using Shift+~.</source>
        <translation>Консоль показывается и скрывается клавишами Shift+~.</translation>
    </message>
    <message>
        <source>You can switch between &lt;B&gt;perspectives&lt;/B&gt; using &lt;I&gt;Alt + 1 .. 4&lt;/I&gt;.</source>
        <translation>Переключайте &lt;B&gt;раскладки окна&lt;/B&gt; клавишами &lt;I&gt;Alt + 1 .. 4&lt;/I&gt;.</translation>
    </message>
    <message>
        <source>&lt;B&gt;Download&lt;/B&gt; scenes that other people have created by selecting &lt;I&gt;File::Download&lt;/I&gt; from the menu bar.</source>
        <translation>&lt;B&gt;Скачивайте&lt;/B&gt; сцены других людей через &lt;I&gt;Файл::Скачать&lt;/I&gt; в строке меню.</translation>
    </message>
    <message>
        <source>You can &lt;B&gt;upload&lt;/B&gt; your scene to &lt;A HREF=&apos;%1&apos;&gt;%2&lt;/A&gt; by selecting &lt;I&gt;File::Upload&lt;/I&gt; from the menu bar.</source>
        <translation>Свою сцену можно &lt;B&gt;отправить&lt;/B&gt; на &lt;A HREF=&apos;%1&apos;&gt;%2&lt;/A&gt; через &lt;I&gt;Файл::Отправить&lt;/I&gt; в строке меню.</translation>
    </message>
</context>
<context>
    <name>UnionAction</name>
    <message>
        <source>Union</source>
        <translation>Объединение</translation>
    </message>
</context>
<context>
    <name>UploadDialog</name>
    <message>
        <source>Basic</source>
        <translation>Основное</translation>
    </message>
    <message>
        <source>Upload As</source>
        <translation>Отправить как</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Вход</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>Optional</source>
        <translation>Дополнительно</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Категория</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Ключевые слова</translation>
    </message>
    <message>
        <source>Uploading: %p%</source>
        <translation>Отправка: %p%</translation>
    </message>
    <message>
        <source>Bug Report</source>
        <translation>Сообщение об ошибке</translation>
    </message>
    <message>
        <source>Educational</source>
        <translation>Учебное</translation>
    </message>
    <message>
        <source>Mechanisms</source>
        <translation>Механизмы</translation>
    </message>
    <message>
        <source>Ragdolls</source>
        <translation>Куклы</translation>
    </message>
    <message>
        <source>Vehicles</source>
        <translation>Машины</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Anonymous User</source>
        <translation>Анонимный пользователь</translation>
    </message>
    <message>
        <source>Registered User</source>
        <translation>Зарегистрированный пользователь</translation>
    </message>
    <message>
        <source>If you don&apos;t already have an account, you can create one &lt;a href=&apos;%1&apos;&gt;here&lt;/a&gt;</source>
        <translation>Если у вас ещё нет учётной записи, её можно создать &lt;a href=&apos;%1&apos;&gt;здесь&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Upload %1</source>
        <translation>Отправить %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Please fill in username and password</source>
        <translation>Введите имя пользователя и пароль</translation>
    </message>
    <message>
        <source>Bad reply from server</source>
        <translation>Неверный ответ сервера</translation>
    </message>
    <message>
        <source>Could not reach the scene repository: %1</source>
        <translation>Не удалось связаться с хранилищем сцен: %1</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Your scene has been successfully uploaded &lt;a href=&apos;%1&apos;&gt;here&lt;/a&gt;.</source>
        <translation>Ваша сцена успешно отправлена &lt;a href=&apos;%1&apos;&gt;сюда&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>The server replied with the following message:
%1</source>
        <translation>Сервер ответил следующим сообщением:
%1</translation>
    </message>
</context>
<context>
    <name>XMLReader</name>
    <message>
        <source>Trying to load a scene which was created with another version of the application. </source>
        <translation>Загружается сцена, созданная другой версией программы. </translation>
    </message>
    <message>
        <source>(Scene version: %1 Application version: %2)</source>
        <translation>(Версия сцены: %1, версия программы: %2)</translation>
    </message>
</context>
<context>
    <name>XPolygonF</name>
    <message>
        <source>Skipped %1 triangles</source>
        <translation>Пропущено треугольников: %1</translation>
    </message>
</context>
</TS>
