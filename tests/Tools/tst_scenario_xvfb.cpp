#include "Commands/BodyCommand.h"
#include "Physics/RectangleItem.h"
#include "ToolFixture.h"
#include "WindowTestMain.h"

#include <QDir>
#include <QScreen>
#include <QToolTip>

using Id = MainWindow::ActionId;

namespace {
// Screenshots of each stage go here, under the working directory of the tests.
const char* const artifactDirectory = "artifacts";

// Metres: the rectangle that the user draws, above the ground's floor, whose top is y = 0.
const QPointF drawFrom(-1.0, 3.0);
const QPointF drawTo(1.0, 4.0);
// Enough fixed steps of 1/60 s for the fall of 2.5 m and for the bounce to die away.
const int fallSteps = 300;
} // namespace

// The program as a user meets it, on a real X server: draw a rectangle with the mouse, press
// Space to play, watch it fall onto the ground and rest there, undo the play, which puts it
// back where it was drawn, and undo the drawing, which takes it away. The window is kept as a
// screenshot at each stage.
class TestScenario : public QObject, private ToolFixture
{
    Q_OBJECT

    QImage screenshot() const
    {
        return window()->screen()->grabWindow(window()->winId()).toImage();
    }
    void saveScreenshot(const QString& stage) const
    {
        QVERIFY(QDir().mkpath(QString::fromLatin1(artifactDirectory)));
        const QString path
            = QStringLiteral("%1/scenario-%2.png").arg(QLatin1String(artifactDirectory), stage);
        QVERIFY2(screenshot().save(path), qPrintable(path));
    }
    // Where a scene point appears in a screenshot of the window.
    QPoint windowPixel(const QPointF& scenePoint) const
    {
        return view()->viewport()->mapTo(window(), gestures().pixel(scenePoint));
    }
    QRgb screenPixel(const QPointF& scenePoint) const
    {
        return screenshot().pixel(windowPixel(scenePoint));
    }
    static bool sameColour(QRgb pixel, const QColor& colour)
    {
        const int tolerance = 3; // of 255, for the rounding of the painting
        return qAbs(qRed(pixel) - colour.red()) <= tolerance
            && qAbs(qGreen(pixel) - colour.green()) <= tolerance
            && qAbs(qBlue(pixel) - colour.blue()) <= tolerance;
    }

private slots:
    void initTestCase()
    {
        QVERIFY(waitForFirstScene());
        QVERIFY(!world()->bodyItems().isEmpty());
        window()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window()));
        snapNowhere();
    }

    void drawPlayRewindUndo()
    {
        const QRectF drawn = QRectF(gestures().onPixel(drawFrom), gestures().onPixel(drawTo));
        const QPointF restingCentre(drawn.center().x(), drawn.height() / 2);
        // The picture without the rectangle, once the first frames have reached the server.
        QTRY_VERIFY_WITH_TIMEOUT(screenPixel(QPointF(0.0, -0.5)) != screenPixel(drawn.center()),
                                 5000);
        const QRgb background = screenPixel(drawn.center());
        const QRgb backgroundBelow = screenPixel(restingCentre);
        saveScreenshot(QStringLiteral("start"));

        window()->action(Id::Rectangle)->trigger();
        QCOMPARE(view()->currentAction, tool(Id::Rectangle));
        gestures().pressAndDrag(drawFrom, drawTo);
        QTRY_VERIFY_WITH_TIMEOUT(screenPixel(drawn.center()) != background, 5000);
        saveScreenshot(QStringLiteral("drawing"));
        gestures().release(drawTo);
        QCOMPARE(stack()->count(), 1);
        auto* rectangle = topItem<BodyCommand, RectangleItem>();
        QVERIFY(rectangle);
        QVERIFY(near(rectangle->positionX(), drawn.center().x()));
        QVERIFY(near(rectangle->positionY(), drawn.center().y()));
        // The body in its own colour, where the preview was paler, and the sizes gone.
        const QColor colour = rectangle->brush().color();
        QTRY_VERIFY_WITH_TIMEOUT(
            sameColour(screenPixel(drawn.center()), colour) && !QToolTip::isVisible(), 5000);
        saveScreenshot(QStringLiteral("drawn"));

        QTest::keyClick(view(), Qt::Key_Space);
        QVERIFY(world()->running());
        QCOMPARE(stack()->count(), 2);
        QCOMPARE(stack()->text(1), QStringLiteral("Play"));
        // Fixed steps here; the world's own timer adds a few more while the screen catches up,
        // which changes nothing for a body at rest.
        for (int i = 0; i < fallSteps; ++i)
            world()->step();
        QVERIFY2(near(rectangle->positionY(), drawn.height() / 2, 0.02),
                 qPrintable(QString::number(rectangle->positionY())));
        QVERIFY(near(rectangle->positionX(), drawn.center().x(), 0.02));
        QVERIFY(near(rectangle->angle(), 0.0, 0.5));
        QTRY_VERIFY_WITH_TIMEOUT(screenPixel(restingCentre) != backgroundBelow
                                     && screenPixel(drawn.center()) == background,
                                 5000);
        saveScreenshot(QStringLiteral("rested"));

        window()->action(Id::Undo)->trigger();
        QVERIFY(!world()->running());
        QCOMPARE(stack()->index(), 1);
        QVERIFY(near(rectangle->positionX(), drawn.center().x()));
        QVERIFY(near(rectangle->positionY(), drawn.center().y()));
        QCOMPARE(rectangle->angle(), 0.0);
        QVERIFY(rectangle->isActive());
        QTRY_VERIFY_WITH_TIMEOUT(screenPixel(drawn.center()) != background
                                     && screenPixel(restingCentre) == backgroundBelow,
                                 5000);
        saveScreenshot(QStringLiteral("rewound"));

        window()->action(Id::Undo)->trigger();
        QCOMPARE(stack()->index(), 0);
        QVERIFY(!rectangle->isActive());
        QVERIFY(!rectangle->graphicsItem()->isVisible());
        QVERIFY(world()->bodyItems().contains(rectangle));
        QTRY_COMPARE_WITH_TIMEOUT(screenPixel(drawn.center()), background, 5000);
        saveScreenshot(QStringLiteral("undone"));
    }
};

BRIVANE_WINDOW_TEST_MAIN(TestScenario, false)
#include "tst_scenario_xvfb.moc"
