#include "Application/Application.h"
#include "Application/Settings.h"
#include "Gui/MainWindow.h"
#include "Gui/SocialDialog.h"
#include "Gui/TipDialog.h"
#include "MessageLog.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/RectangleItem.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QScriptEngine>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QTranslator>
#include <QUndoStack>

// Start-up of the whole application object, on a first run in a Spanish locale, with the
// temporary directory of an earlier run still present.
class TestApplication : public QObject
{
    Q_OBJECT

    Application* application() { return Application::instance(); }
    static QString exampleScene()
    {
        const QDir saves(Application::dataDirectory(QStringLiteral("saves")));
        return saves.filePath(saves.entryList({QStringLiteral("*.scene")}).value(0));
    }

private slots:
    void identity()
    {
        QCOMPARE(QCoreApplication::applicationName(), QStringLiteral("Brivane"));
        QCOMPARE(QCoreApplication::applicationVersion(), QStringLiteral("1.2.0"));
        QVERIFY(!QCoreApplication::organizationName().isEmpty());
        QVERIFY(application()->undoStack);
        QCOMPARE(application()->translators.size(), 10);
        QVERIFY(!application()->initialised);
    }

    void firstRunTakesSystemLanguage()
    {
        QCOMPARE(application()->language(), QLocale::Spanish);
        QCOMPARE(application()->translator, application()->translators.value(QLocale::Spanish));
        QVERIFY(!application()->translator->isEmpty());
    }

    void temporaryDirectoryOfEarlierRunIsGone()
    {
        const QString directory = Application::temporaryDirectory();
        QVERIFY(QDir(directory).exists());
        QVERIFY(!QFile::exists(directory + QStringLiteral("/frame00000.png")));
        QVERIFY(QDir(directory).isEmpty());
    }

    void unknownLanguageKeepsTranslator()
    {
        MessageLog log;
        application()->setLanguage(QLocale::Finnish);
        QCOMPARE(application()->language(), QLocale::Spanish);
        // The message comes in the installed language.
        const QString message = QCoreApplication::translate(
            "Application", "Could not set language: Unknown language: %1");
        QVERIFY(message != QStringLiteral("Could not set language: Unknown language: %1"));
        QVERIFY(log.lines().contains(message.arg(int(QLocale::Finnish))));
    }

    void switchingLanguageReplacesTranslator()
    {
        application()->setLanguage(QLocale::German);
        QCOMPARE(application()->language(), QLocale::German);
        QCOMPARE(QCoreApplication::translate("Application", "%1 failed to load."),
                 application()
                     ->translators.value(QLocale::German)
                     ->translate("Application", "%1 failed to load."));
        application()->setLanguage(QLocale::English);
        QCOMPARE(application()->language(), QLocale::English);
    }

    // Renderers that draw on the processor send the view to the raster engine.
    void softwareRenderers_data()
    {
        QTest::addColumn<QString>("renderer");
        QTest::addColumn<bool>("software");
        QTest::newRow("llvmpipe") << "llvmpipe (LLVM 15.0.6, 256 bits)" << true;
        QTest::newRow("softpipe") << "softpipe" << true;
        QTest::newRow("swrast") << "Mesa X11 swrast" << true;
        QTest::newRow("SwiftShader") << "Google SwiftShader" << true;
        QTest::newRow("Windows") << "Microsoft Basic Render Driver" << true;
        QTest::newRow("Intel") << "Mesa Intel(R) UHD Graphics 620 (KBL GT2)" << false;
        QTest::newRow("NVIDIA") << "NVIDIA GeForce GTX 1060/PCIe/SSE2" << false;
        QTest::newRow("unknown") << "" << false;
    }
    void softwareRenderers()
    {
        QFETCH(QString, renderer);
        QFETCH(bool, software);
        QCOMPARE(Application::isSoftwareRenderer(renderer), software);
    }

    void openGLVersionList()
    {
        QVERIFY(!application()->isOpenGLVersionSupported(QStringLiteral("1.0")));
        const QStringList versions = Application::supportedOpenGLVersions();
        for (const QString& version : versions)
            QVERIFY(application()->isOpenGLVersionSupported(version));
    }

