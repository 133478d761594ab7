#include "Application/Application.h"
#include "Gui/MainWindow.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/RectangleItem.h"
#include "Scripting/CommandLineEdit.h"
#include "Scripting/ConsoleWidget.h"
#include "Scripting/ScriptRunner.h"
#include "View/GraphicsView.h"
#include "ViewGestures.h"
#include "WindowTestMain.h"

#include <QAction>
#include <QFile>
#include <QFileInfo>
#include <QScriptEngine>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <QTimer>
#include <functional>

using Id = MainWindow::ActionId;

namespace {
const QString earlyMessage = QStringLiteral("reported before the window");

Application* application()
{
    return Application::instance();
}

ConsoleWidget* console()
{
    return application()->mainWindow->console();
}

QTextEdit* log()
{
    return console()->findChild<QTextEdit*>(QStringLiteral("textEdit"));
}

// A message as shown: the name of its icon (the last part of the path) and its text.
QString shown(const QTextBlock& block)
{
    QString icon;
    for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) {
        const QTextCharFormat format = fragment.fragment().charFormat();
        if (format.isImageFormat())
            icon = QFileInfo(format.toImageFormat().name()).baseName();
    }
    return icon + QLatin1Char(':')
        + block.text().remove(QChar::ObjectReplacementCharacter).trimmed();
}

QStringList lastMessages(int count)
{
    QStringList messages;
    for (QTextBlock block = log()->document()->lastBlock(); block.isValid() && count > 0;
         block = block.previous(), --count)
        messages.prepend(shown(block));
    return messages;
}

void type(const QString& line)
{
    auto* input = console()->findChild<CommandLineEdit*>(QStringLiteral("commandLineEdit"));
    input->setText(line);
    QTest::keyClick(input, Qt::Key_Return);
}
} // namespace

class TestConsole : public QObject
{
    Q_OBJECT

private slots:
    // The first scene comes a moment after the start; it must not arrive in the middle of a
    // case.
    void initTestCase()
    {
        QSignalSpy created(application(), &Application::fileCreated);
        QTRY_COMPARE(created.count(), 1);
    }

    void messagesBeforeTheWindowAreShownOnceItExists()
    {
        QCOMPARE(shown(log()->document()->firstBlock()), "info:" + earlyMessage);
    }

    void typedLines_data()
    {
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QStringList>("messages");
        QTest::newRow("result") << QStringList({"1 + 1"})
                                << QStringList({"input:1 + 1", "output:2"});
        QTest::newRow("syntax error, nothing runs")
            << QStringList({"probe = 1 +", "typeof probe"})
            << QStringList({"input:probe = 1 +", "warning:SyntaxError: Parse error",
                            "input:typeof probe", "output:undefined"});
        QTest::newRow("script error")
            << QStringList({"foo.bar"})
            << QStringList({"input:foo.bar", "warning:ReferenceError: Can't find variable: foo"});
        QTest::newRow("a thrown value is an error too")
            << QStringList({"throw 5"}) << QStringList({"input:throw 5", "warning:5"});
        QTest::newRow("the global scope stays")
            << QStringList({"var a = 7", "a * 2"})
            << QStringList({"input:var a = 7", "output:undefined", "input:a * 2", "output:14"});
        QTest::newRow("the simplified line runs")
            << QStringList({"  'a   b'  "}) << QStringList({"input:'a b'", "output:a b"});
        QTest::newRow("empty line")
            << QStringList({""}) << QStringList({"input:", "output:undefined"});
        QTest::newRow("items by name")
            << QStringList({"world.createRectangle(0, 0, 0, 1, 1).Name == item1.Name"})
            << QStringList({"input:world.createRectangle(0, 0, 0, 1, 1).Name == item1.Name",
                            "output:true"});
    }

    void typedLines()
    {
        QFETCH(QStringList, lines);
        QFETCH(QStringList, messages);
        application()->newFile();
        for (const QString& line : qAsConst(lines))
            type(line);
        QCOMPARE(lastMessages(messages.size()), messages);
    }

    void history_data()
    {
        QTest::addColumn<QStringList>("entered");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("keys"); // U for Up, D for Down
        QTest::addColumn<QString>("field");
        QTest::addColumn<QStringList>("history");
        QTest::newRow("up on empty history") << QStringList() << "abc"
                                             << "U"
                                             << "abc" << QStringList();
        QTest::newRow("up up down") << QStringList({"a", "b"}) << ""
                                    << "UUD"
                                    << "b" << QStringList({"a", "b"});
        QTest::newRow("up stops at the oldest") << QStringList({"a"}) << ""
                                                << "UUU"
                                                << "a" << QStringList({"a"});
        QTest::newRow("down past the newest files the shown entry")
            << QStringList({"a", "b"}) << ""
            << "UD"
            << "" << QStringList({"a", "b", "b"});
        QTest::newRow("down files a half-typed line") << QStringList({"a"}) << "half"
                                                      << "D"
                                                      << "" << QStringList({"a", "half"});
        QTest::newRow("down on an empty field files nothing") << QStringList({"a"}) << ""
                                                              << "D"
                                                              << "" << QStringList({"a"});
        QTest::newRow("empty lines are kept") << QStringList({"", "x"}) << ""
                                              << "UU"
                                              << "" << QStringList({"", "x"});
    }

