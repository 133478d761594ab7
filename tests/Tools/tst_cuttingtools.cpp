#include "Physics/RectangleItem.h"
#include "PolygonArea.h"
#include "ToolFixture.h"
#include "WindowTestMain.h"

#include <QGraphicsPathItem>

using Id = MainWindow::ActionId;
Q_DECLARE_METATYPE(MainWindow::ActionId)

namespace {
double area(const QPainterPath& path)
{
    double sum = 0.0;
    for (const QPolygonF& polygon : path.toFillPolygons())
        sum += polygonArea(polygon);
    return sum;
}

double activeBodyArea(PhysicsWorld* world)
{
    QPainterPath path;
    for (BodyItem* body : world->bodyItems()) {
        if (body->isActive())
            path.addPolygon(body->worldPolygon());
    }
    return area(path);
}
} // namespace

// The eraser and the three boolean tools through the real view, with the mouse.
class TestCuttingTools : public QObject, private ToolFixture
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(waitForFirstScene());
        snapNowhere();
    }

    void init() { newEmptyScene(); }

    // A stroke down across the middle of a bar cuts it in two, as one undo step.
    void eraserCutsAlongTheStroke()
    {
        world()->createRectangle(0, 2, 0, 4, 1);
        selectTool(Id::Erase);
        const ViewGestures mouse = gestures();
        mouse.press(QPointF(0, 3));
        for (double y = 2.7; y >= 1.0; y -= 0.3)
            mouse.move(QPointF(0, y), Qt::LeftButton);
        QVERIFY(shownPreview<QGraphicsPathItem>());
        mouse.release(QPointF(0, 1.0));
        QVERIFY(shownPreviews().isEmpty());
        QCOMPARE(stack()->text(stack()->count() - 1), QStringLiteral("Erase"));
        QCOMPARE(world()->activeItems().size(), 2);
        // The erased strip is as wide as the eraser.
        const double width = Settings::instance()->eraseSize;
        QVERIFY(std::abs(activeBodyArea(world()) - (4.0 - width)) < 1e-3);
        stack()->undo();
        QCOMPARE(world()->activeItems().size(), 1);
    }

    // Two squares, the top one half over the lower one: hovering over both previews the
    // result, over one body nothing; a click makes it.
    void booleanTools_data()
    {
        QTest::addColumn<Id>("tool");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("resultArea");
        QTest::newRow("union") << Id::Union << "Union" << 6.0;
        QTest::newRow("difference") << Id::Difference << "Difference" << 2.0;
        QTest::newRow("intersection") << Id::Intersection << "Intersection" << 2.0;
    }

    void booleanTools()
    {
        QFETCH(Id, tool);
        QFETCH(QString, text);
        QFETCH(double, resultArea);
        RectangleItem* lower = world()->createRectangle(0, 2, 0, 2, 2);
        RectangleItem* top = world()->createRectangle(1, 2, 0, 2, 2);
        top->setZValue(lower->zValue() + 1);
        selectTool(tool);
        const ViewGestures mouse = gestures();
        mouse.move(QPointF(-0.5, 2));
        QVERIFY(shownPreviews().isEmpty());
        mouse.move(QPointF(0.5, 2));
        QList<QGraphicsItem*> previews;
        for (QGraphicsItem* item : view()->scene()->items()) {
            if (item->isVisible() && dynamic_cast<QGraphicsPathItem*>(item)
                && !world()->physicsItemFromGraphicsItem(item))
                previews.append(item);
        }
        QCOMPARE(previews.size(), 1);
        auto* preview = static_cast<QGraphicsPathItem*>(previews.first());
        QVERIFY(std::abs(area(preview->path()) - resultArea) < 1e-3);
        QCOMPARE(preview->brush(), lower->brush());

        mouse.click(QPointF(0.5, 2));
        QCOMPARE(stack()->text(stack()->count() - 1), text);
        QVERIFY(!lower->isActive() && !top->isActive());
        QVERIFY(std::abs(activeBodyArea(world()) - resultArea) < 1e-3);
    }
};

BRIVANE_WINDOW_TEST_MAIN(TestCuttingTools, true)
#include "tst_cuttingtools.moc"