    void initialiseBuildsWindowAndEngine()
    {
        MessageLog log;
        application()->initialise(exampleScene());
        QVERIFY(application()->initialised);
        QVERIFY(application()->mainWindow);
        QVERIFY(application()->mainWindow->windowState() & Qt::WindowMaximized);
        QScriptEngine* engine = application()->scriptEngine;
        QVERIFY(engine);
        for (const char* global : {"app", "world", "mainWindow", "graphicsView"})
            QVERIFY2(engine->globalObject().property(QLatin1String(global)).isQObject(), global);
        QCOMPARE(engine->evaluate(QStringLiteral("world.StepFrequency")).toInt32(), 60);
        QVERIFY(log.lines().contains(
            QStringLiteral("qt.core successfully imported into script engine")));
    }

    // The scene named on the command line follows the first new scene, then the tip.
    void postInitialiseOpensSceneAndTip()
    {
        bool tipShown = false;
        QTimer answer;
        connect(&answer, &QTimer::timeout, this, [&tipShown] {
            if (auto* tip = qobject_cast<TipDialog*>(QApplication::activeModalWidget())) {
                tipShown = true;
                tip->reject();
            }
        });
        answer.start(20);
        QSignalSpy created(application(), &Application::fileCreated);
        QSignalSpy loaded(application(), &Application::fileLoaded);
        QVERIFY(loaded.wait(3000));
        // The first new scene, then the one the load clears.
        QCOMPARE(created.count(), 2);
        QCOMPARE(application()->fileName, exampleScene());
        QTRY_VERIFY(tipShown);
    }

    void newFileEmptiesScene()
    {
        QPointer<RectangleItem> guard(PhysicsWorld::instance()->createRectangle(0, 0, 0, 1, 1));
        application()->fileName = QStringLiteral("old.scene");
        QSignalSpy created(application(), &Application::fileCreated);
        application()->newFile();
        QVERIFY(guard.isNull());
        QVERIFY(application()->fileName.isEmpty());
        QCOMPARE(created.count(), 1);
        QCOMPARE(application()->undoStack->count(), 0);
    }

    void scriptingPropertiesListsValuesNotFunctions()
    {
        MessageLog log;
        application()->scriptEngine->evaluate(
            QStringLiteral("app.scriptingProperties({ mass: 3, step: function() {} })"));
        QVERIFY(log.lines().contains(QStringLiteral("mass: 3")));
        QVERIFY(!log.lines().filter(QStringLiteral("step")).size());
        log.lines().clear();
        application()->scriptEngine->evaluate(QStringLiteral("app.scriptingProperties(world)"));
        QVERIFY(log.lines().contains(QStringLiteral("GravityX: 0")));
        QVERIFY(log.lines().filter(QStringLiteral("setGravityX")).isEmpty());
    }

    void closingStoresLayoutAndAsksForSupport()
    {
        QFile::remove(Settings::settingsFileName());
        bool supportAsked = false;
        QTimer::singleShot(0, this, [&supportAsked] {
            if (auto* social = qobject_cast<SocialDialog*>(QApplication::activeModalWidget())) {
                supportAsked = true;
                QTest::keyClick(social, Qt::Key_Escape);
            }
        });
        // Escape in the support dialog does not keep the window open.
        QVERIFY(application()->mainWindow->close());
        QVERIFY(supportAsked);
        Settings::instance()->sync();
        QSettings file(Settings::settingsFileName(), QSettings::IniFormat);
        QVERIFY(!file.value(QStringLiteral("General/MainWindowGeometry")).toByteArray().isEmpty());
        QVERIFY(file.contains(QStringLiteral("General/MainWindowState")));
    }
};

int main(int argc, char* argv[])
{
    // A first run, on a Spanish system, after a run that left frames behind.
    qputenv("LC_ALL", "es_ES.UTF-8");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QFile::remove(QFileInfo(QString::fromLocal8Bit(argv[0])).absolutePath()
                  + QStringLiteral("/Brivane.ini"));
    const QString leftover = QDir::tempPath() + QStringLiteral("/Brivane");
    QDir().mkpath(leftover + QStringLiteral("/old"));
    QFile frame(leftover + QStringLiteral("/frame00000.png"));
    frame.open(QIODevice::WriteOnly);
    frame.write("png");
    frame.close();

    Application application(argc, argv);
    TestApplication test;
    const int result = QTest::qExec(&test, argc, argv);
    QFile::remove(Settings::settingsFileName());
    return result;
}

#include "tst_application.moc"
