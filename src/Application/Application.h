#pragma once

#include "Application/Brivane.h"

#include <QApplication>
#include <QHash>
#include <QLocale>
#include <QScriptEngine>
#include <QScriptValue>
#include <QStringList>

class BodyItem;
class MainWindow;
class QScriptEngineDebugger;
class ScriptRunner;
class QTranslator;
class QUndoStack;

// The program's QApplication and root object. It sets the process identity, owns the
// translators, the undo stack, the script engine and the main window, empties the temporary
// directory at start, and offers the whole-program slots that scripts and tools call.
class Application : public QApplication
{
    Q_OBJECT

public:
    Application(int& argc, char** argv);
    ~Application() override;

    // The running Application, or null where the process has a plain QApplication (tests of
    // single classes).
    static Application* instance();

    // Sends a console message through the running Application's debug(); without one the
    // message goes to the framework log, where tests can read it.
    static void report(const QString& text,
                       Brivane::ConsoleMessageType messageType = Brivane::Info);

    // Whether the program runs from an installation, which marks itself with a file beside the
    // executable: it then writes only to the user's folders, not beside itself.
    static bool isInstalled();
    // The temporary directory of the program: the system's temporary path and the
    // application name, or the user's cache folder of the program when installed.
    static QString temporaryDirectory();
    // A folder of the data beside the executable, such as "saves" or "textures".
    static QString dataDirectory(const QString& name);
    // Where scenes are saved: the data's "saves" folder, or when installed a folder of the
    // user's, which starts as a copy of the example scenes.
    static QString savesDirectory();
    // Follows the body with the main view, or with a window of its own; other modes do
    // nothing.
    void createCamera(BodyItem* pItem, Brivane::CameraMode cameraMode);

    // Second stage of start-up: the main window, its layout, the script engine. The scene
    // file, if any, is loaded in place of the new scene once the event loop runs.
    void initialise(const QString& sceneFile = QString());

    // Creates the script engine, imports the extensions, sets the globals app, world,
    // mainWindow and graphicsView, registers the item types and runs the autoload scripts.
    void setupScriptEngine();
    // Evaluates the *.script files of a directory, ToolBox.script first, then by name with
    // case ignored, with one console line for each.
    void autoloadScripts(const QString& directory);
    void attachScriptDebugger();
    void detachScriptDebugger();

    // How every program object is wrapped for scripts: only its owner may delete it.
    static constexpr QScriptEngine::QObjectWrapOptions scriptWrapOptions
        = QScriptEngine::ExcludeDeleteLater;

    // Whether the program's script engine is in the middle of a script: then events are
    // processed only from inside it.
    static bool scriptEvaluating();

    // Whether an OpenGL context can be made here at all.
    static bool canCreateOpenGLContext();
    // The GL_RENDERER text of this system's OpenGL, read once; empty without a context.
    static QString openGLRenderer();
    // Whether a renderer draws on the processor (llvmpipe, softpipe, swrast and the like),
    // where Qt's raster engine draws faster than OpenGL.
    static bool isSoftwareRenderer(const QString& renderer);
    // OpenGL versions the system supports, in ascending order ("1.1" ... "3.0").
    static QStringList supportedOpenGLVersions();

    bool initialised = false;
    MainWindow* mainWindow = nullptr;
    QScriptEngine* scriptEngine = nullptr;
    // The engine's own Function constructor, taken before any script could replace it.
    QScriptValue scriptFunctionConstructor;
    QScriptEngineDebugger* scriptDebugger = nullptr;
    ScriptRunner* scriptRunner = nullptr;
    QUndoStack* undoStack = nullptr;
    QString fileName;
    bool loading = false;
    QTranslator* translator = nullptr;
    QHash<QLocale::Language, QTranslator*> translators;

private:
    struct ConsoleMessage
    {
        QString text;
        Brivane::ConsoleMessageType type;
    };
    // What was reported before the console existed, shown there once it does; as many as
    // the console keeps.
    QList<ConsoleMessage> earlyMessages;
    QString startupScene;

signals:
    void fileCreated();
    void fileSaved(QString filename);
    void fileLoaded(QString filename);

public slots:
    void setLanguage(QLocale::Language language);
    QLocale::Language language();
    void debug(QString text, Brivane::ConsoleMessageType messageType);
    void debug(QString text);
    void grabWidgetUnderCursor();
    void newFile(bool createGround = false);
    // Writes the scene, as it stands now, to the archive of that name; false if it could not,
    // and then the file that was there is as it was.
    bool save(QString filename);
    // Replaces the scene by the one in the archive, stopped and with no undo history; false,
    // with the scene untouched, if the archive holds no readable document.
    bool load(QString filename);
    bool evaluateScript(QString scriptFilename);
    void scriptingProperties(QScriptValue v);
    void globalScriptingProperties();
    void showSupportedOpenGLVersions();
    bool isOpenGLVersionSupported(QString version);
    // Aborts the script under way, if any.
    void stopScript();
    // Ends every camera: closes the camera windows, and the main view stops following.
    void removeAllCameras();
    // Opens one more plot window of the body's speed.
    void createPlot(BodyItem* pItem);

protected slots:
    void postInitialise();
    void onAboutToQuit();

private slots:
    void onScriptStopped();
};
