#include "ApplicationTestMain.h"
#include "MessageLog.h"
#include "Physics/BodyItem.h"
#include "Physics/CircleItem.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/RectangleItem.h"

#include <QKeyEvent>
#include <QPointer>
#include <QScriptEngine>
#include <QSignalSpy>
#include <QTemporaryDir>

// Receives item pointers from scripts, to see what the engine's conversions deliver.
class ItemReceiver : public QObject
{
    Q_OBJECT

public:
    QPointer<QObject> lastRectangle;
    bool lastWasNull = false;

public slots:
    void takeRectangle(RectangleItem* rectangle)
    {
        lastRectangle = rectangle;
        lastWasNull = rectangle == nullptr;
    }
};

// The engine's globals, item names, event scripts and their compilation, and the autoload.
class TestScriptEngine : public QObject
{
    Q_OBJECT

    QScriptEngine* engine() { return Application::instance()->scriptEngine; }
    PhysicsWorld* world() { return PhysicsWorld::instance(); }
    QScriptValue run(const QString& script) { return engine()->evaluate(script); }

private slots:
    void init() { Application::instance()->newFile(); }

    void namesCountUpAndSkipTakenGlobals()
    {
        RectangleItem* first = world()->createRectangle(0, 0, 0, 1, 1);
        QCOMPARE(first->name(), QStringLiteral("item1"));
        run(QStringLiteral("item3 = 17;"));
        world()->createRectangle(0, 0, 0, 1, 1);
        RectangleItem* third = world()->createRectangle(0, 0, 0, 1, 1);
        QCOMPARE(third->name(), QStringLiteral("item4"));
        QCOMPARE(run(QStringLiteral("item4.Width")).toNumber(), 1.0);
        run(QStringLiteral("delete item3;"));
    }

