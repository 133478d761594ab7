#include "Application/Application.h"

#include "Application/Settings.h"
#include "Files/SceneFile.h"
#include "Files/XMLReader.h"
#include "Files/XMLWriter.h"
#include "Gui/MainWindow.h"
#include "Gui/PlotWidget.h"
#include "Gui/TipDialog.h"
#include "NemuToolbox/Toolbox.h"
#include "Physics/BalloonItem.h"
#include "Physics/DistanceJoint.h"
#include "Physics/ForceItem.h"
#include "Physics/GearItem.h"
#include "Physics/PhysicsItem.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/PolygonItem.h"
#include "Physics/PrismaticJoint.h"
#include "Physics/PulleyJoint.h"
#include "Physics/RectangleItem.h"
#include "Physics/RevoluteJoint.h"
#include "Physics/SpringForce.h"
#include "Scripting/ConsoleWidget.h"
#include "Scripting/ScriptRunner.h"
#include "View/CameraGraphicsView.h"
#include "View/GraphicsView.h"

#include <QAction>
#include <QCursor>
#include <QDebug>
#include <QDesktopWidget>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGLFormat>
#include <QMessageBox>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QPixmap>
#include <QProgressDialog>
#include <QRegularExpression>
#include <QScriptEngine>
#include <QScriptEngineDebugger>
#include <QScriptValueIterator>
#include <QStandardPaths>
#include <QTime>
#include <QTimer>
#include <QTranslator>
#include <QUndoStack>
#include <QWidget>

namespace {
// The maker's name, kept in two pieces: the first in base64, the second in hexadecimal.
const char* const organizationFirst = "QnJpdmFuZQ==";
const char* const organizationSecond = "50726f6a656374";

// The largest script file that evaluateScript reads.
const int maximumScriptMegabytes = 4;

struct LanguageEntry
{
    QLocale::Language language;
    const char* suffix;
};
const LanguageEntry languageTable[] = {
    {QLocale::English, "en"},    {QLocale::Greek, "el"},  {QLocale::Russian, "ru"},
    {QLocale::Japanese, "ja"},   {QLocale::German, "de"}, {QLocale::Spanish, "es"},
    {QLocale::Indonesian, "id"}, {QLocale::French, "fr"}, {QLocale::Italian, "it"},
    {QLocale::Chinese, "zh"},
};

// Console messages written before (or without) a console: the framework log keeps them.
void logMessage(const QString& text, Brivane::ConsoleMessageType messageType)
{
    if (messageType == Brivane::Warning || messageType == Brivane::Critical)
        qWarning().noquote() << text;
    else
        qInfo().noquote() << text;
}
} // namespace

Application::Application(int& argc, char** argv)
    : QApplication(argc, argv)
{
    qsrand(uint(QTime(0, 0, 0).secsTo(QTime::currentTime())));
    setApplicationName(QStringLiteral("Brivane"));
    setApplicationVersion(
        Nemu::Toolbox::readAll(QStringLiteral(":/text/version.txt"), QStringLiteral("UTF-8"))
            .simplified());
    setOrganizationName(QString::fromUtf8(QByteArray::fromBase64(organizationFirst)) + " "
                        + QString::fromUtf8(QByteArray::fromHex(organizationSecond)));
    setWindowIcon(QIcon(QStringLiteral(":/icons/brivane.png")));
    // Ties the windows to the installed launcher and its icon on Wayland.
    setDesktopFileName(QStringLiteral("org.brivane.Brivane"));
    setStyleSheet(QStringLiteral(
        "QDockWidget::title { text-align: left; background: #AAC; padding-left: 5px; }"));
    // Beside the executable rather than the working directory, so that the script extensions
    // are found wherever the program is started from.
    addLibraryPath(applicationDirPath() + QStringLiteral("/lib/"));
    undoStack = new QUndoStack(this);

    for (const LanguageEntry& entry : languageTable) {
        auto* languageTranslator = new QTranslator(this);
        languageTranslator->load(QStringLiteral(":/translations/Brivane_%1.qm").arg(entry.suffix));
        translators.insert(entry.language, languageTranslator);
    }

    const bool firstRun = !QFile::exists(Settings::instance()->fileName());
    if (firstRun && translators.contains(QLocale::system().language()))
        setLanguage(QLocale::system().language());

    const QString temporaryPath = temporaryDirectory();
    if (QDir(temporaryPath).exists() && !Nemu::Toolbox::removeDirectory(temporaryPath))
        qDebug() << tr("Could not remove temp directory.");
    if (!QDir().mkpath(temporaryPath))
        qDebug() << tr("Could not create temp directory.");

    connect(this, &QCoreApplication::aboutToQuit, this, &Application::onAboutToQuit);
}