    void history()
    {
        QFETCH(QStringList, entered);
        QFETCH(QString, typed);
        QFETCH(QString, keys);
        QFETCH(QString, field);
        QFETCH(QStringList, history);
        CommandLineEdit input;
        for (const QString& line : qAsConst(entered)) {
            input.setText(line);
            QTest::keyClick(&input, Qt::Key_Return);
        }
        input.setText(typed);
        for (QChar key : keys)
            QTest::keyClick(&input, key == QLatin1Char('U') ? Qt::Key_Up : Qt::Key_Down);
        QCOMPARE(input.text(), field);
        QCOMPARE(input.historyEntries(), history);
    }

    void theLogKeepsTheNewestMessages()
    {
        const int count = ConsoleWidget::maximumMessages * 2;
        for (int i = 0; i < count; ++i)
            console()->debug(QString::number(i), Brivane::Critical);
        const int kept = log()->document()->blockCount();
        QVERIFY(kept >= ConsoleWidget::maximumMessages);
        QVERIFY(kept <= ConsoleWidget::maximumMessages * 11 / 10);
        QCOMPARE(shown(log()->document()->firstBlock()),
                 QStringLiteral("critical:%1").arg(count - kept));
        QCOMPARE(lastMessages(1), QStringList(QStringLiteral("critical:%1").arg(count - 1)));
    }

    void aRunawayScriptIsStopped_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("stop");
        for (const char* source : {"console", "file", "OnUpdate"}) {
            for (const char* stop : {"action", "Escape"})
                QTest::addRow("%s, %s", source, stop) << source << stop;
        }
    }

    // While the script runs, a drag with the rectangle tool changes nothing; the stop action
    // is enabled; the stop is reported and leaves the world paused.
    void aRunawayScriptIsStopped()
    {
        QFETCH(QString, source);
        QFETCH(QString, stop);
        application()->newFile();
        MainWindow* window = application()->mainWindow;
        GraphicsView* view = window->graphicsView();
        QAction* stopAction = window->action(Id::StopScript);
        PhysicsWorld* world = PhysicsWorld::instance();
        window->action(Id::Rectangle)->trigger();
        const int itemsBefore = world->items().size();
        bool enabledWhileRunning = false;
        int itemsWhileRunning = -1;
        QTimer::singleShot(3 * ScriptRunner::processEventsInterval, [&] {
            enabledWhileRunning = stopAction->isEnabled();
            ViewGestures(view).drag(QPointF(-2, 2), QPointF(2, 4));
            itemsWhileRunning = world->items().size();
            if (stop == QLatin1String("action"))
                stopAction->trigger();
            else
                QTest::keyClick(view, Qt::Key_Escape);
        });

        const QString loop = QStringLiteral("while (true) {}");
        QTemporaryDir directory;
        if (source == QLatin1String("console")) {
            type(loop);
        } else if (source == QLatin1String("file")) {
            QFile file(directory.filePath(QStringLiteral("loop.script")));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(loop.toUtf8());
            file.close();
            QVERIFY(!application()->evaluateScript(file.fileName()));
        } else {
            world->createRectangle(0, 10, 0, 1, 1)->setOnUpdate(loop);
            world->start();
        }

        QTRY_COMPARE(lastMessages(1), QStringList("warning:The script was stopped."));
        QVERIFY(enabledWhileRunning);
        QCOMPARE(itemsWhileRunning, itemsBefore + (source == QLatin1String("OnUpdate") ? 1 : 0));
        QTRY_VERIFY(!stopAction->isEnabled());
        QVERIFY(!world->running());
        QVERIFY(!application()->scriptRunner->isRunning());
        // The engine runs the next line as usual.
        type(QStringLiteral("6 * 7"));
        QCOMPARE(lastMessages(1), QStringList("output:42"));
        window->action(Id::Select)->trigger();
    }
};

// The console keeps what was reported before the window existed.
BRIVANE_WINDOW_TEST_MAIN_WITH(TestConsole, true, [](Application& app) { app.debug(earlyMessage); })

#include "tst_console.moc"