    void refusedNamesKeepTheOldOne_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("host function") << "print";
        QTest::newRow("standard object") << "Math";
        QTest::newRow("empty") << "";
        QTest::newRow("fixed global") << "world";
        QTest::newRow("prototype of the global object") << "__proto__";
        QTest::newRow("inherited by every object") << "toString";
        QTest::newRow("reserved word") << "if";
        QTest::newRow("no identifier") << "two words";
        QTest::newRow("starts with a digit") << "1up";
    }
    void refusedNamesKeepTheOldOne()
    {
        QFETCH(QString, name);
        RectangleItem* item = world()->createRectangle(0, 0, 0, 1, 1);
        RectangleItem* other = world()->createRectangle(0, 0, 0, 1, 1);
        const QString before = item->name();
        item->setName(name);
        QCOMPARE(item->name(), before);
        item->setName(other->name());
        QCOMPARE(item->name(), before);
        QVERIFY(run(QStringLiteral("typeof print")).toString() == QLatin1String("function"));
    }

    void renameMovesValueAndScripts()
    {
        RectangleItem* item = world()->createRectangle(0, 0, 0, 1, 1);
        item->setOnStart(QStringLiteral("started = this.Name;"));
        item->setName(QStringLiteral("crate"));
        QCOMPARE(run(QStringLiteral("typeof item1")).toString(), QStringLiteral("undefined"));
        QCOMPARE(run(QStringLiteral("crate.Width")).toNumber(), 1.0);
        world()->start();
        world()->stop();
        QCOMPARE(run(QStringLiteral("started")).toString(), QStringLiteral("crate"));
        // A freed name can be taken again.
        RectangleItem* next = world()->createRectangle(0, 0, 0, 1, 1);
        next->setName(QStringLiteral("item1"));
        QCOMPARE(next->name(), QStringLiteral("item1"));
    }

    void scriptErrorsKeepThePreviousScript_data()
    {
        QTest::addColumn<QString>("script");
        QTest::newRow("syntax error") << "count = count +;";
        QTest::newRow("closes the function early") << "}; app.newFile(); function x() {";
        QTest::newRow("comma after the function") << "}, app.newFile(), function() {";
        QTest::newRow("call of the function") << "})(app.newFile()); (function() {";
        QTest::newRow("unbalanced") << "if (true) {";
    }
    void scriptErrorsKeepThePreviousScript()
    {
        QFETCH(QString, script);
        RectangleItem* item = world()->createRectangle(0, 0, 0, 1, 1);
        RectangleItem* witness = world()->createRectangle(5, 5, 0, 1, 1);
        run(QStringLiteral("count = 0;"));
        item->setOnUpdate(QStringLiteral("count = count + 1;"));
        QSignalSpy created(Application::instance(), &Application::fileCreated);
        item->setOnUpdate(script);
        QCOMPARE(created.count(), 0);
        QVERIFY(world()->contains(witness));
        QCOMPARE(item->onUpdate(), QStringLiteral("count = count + 1;"));
        item->update();
        QCOMPARE(run(QStringLiteral("count")).toInt32(), 1);
    }

    void eventScriptsRunWithTheirArguments()
    {
        RectangleItem* item = world()->createRectangle(0, 0, 0, 1, 1);
        item->setOnKeyPress(QStringLiteral("pressed = key; self = this.Name;"));
        item->setOnKeyRelease(QStringLiteral("released = key;"));
        item->setOnStop(QStringLiteral("stops = (typeof stops == 'number' ? stops : 0) + 1;"));
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier);
        item->runOnKeyPress(&press);
        item->runOnKeyRelease(&release);
        QCOMPARE(run(QStringLiteral("pressed")).toInt32(), int(Qt::Key_Up));
        QCOMPARE(run(QStringLiteral("self")).toString(), item->name());
        QCOMPARE(run(QStringLiteral("released")).toInt32(), int(Qt::Key_A));
        world()->stop();
        QCOMPARE(run(QStringLiteral("stops")).toInt32(), 1);
    }

    void inactiveItemsRunNoScripts()
    {
        RectangleItem* item = world()->createRectangle(0, 0, 0, 1, 1);
        run(QStringLiteral("ran = 0;"));
        const QString script = QStringLiteral("ran = ran + 1;");
        item->setOnStart(script);
        item->setOnUpdate(script);
        item->setOnKeyPress(script);
        item->setActive(false);
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
        item->runOnKeyPress(&press);
        world()->start();
        world()->step();
        world()->stop();
        QCOMPARE(run(QStringLiteral("ran")).toInt32(), 0);
        item->setActive(true);
        item->runOnKeyPress(&press);
        QCOMPARE(run(QStringLiteral("ran")).toInt32(), 1);
    }

    void runtimeErrorDoesNotStopOthers()
    {
        RectangleItem* failing = world()->createRectangle(0, 0, 0, 1, 1);
        RectangleItem* counting = world()->createRectangle(0, 3, 0, 1, 1);
        run(QStringLiteral("updates = 0;"));
        failing->setOnUpdate(QStringLiteral("throw new Error('broken');"));
        counting->setOnUpdate(QStringLiteral("updates = updates + 1;"));
        world()->step();
        world()->step();
        QCOMPARE(run(QStringLiteral("updates")).toInt32(), 2);
    }

    // What an event script does stays inside its event: it does not start itself again, and
    // its errors do not reach the script that set a property or started the world.
    void eventScriptsStayInside_data()
    {
        QTest::addColumn<QString>("event");
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("trigger");
        QTest::addColumn<int>("runs");
        // A position setter updates twice; each update runs the script once.
        QTest::newRow("update that moves its body") << "OnUpdate"
                                                    << "runs++; this.X += 0.01;"
                                                    << "r.X = 1;" << 2;
        QTest::newRow("update that turns its body") << "OnUpdate"
                                                    << "runs++; this.Angle = this.Angle + 1;"
                                                    << "r.Angle = 5;" << 2;
        QTest::newRow("start that starts the world") << "OnStart"
                                                     << "runs++; world.start();"
                                                     << "world.start(); world.stop();" << 1;
        QTest::newRow("update that throws") << "OnUpdate"
                                            << "runs++; throw new Error('update');"
                                            << "r.X = 2;" << 2;
        QTest::newRow("start that throws") << "OnStart"
                                           << "runs++; throw new Error('start');"
                                           << "world.start(); world.stop();" << 1;
        QTest::newRow("stop that throws") << "OnStop"
                                          << "runs++; throw new Error('stop');"
                                          << "world.stop();" << 1;
    }
    void eventScriptsStayInside()
    {
        QFETCH(QString, event);
        QFETCH(QString, script);
        QFETCH(QString, trigger);
        QFETCH(int, runs);
        RectangleItem* item = world()->createRectangle(0, 0, 0, 1, 1);
        run(QStringLiteral("runs = 0; finished = false; var r = %1;").arg(item->name()));
        item->setProperty(event.toLatin1(), script);
        const QScriptValue result = run(trigger + QStringLiteral(" finished = true;"));
        QVERIFY2(!result.isError(), qPrintable(result.toString()));
        QVERIFY(run(QStringLiteral("finished")).toBool());
        QCOMPARE(run(QStringLiteral("runs")).toInt32(), runs);
    }

    void languagesByNumber()
    {
        MessageLog log;
        run(QStringLiteral("app.setLanguage(%1);").arg(int(QLocale::German)));
        QCOMPARE(run(QStringLiteral("app.language()")).toInt32(), int(QLocale::German));
        for (const int unknown : {int(QLocale::Finnish), -5}) {
            run(QStringLiteral("app.setLanguage(%1);").arg(unknown));
            QCOMPARE(Application::instance()->language(), QLocale::German);
        }
        QCOMPARE(log.lines().filter(QStringLiteral("%1").arg(int(QLocale::Finnish))).size(), 1);
        run(QStringLiteral("app.setLanguage(%1);").arg(int(QLocale::English)));
        QCOMPARE(Application::instance()->language(), QLocale::English);
    }

    void itemTypesConvertByRealClass()
    {
        ItemReceiver receiver;
        engine()->globalObject().setProperty(QStringLiteral("receiver"),
                                             engine()->newQObject(&receiver));
        CircleItem* circle = world()->createCircle(0, 0, 0, 1);
        RectangleItem* rectangle = world()->createRectangle(0, 0, 0, 1, 1);
        run(QStringLiteral("receiver.takeRectangle(%1)").arg(circle->name()));
        QVERIFY(receiver.lastWasNull);
        run(QStringLiteral("receiver.takeRectangle(%1)").arg(rectangle->name()));
        QCOMPARE(receiver.lastRectangle.data(), static_cast<QObject*>(rectangle));
        // Lists arrive as real arrays whose elements show the members of their class.
        QCOMPARE(run(QStringLiteral("world.bodyItems() instanceof Array")).toBool(), true);
        QCOMPARE(run(QStringLiteral("world.bodyItems().length")).toInt32(), 2);
        QCOMPARE(run(QStringLiteral("world.bodyItems()[0].Radius")).toNumber(), 1.0);
        QCOMPARE(run(QStringLiteral("world.items()[1].Width")).toNumber(), 1.0);
    }

    void autoloadOrderAndMessages()
    {
        QTemporaryDir directory;
        const auto write = [&](const QString& name, const QByteArray& text) {
            QFile file(directory.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(text);
        };
        write(QStringLiteral("b.script"), "order = order + 'b';");
        write(QStringLiteral("A.script"), "order = (typeof order == 'string' ? order : '') + 'A';");
        write(QStringLiteral("broken.script"), "var = ;");
        write(QStringLiteral("notes.txt"), "order = 'wrong';");
        run(QStringLiteral("delete order;"));
        MessageLog log;
        Application::instance()->autoloadScripts(directory.path());
        QCOMPARE(run(QStringLiteral("order")).toString(), QStringLiteral("Ab"));
        const QStringList expected = {QStringLiteral("ToolBox.script failed to load."),
                                      QStringLiteral("A.script has been successfully loaded."),
                                      QStringLiteral("b.script has been successfully loaded."),
                                      QStringLiteral("broken.script failed to load.")};
        QCOMPARE(log.lines(), expected);
    }

    void toolBoxRunsOnceAndSurvivesNewFile()
    {
        QTemporaryDir directory;
        QFile file(directory.filePath(QStringLiteral("ToolBox.script")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("loads = (typeof loads == 'number' ? loads : 0) + 1;\n"
                   "function helperFromAutoload() { return 42; }");
        file.close();
        MessageLog log;
        Application::instance()->autoloadScripts(directory.path());
        QCOMPARE(log.lines().size(), 1);
        QCOMPARE(run(QStringLiteral("loads")).toInt32(), 1);
        Application::instance()->newFile(true);
        QCOMPARE(run(QStringLiteral("helperFromAutoload()")).toInt32(), 42);
    }

    void toolBoxBuildsScenes()
    {
        QCOMPARE(run(QStringLiteral("createPyramid(3, 0, 0, 1).length")).toInt32(), 6);
        QCOMPARE(world()->bodyItems().size(), 6);
        double highest = 0.0;
        for (BodyItem* body : world()->bodyItems())
            highest = qMax(highest, body->positionY());
        QCOMPARE(highest, 2.5);
        QCOMPARE(run(QStringLiteral("createStack(4, 3, 0, 1, 0.5)[3].Y")).toNumber(), 1.75);
        QCOMPARE(run(QStringLiteral("createRow(3, -5, 1, 1, 1, 0.5)[2].X")).toNumber(), -2.0);
        run(QStringLiteral("removeBodies(world.bodyItems())"));
        QVERIFY(world()->items().isEmpty());
        QCOMPARE(run(QStringLiteral("Math.round(degrees(radians(30)))")).toInt32(), 30);
    }

    void toolBoxTimersCountSimulatedTime()
    {
        MessageLog log;
        run(QStringLiteral("fired = []; after(0.5, function() { fired.push('once'); });"
                           "every(0.25, function() { fired.push('tick'); });"
                           "after(0.1, function() { throw new Error('bad'); });"));
        for (int i = 0; i < 29; ++i)
            world()->step();
        QCOMPARE(run(QStringLiteral("fired.join(',')")).toString(), QStringLiteral("tick"));
        world()->step();
        world()->step();
        QCOMPARE(run(QStringLiteral("fired.join(',')")).toString(),
                 QStringLiteral("tick,once,tick"));
        QCOMPARE(log.lines().filter(QStringLiteral("A timed callback failed")).size(), 1);
        Application::instance()->newFile();
        for (int i = 0; i < 60; ++i)
            world()->step();
        QCOMPARE(run(QStringLiteral("fired.length")).toInt32(), 3);
    }

    void evaluateScriptRefusesBadFiles()
    {
        QTemporaryDir directory;
        QFile incomplete(directory.filePath(QStringLiteral("incomplete.script")));
        QVERIFY(incomplete.open(QIODevice::WriteOnly));
        incomplete.write("function f() {");
        incomplete.close();
        QVERIFY(!Application::instance()->evaluateScript(incomplete.fileName()));
        QVERIFY(
            !Application::instance()->evaluateScript(directory.filePath(QStringLiteral("none"))));
        QFile nul(directory.filePath(QStringLiteral("nul.script")));
        QVERIFY(nul.open(QIODevice::WriteOnly));
        nul.write(QByteArray("afterNul = 1;\0garbage(", 22));
        nul.close();
        QVERIFY(Application::instance()->evaluateScript(nul.fileName()));
        // Devices never end, and no script is this large.
        QVERIFY(!Application::instance()->evaluateScript(QStringLiteral("/dev/zero")));
        QFile large(directory.filePath(QStringLiteral("large.script")));
        QVERIFY(large.open(QIODevice::WriteOnly));
        large.write(QByteArray(4 * 1024 * 1024 + 1, ' '));
        large.close();
        MessageLog log;
        QVERIFY(!Application::instance()->evaluateScript(large.fileName()));
        QCOMPARE(log.lines().filter(QStringLiteral("large.script")).size(), 1);
    }
};

BRIVANE_APPLICATION_TEST_MAIN(TestScriptEngine)
#include "tst_scriptengine.moc"