Application::~Application()
{
    detachScriptDebugger();
    if (mainWindow && undoStack) {
        delete undoStack;
        undoStack = nullptr;
    }
    PhysicsWorld::destroy();
    Settings::destroy();
    delete mainWindow;
    mainWindow = nullptr;
}

Application* Application::instance()
{
    return qobject_cast<Application*>(QCoreApplication::instance());
}

void Application::report(const QString& text, Brivane::ConsoleMessageType messageType)
{
    if (Application* application = instance())
        application->debug(text, messageType);
    else
        logMessage(text, messageType);
}

bool Application::isInstalled()
{
    return QFile::exists(applicationDirPath() + QStringLiteral("/installed"));
}

QString Application::temporaryDirectory()
{
    if (isInstalled())
        return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation)
            + QDir::separator() + applicationName();
    return QDir::tempPath() + QDir::separator() + applicationName();
}

QString Application::savesDirectory()
{
    const QString examples = dataDirectory(QStringLiteral("saves"));
    if (!isInstalled())
        return examples;
    const QString saves = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
        + QDir::separator() + applicationName() + QDir::separator() + QStringLiteral("saves");
    if (!QDir(saves).exists() && QDir().mkpath(saves)) {
        for (const QFileInfo& example : QDir(examples).entryInfoList(QDir::Files))
            QFile::copy(example.filePath(), saves + QDir::separator() + example.fileName());
    }
    return saves;
}

namespace {
// A window of the main window's that floats beside it and goes when closed.
void showToolWindow(QWidget* window)
{
    window->setWindowFlags(Qt::Tool);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
}
} // namespace

void Application::createCamera(BodyItem* pItem, Brivane::CameraMode cameraMode)
{
    if (!pItem || !mainWindow)
        return;
    if (cameraMode == Brivane::MainViewCamera)
        mainWindow->graphicsView()->setBodyWithCamera(pItem);
    else if (cameraMode == Brivane::WindowCamera)
        showToolWindow(new CameraGraphicsView(pItem, mainWindow));
}

void Application::removeAllCameras()
{
    if (!mainWindow)
        return;
    for (CameraGraphicsView* camera : mainWindow->findChildren<CameraGraphicsView*>())
        camera->close();
    mainWindow->graphicsView()->setBodyWithCamera(static_cast<BodyItem*>(nullptr));
}

void Application::createPlot(BodyItem* pItem)
{
    if (pItem && mainWindow)
        showToolWindow(new PlotWidget(pItem, PhysicsWorld::instance(), mainWindow));
}

QString Application::dataDirectory(const QString& name)
{
    return applicationDirPath() + QDir::separator() + QStringLiteral("data") + QDir::separator()
        + name;
}

void Application::initialise(const QString& sceneFile)
{
    startupScene = sceneFile;
    mainWindow = new MainWindow();
    for (const ConsoleMessage& message : qAsConst(earlyMessages))
        mainWindow->console()->debug(message.text, message.type);
    earlyMessages.clear();
    Settings* settings = Settings::instance();
    mainWindow->restoreGeometry(settings->mainWindowGeometry);
    mainWindow->restoreState(settings->mainWindowState, 0);
    if (QFile::exists(settings->fileName()))
        mainWindow->show();
    else
        mainWindow->showMaximized();

    auto* grabAction = new QAction(this);
    grabAction->setShortcut(Qt::Key_SysReq);
    mainWindow->addAction(grabAction);
    connect(grabAction, &QAction::triggered, this, &Application::grabWidgetUnderCursor);

    setupScriptEngine();
    QTimer::singleShot(250, this, &Application::postInitialise);
    initialised = true;
}

