#include "Commands/ComplexCommand.h"
#include "ItemsOf.h"
#include "Physics/CircleItem.h"
#include "Physics/RectangleItem.h"
#include "PolygonArea.h"
#include "ToolFixture.h"
#include "Tools/ActionContextWidget.h"
#include "WindowTestMain.h"

#include <QDoubleSpinBox>
#include <QGraphicsItemGroup>
#include <QGraphicsRectItem>
#include <QLineEdit>

using Id = MainWindow::ActionId;

// The freehand tools (chain, rope, brush) and the stamps (text, image) through the real view.
class TestStampTools : public QObject, private ToolFixture
{
    Q_OBJECT

    // The items of the command on top of the stack.
    static PhysicsItemList topItems()
    {
        const auto* command
            = dynamic_cast<const ComplexCommand*>(stack()->command(stack()->count() - 1));
        return command ? command->items() : PhysicsItemList();
    }

private slots:
    void initTestCase() { QVERIFY(waitForFirstScene()); }

    void init()
    {
        newEmptyScene();
        snapNowhere();
        Settings::instance()->setChainCircleRadius(0.1);
    }

    // Links lie at twice the radius along the path, one per move however far the mouse
    // jumped, so that a fast mouse gives the same chain as a slow one.
    void chainLinksAreEvenlySpaced()
    {
        selectTool(Id::Chain);
        const ViewGestures mouse = gestures();
        const QPointF start = mouse.onPixel(QPointF(0, 3));
        mouse.press(start);
        for (double x : {0.05, 0.9, 0.95, 3.0, 3.0, 3.0, 3.0})
            mouse.move(QPointF(start.x() + x, start.y()), Qt::LeftButton);
        mouse.release(QPointF(start.x() + 3.0, start.y()));
        QCOMPARE(stack()->text(stack()->count() - 1), QStringLiteral("Chain"));
        const QList<CircleItem*> circles = itemsOf<CircleItem>(topItems());
        QCOMPARE(circles.size(), 7);
        for (int i = 0; i < circles.size(); ++i)
            QVERIFY(near(circles.at(i)->positionX(), start.x() + 0.2 * i, 1e-4));
        QVERIFY(shownPreviews().isEmpty());
    }

    void chainOfTwoMakesNothing()
    {
        selectTool(Id::Chain);
        const int count = stack()->count();
        gestures().drag(QPointF(0, 3), QPointF(0.3, 3));
        QCOMPARE(stack()->count(), count);
        QVERIFY(shownPreviews().isEmpty());
    }

    // With the grid on, the pressed point snaps; the links after it keep their spacing.
    void onlyThePressedPointSnaps()
    {
        Settings::instance()->setSnapToGrid(true);
        Settings::instance()->setGridSize(0.5);
        selectTool(Id::Chain);
        gestures().drag(QPointF(0.1, 3.1), QPointF(1.1, 3.1));
        Settings::instance()->setSnapToGrid(false);
        const QList<CircleItem*> circles = itemsOf<CircleItem>(topItems());
        QVERIFY(circles.size() >= 3);
        QVERIFY(near(circles.at(0)->positionX(), 0.0) && near(circles.at(0)->positionY(), 3.0));
        QVERIFY(near(circles.at(1)->positionX(), 0.2));
    }

    // The preview shows the links a third as thick as they are long, the rope half.
    void ropePreviewIsThinnerThanTheRope()
    {
        const double width = Settings::instance()->ropeRectangleWidth;
        selectTool(Id::Rope);
        const ViewGestures mouse = gestures();
        mouse.pressAndDrag(QPointF(0, 3), QPointF(3, 3));
        auto* group = shownPreview<QGraphicsItemGroup>();
        QVERIFY(group && !group->childItems().isEmpty());
        auto* shownLink = dynamic_cast<QGraphicsRectItem*>(group->childItems().first());
        QVERIFY(near(shownLink->rect().height(), width / 3));
        mouse.release(QPointF(3, 3));
        const QList<RectangleItem*> links = itemsOf<RectangleItem>(topItems());
        QVERIFY(!links.isEmpty());
        QVERIFY(near(links.first()->height(), width / 2));
    }

