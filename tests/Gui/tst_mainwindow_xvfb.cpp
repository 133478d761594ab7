#include "Application/Application.h"
#include "Gui/MainWindow.h"
#include "View/GraphicsView.h"

#include <QDir>
#include <QFileInfo>
#include <QScreen>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

namespace {
// The saved picture of the window, under the working directory of the tests.
const char* const artifactPath = "artifacts/mainwindow.png";

// The scene's floor lies 1 m high under y = 0; this is its middle.
const QPointF floorPoint(0.0, -0.5);

bool isWhiteOrBlack(QRgb pixel)
{
    const QRgb colour = pixel & RGB_MASK;
    return colour == 0xffffff || colour == 0x000000;
}
} // namespace

// The program as it starts, on a real X server: its first window, with the first scene and
// its ground, as the screen shows it.
class TestMainWindowOnScreen : public QObject
{
    Q_OBJECT

    MainWindow* window() { return Application::instance()->mainWindow; }

    // The window as the X server has it, in window pixels.
    QImage screenshot() { return window()->screen()->grabWindow(window()->winId()).toImage(); }

    // Where a scene point appears in a screenshot of the window.
    QPoint windowPixel(const QPointF& scenePoint)
    {
        GraphicsView* view = window()->graphicsView();
        return view->viewport()->mapTo(window(), view->mapFromScene(scenePoint));
    }

    QRect viewportRect()
    {
        QWidget* viewport = window()->graphicsView()->viewport();
        return QRect(viewport->mapTo(window(), QPoint(0, 0)), viewport->size());
    }

private slots:
    void initTestCase()
    {
        QVERIFY(window());
        QSignalSpy created(Application::instance(), &Application::fileCreated);
        QVERIFY(created.wait(5000));
        QVERIFY(QTest::qWaitForWindowExposed(window()));
    }

    void viewShowsGround()
    {
        const QPoint floor = windowPixel(floorPoint);
        QVERIFY2(viewportRect().contains(floor), "the floor lies outside the view");
        // The first frames may still be on their way to the server.
        QTRY_VERIFY_WITH_TIMEOUT(!isWhiteOrBlack(screenshot().pixel(floor)), 5000);

        const QImage shot = screenshot();
        QVERIFY(QDir().mkpath(QFileInfo(QString::fromLatin1(artifactPath)).path()));
        QVERIFY(shot.save(QString::fromLatin1(artifactPath)));
        QCOMPARE(shot.size(), window()->size());

        QSet<QRgb> colours;
        const QRect viewport = viewportRect();
        for (int y = viewport.top(); y <= viewport.bottom(); y += 2) {
            for (int x = viewport.left(); x <= viewport.right(); x += 2)
                colours.insert(shot.pixel(x, y));
        }
        QVERIFY2(colours.size() > 8, qPrintable(QString::number(colours.size())));
    }

    void windowIsMaximisedOnFirstRun()
    {
        QVERIFY(window()->isMaximized());
        QCOMPARE(window()->windowTitle(), QStringLiteral("Brivane"));
    }
};

int main(int argc, char* argv[])
{
    // Default settings: no settings file before, so that the first scene gets its ground, and
    // none left behind.
    const QString ini = QFileInfo(QString::fromLocal8Bit(argv[0])).absolutePath()
        + QStringLiteral("/Brivane.ini");
    QFile::remove(ini);
    Application application(argc, argv);
    application.initialise();
    TestMainWindowOnScreen test;
    const int result = QTest::qExec(&test, argc, argv);
    QFile::remove(ini);
    return result;
}

#include "tst_mainwindow_xvfb.moc"