void Application::postInitialise()
{
    // A script typed in the first moments may still run: the new scene waits for it.
    if (scriptEvaluating()) {
        QTimer::singleShot(ScriptRunner::processEventsInterval, this, &Application::postInitialise);
        return;
    }
    newFile(Settings::instance()->createGroundOnStartup);
    if (!startupScene.isEmpty() && !load(startupScene))
        QMessageBox::warning(mainWindow, tr("Error"),
                             tr("Could not open the scene %1.").arg(startupScene));
    if (Settings::instance()->showTipsAtStartup) {
        TipDialog tip(mainWindow);
        tip.exec();
    }
}

void Application::onAboutToQuit() { }

void Application::setLanguage(QLocale::Language language)
{
    QTranslator* chosen = translators.value(language);
    if (!chosen) {
        debug(tr("Could not set language: Unknown language: %1").arg(int(language)),
              Brivane::Warning);
        return;
    }
    if (translator)
        removeTranslator(translator);
    translator = chosen;
    installTranslator(translator);
}

QLocale::Language Application::language()
{
    for (auto entry = translators.cbegin(); entry != translators.cend(); ++entry) {
        if (translator && entry.value() == translator)
            return entry.key();
    }
    return QLocale::English;
}

void Application::debug(QString text, Brivane::ConsoleMessageType messageType)
{
    logMessage(text, messageType);
    if (mainWindow) {
        mainWindow->console()->debug(text, messageType);
        return;
    }
    earlyMessages.append({text, messageType});
    if (earlyMessages.size() > ConsoleWidget::maximumMessages)
        earlyMessages.removeFirst();
}

void Application::debug(QString text)
{
    debug(text, Brivane::Info);
}

void Application::grabWidgetUnderCursor()
{
    QWidget* widget = widgetAt(QCursor::pos());
    if (!widget)
        return;
    const QString title
        = widget->windowTitle().isEmpty() ? QStringLiteral("Widget") : widget->windowTitle();
    widget->grab(QRect(0, 0, -1, -1)).save(title + QStringLiteral(".png"), "PNG", 75);
}

void Application::newFile(bool createGround)
{
    // The progress of a load lets timers run; the scene being read, its reader and its dialog
    // must outlive them.
    if (loading)
        return;
    if (mainWindow)
        mainWindow->deleteUnknownChildren();
    // A script runs inside code that may be a command of the stack, undoing or redoing:
    // the history goes once control is back in the event loop.
    if (PhysicsWorld::instance()->scriptRunning())
        QTimer::singleShot(0, undoStack, &QUndoStack::clear);
    else
        undoStack->clear();
    PhysicsWorld::instance()->clear();
    if (createGround)
        PhysicsWorld::instance()->createGround();
    if (mainWindow)
        mainWindow->graphicsView()->reset();
    fileName.clear();
    emit fileCreated();
}

bool Application::save(QString filename)
{
    GraphicsView* view = mainWindow ? mainWindow->graphicsView() : nullptr;
    QString document;
    XMLWriter(&document).writeScene(PhysicsWorld::instance(), view);
    QImage thumbnail = view ? view->image(SceneFile::thumbnailSize) : QImage();
    if (thumbnail.isNull()) {
        thumbnail = QImage(SceneFile::thumbnailSize, QImage::Format_RGB32);
        thumbnail.fill(Qt::white);
    }
    if (!SceneFile(filename).save(document, thumbnail))
        return false;
    fileName = filename;
    emit fileSaved(filename);
    return true;
}