    // A stroke becomes one body: as long as the stroke and as wide as the brush, with round
    // ends.
    void brushStrokeBecomesABody()
    {
        const double size = Settings::instance()->brushSize;
        selectTool(Id::Brush);
        const ViewGestures mouse = gestures();
        const QPointF start = mouse.onPixel(QPointF(0, 3));
        mouse.press(start);
        for (double x = 0.3; x <= 2.05; x += 0.3)
            mouse.move(QPointF(start.x() + x, start.y()), Qt::LeftButton);
        mouse.release(QPointF(start.x() + 1.8, start.y()));
        QCOMPARE(stack()->text(stack()->count() - 1), QStringLiteral("Polygon"));
        const QList<BodyItem*> bodies = world()->bodyItems();
        QCOMPARE(bodies.size(), 1);
        const double expected = 1.8 * size + M_PI * size * size / 4;
        QVERIFY(std::abs(polygonArea(bodies.first()->worldPolygon()) - expected) < 0.05 * expected);
    }

    // The stamp follows the mouse; a right click stamps nothing, a left click stamps.
    void stamps_data()
    {
        QTest::addColumn<Id>("tool");
        QTest::addColumn<QString>("text");
        QTest::newRow("text") << Id::Text << "Text (Brivane)";
        QTest::newRow("image") << Id::Image << "Image (tux)";
    }

    void stamps()
    {
        QFETCH(Id, tool);
        QFETCH(QString, text);
        selectTool(tool);
        const ViewGestures mouse = gestures();
        QVERIFY(shownPreviews().isEmpty());
        mouse.move(QPointF(1, 4));
        QCOMPARE(shownPreviews().size(), 1);
        QVERIFY(QLineF(shownPreviews().first()->pos(), mouse.onPixel(QPointF(1, 4))).length()
                < 1e-9);
        const int count = stack()->count();
        mouse.click(QPointF(1, 4), Qt::RightButton);
        QCOMPARE(stack()->count(), count);
        mouse.click(QPointF(1, 4));
        QCOMPARE(stack()->text(stack()->count() - 1), text);
        QVERIFY(!topItems().isEmpty());
    }

    // The previews that show a strip's value follow a change in the strip at once, while the
    // mouse rests.
    void previewFollowsTheStrip_data()
    {
        QTest::addColumn<Id>("id");
        QTest::addColumn<double>("growth");
        QTest::newRow("text") << Id::Text << 2.0;
        QTest::newRow("image scale") << Id::Image << 3.0;
        QTest::newRow("revolute radius") << Id::RevoluteJoint << 4.0;
    }
    void previewFollowsTheStrip()
    {
        QFETCH(Id, id);
        QFETCH(double, growth);
        selectTool(id);
        gestures().move(QPointF(1, 4));
        QCOMPARE(shownPreviews().size(), 1);
        const double before = shownPreviews().first()->sceneBoundingRect().width();
        QWidget* strip = tool(id)->contextWidget;
        auto* text = strip->findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly);
        if (text && !text->isReadOnly()) {
            text->setText(text->text() + text->text());
        } else {
            // The last number of the strip: the image's scale, the joint's radius.
            auto* size = strip->findChildren<QDoubleSpinBox*>().last();
            size->setValue(growth * size->value());
        }
        const double after = shownPreviews().first()->sceneBoundingRect().width();
        QVERIFY2(std::abs(after / before - growth) < 0.25 * growth,
                 qPrintable(QStringLiteral("%1 -> %2").arg(before).arg(after)));
    }
};

BRIVANE_WINDOW_TEST_MAIN(TestStampTools, true)
#include "tst_stamptools.moc"