bool Application::load(QString filename)
{
    // The progress dialog lets events through while a scene is read.
    if (loading)
        return false;
    const QString extracted = SceneFile(filename).extractScene();
    QFile file(extracted);
    if (extracted.isEmpty())
        return false;
    if (!file.open(QIODevice::ReadOnly)) {
        file.remove();
        return false;
    }
    newFile(false);
    loading = true;
    XMLReader reader(&file, mainWindow ? mainWindow->graphicsView() : nullptr);
    QProgressDialog progress(tr("Loading..."), QString(), 0, int(file.size()), mainWindow);
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(250);
    // Every token reports its position; the dialog needs to hear of each percent only.
    const qint64 percent = qMax<qint64>(1, file.size() / 100);
    connect(&reader, &XMLReader::elementRead, &progress, [&progress, percent](int position) {
        if (position - progress.value() >= percent)
            progress.setValue(position);
    });
    reader.read();
    file.close();
    file.remove();
    loading = false;
    fileName = filename;
    emit fileLoaded(filename);
    return true;
}

namespace {
template<typename T> QScriptValue itemToScriptValue(QScriptEngine* engine, T* const& item)
{
    return engine->newQObject(item, QScriptEngine::QtOwnership, Application::scriptWrapOptions);
}

// A wrapper of another class arrives as null.
template<typename T> void itemFromScriptValue(const QScriptValue& value, T*& item)
{
    item = qobject_cast<T*>(value.toQObject());
}

template<typename T> void registerItemType(QScriptEngine* engine)
{
    qScriptRegisterMetaType<T*>(engine, itemToScriptValue<T>, itemFromScriptValue<T>);
}

// Scripts name languages by the integers of QLocale::Language. A number that is none of them
// becomes AnyLanguage, which no translator has, rather than a value outside the enumeration.
QScriptValue languageToScriptValue(QScriptEngine*, const QLocale::Language& language)
{
    return QScriptValue(int(language));
}

void languageFromScriptValue(const QScriptValue& value, QLocale::Language& language)
{
    const qint32 number = value.toInt32();
    language = number >= 0 && number <= QLocale::LastLanguage ? QLocale::Language(number)
                                                              : QLocale::AnyLanguage;
}
} // namespace

void Application::setupScriptEngine()
{
    scriptEngine = new QScriptEngine(this);
    QScriptValue global = scriptEngine->globalObject();
    scriptFunctionConstructor = global.property(QStringLiteral("Function"));
    scriptRunner = new ScriptRunner(scriptEngine, this);
    connect(scriptRunner, &ScriptRunner::scriptStopped, this, &Application::onScriptStopped);
    if (mainWindow) {
        QAction* stopAction = mainWindow->action(MainWindow::ActionId::StopScript);
        scriptRunner->guard(mainWindow, stopAction);
        connect(scriptRunner, &ScriptRunner::runningChanged, stopAction, &QAction::setEnabled);
    }
    if (Settings::instance()->attachScriptDebugger)
        attachScriptDebugger();

    for (const char* extension : {"qt.core", "qt.gui", "qt.widgets"}) {
        if (scriptEngine->importExtension(QLatin1String(extension)).isUndefined())
            debug(QStringLiteral("%1 successfully imported into script engine").arg(extension),
                  Brivane::Info);
    }
    scriptEngine->clearExceptions();

    const auto setGlobal = [&](const char* name, QObject* object) {
        global.setProperty(
            QLatin1String(name),
            scriptEngine->newQObject(object, QScriptEngine::QtOwnership, scriptWrapOptions),
            QScriptValue::KeepExistingFlags);
    };
    setGlobal("app", this);
    setGlobal("world", PhysicsWorld::instance());
    setGlobal("mainWindow", mainWindow);
    setGlobal("graphicsView", mainWindow ? mainWindow->graphicsView() : nullptr);

    qScriptRegisterMetaType<QLocale::Language>(scriptEngine, languageToScriptValue,
                                               languageFromScriptValue);
    registerItemType<PhysicsItem>(scriptEngine);
    registerItemType<BodyItem>(scriptEngine);
    registerItemType<RectangleItem>(scriptEngine);
    registerItemType<CircleItem>(scriptEngine);
    registerItemType<PolygonItem>(scriptEngine);
    registerItemType<BalloonItem>(scriptEngine);
    registerItemType<GearItem>(scriptEngine);
    registerItemType<JointItem>(scriptEngine);
    registerItemType<DistanceJoint>(scriptEngine);
    registerItemType<RevoluteJoint>(scriptEngine);
    registerItemType<PrismaticJoint>(scriptEngine);
    registerItemType<PulleyJoint>(scriptEngine);
    registerItemType<ForceItem>(scriptEngine);
    registerItemType<SpringForce>(scriptEngine);
    qScriptRegisterSequenceMetaType<PhysicsItemList>(scriptEngine);
    qScriptRegisterSequenceMetaType<QList<BodyItem*>>(scriptEngine);
    qScriptRegisterSequenceMetaType<QList<RectangleItem*>>(scriptEngine);
    qScriptRegisterSequenceMetaType<QList<CircleItem*>>(scriptEngine);
    qScriptRegisterSequenceMetaType<QList<PolygonItem*>>(scriptEngine);
    qScriptRegisterSequenceMetaType<QList<JointItem*>>(scriptEngine);
    qScriptRegisterSequenceMetaType<QList<ForceItem*>>(scriptEngine);

    autoloadScripts(dataDirectory(QStringLiteral("scripts")) + QStringLiteral("/autoload"));
}

void Application::autoloadScripts(const QString& directory)
{
    // ToolBox.script comes first and is tried even when it is missing.
    QStringList names = QDir(directory).entryList(QStringList() << QStringLiteral("*.script"),
                                                  QDir::Files | QDir::NoDotAndDotDot,
                                                  QDir::Name | QDir::IgnoreCase);
    names.prepend(QStringLiteral("ToolBox.script"));
    names.removeDuplicates();
    for (const QString& name : qAsConst(names)) {
        if (evaluateScript(directory + QLatin1Char('/') + name))
            debug(tr("%1 has been successfully loaded.").arg(name), Brivane::Info);
        else
            debug(tr("%1 failed to load.").arg(name), Brivane::Warning);
    }
}

bool Application::evaluateScript(QString scriptFilename)
{
    // Devices and pipes may never end: only regular files are read, and no more of them than
    // a script can sensibly be.
    const QFileInfo info(scriptFilename);
    QFile file(scriptFilename);
    if (!scriptEngine || !info.isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    QByteArray bytes = file.read(maximumScriptMegabytes * 1024 * 1024 + 1);
    if (bytes.size() > maximumScriptMegabytes * 1024 * 1024) {
        debug(tr("%1 is not evaluated: a script file may hold at most %2 MB.")
                  .arg(info.fileName())
                  .arg(maximumScriptMegabytes),
              Brivane::Warning);
        return false;
    }
    const int nul = bytes.indexOf('\0');
    if (nul >= 0)
        bytes.truncate(nul);
    const QString text = QString::fromUtf8(bytes);
    if (!scriptEngine->canEvaluate(text))
        return false;
    const QScriptValue result = scriptRunner->evaluate(text, scriptFilename, 1);
    // A script that was stopped has no result.
    const bool succeeded
        = result.isValid() && !result.isError() && !scriptEngine->hasUncaughtException();
    scriptEngine->clearExceptions();
    return succeeded;
}

bool Application::scriptEvaluating()
{
    const Application* application = instance();
    return application && application->scriptRunner && application->scriptRunner->isRunning();
}

void Application::stopScript()
{
    if (scriptRunner)
        scriptRunner->stop();
}

void Application::onScriptStopped()
{
    debug(tr("The script was stopped."), Brivane::Warning);
    // A running world would run the same event script again at its next step.
    PhysicsWorld* world = PhysicsWorld::instance();
    if (world->running())
        world->stop();
}

void Application::attachScriptDebugger()
{
    if (scriptDebugger)
        detachScriptDebugger();
    scriptDebugger = new QScriptEngineDebugger(this);
    const QRect screen = desktop()->geometry();
    scriptDebugger->standardWindow()->resize(qRound(screen.width() * 0.8),
                                             qRound(screen.height() * 0.8));
    scriptDebugger->attachTo(scriptEngine);
    debug(tr("Script debugger attached."), Brivane::Info);
}

void Application::detachScriptDebugger()
{
    if (!scriptDebugger)
        return;
    scriptDebugger->standardWindow()->close();
    scriptDebugger->detach();
    delete scriptDebugger;
    scriptDebugger = nullptr;
    debug(tr("Script debugger detached."), Brivane::Info);
}

void Application::scriptingProperties(QScriptValue v)
{
    debug(QStringLiteral("----- Properties of %1 -----").arg(v.toString()), Brivane::Info);
    QScriptValueIterator iterator(v);
    while (iterator.hasNext()) {
        iterator.next();
        if (!iterator.value().isFunction())
            debug(QStringLiteral("%1: %2").arg(iterator.name(), iterator.value().toString()),
                  Brivane::Info);
    }
}

void Application::globalScriptingProperties()
{
    if (scriptEngine)
        scriptingProperties(scriptEngine->globalObject());
}

bool Application::canCreateOpenGLContext()
{
    // Asking for versions or a GL viewport without a working context crashes on some
    // platforms (offscreen, remote displays), so try one first.
    if (QOpenGLContext::currentContext())
        return true;
    if (!QGLFormat::hasOpenGL())
        return false;
    QOpenGLContext probe;
    return probe.create();
}

QString Application::openGLRenderer()
{
    static const QString renderer = [] {
        if (!canCreateOpenGLContext())
            return QString();
        QOpenGLContext* previous = QOpenGLContext::currentContext();
        QSurface* previousSurface = previous ? previous->surface() : nullptr;
        QOpenGLContext context;
        QOffscreenSurface surface;
        if (!context.create())
            return QString();
        surface.setFormat(context.format());
        surface.create();
        QString text;
        if (context.makeCurrent(&surface)) {
            const GLubyte* name = context.functions()->glGetString(GL_RENDERER);
            text = QString::fromLatin1(reinterpret_cast<const char*>(name));
            context.doneCurrent();
        }
        if (previous)
            previous->makeCurrent(previousSurface);
        return text;
    }();
    return renderer;
}

bool Application::isSoftwareRenderer(const QString& renderer)
{
    static const QRegularExpression software(
        QStringLiteral("llvmpipe|softpipe|swrast|software|swiftshader|basic render"),
        QRegularExpression::CaseInsensitiveOption);
    return software.match(renderer).hasMatch();
}

QStringList Application::supportedOpenGLVersions()
{
    static const struct
    {
        QGLFormat::OpenGLVersionFlag flag;
        const char* text;
    } versions[] = {
        {QGLFormat::OpenGL_Version_1_1, "1.1"}, {QGLFormat::OpenGL_Version_1_2, "1.2"},
        {QGLFormat::OpenGL_Version_1_3, "1.3"}, {QGLFormat::OpenGL_Version_1_4, "1.4"},
        {QGLFormat::OpenGL_Version_1_5, "1.5"}, {QGLFormat::OpenGL_Version_2_0, "2.0"},
        {QGLFormat::OpenGL_Version_2_1, "2.1"}, {QGLFormat::OpenGL_Version_3_0, "3.0"},
    };
    QStringList list;
    if (!canCreateOpenGLContext())
        return list;
    const QGLFormat::OpenGLVersionFlags flags = QGLFormat::openGLVersionFlags();
    for (const auto& version : versions) {
        if (flags.testFlag(version.flag))
            list << QLatin1String(version.text);
    }
    return list;
}

void Application::showSupportedOpenGLVersions()
{
    debug(tr("Supported OpenGL Versions:"), Brivane::Info);
    for (const QString& version : supportedOpenGLVersions())
        debug(version, Brivane::Info);
}

bool Application::isOpenGLVersionSupported(QString version)
{
    return supportedOpenGLVersions().contains(version);
}
