#include "Commands/BodyCommand.h"
#include "Commands/JointCommand.h"
#include "GestureFixture.h"
#include "Physics/BalloonItem.h"
#include "Physics/PolygonItem.h"
#include "Physics/RectangleItem.h"
#include "Physics/RevoluteJoint.h"
#include "Tools/PolygonAction.h"
#include "View/GearGraphicsItem.h"
#include "WindowTestMain.h"

#include <QGraphicsEllipseItem>
#include <QGraphicsPolygonItem>
#include <QGraphicsRectItem>
#include <QRadialGradient>
#include <QToolTip>

using Id = MainWindow::ActionId;

namespace {
// Metres: where the gear tests put the centre of their gear.
const QPointF gearCentre(-1.0, 1.0);
} // namespace

// The tools that draw one body, driven through the real view with the mouse: the body each
// makes in world coordinates, sizes below the minimum, Escape and a change of tool in the
// middle of a gesture, and snapping to the grid and to other bodies.
class TestBodyTools : public QObject, private GestureFixture
{
    Q_OBJECT

    // A point of the scene in the middle of the view, whatever its zoom.
    QPointF viewCentre() const { return view()->mapToScene(view()->viewport()->rect().center()); }

    // Starts the gesture of a tool, without finishing it: a drag, or two clicks and a move.
    void beginGesture(Id id) override
    {
        const ViewGestures mouse = gestures();
        if (id == Id::Polygon) {
            mouse.click(QPointF(0, 0));
            mouse.click(QPointF(2, 0));
            mouse.move(QPointF(1, 2));
        } else {
            mouse.pressAndDrag(QPointF(0, 0), QPointF(2, 1));
        }
    }
    // Ends a gesture as the tool would finish it.
    void endGesture(Id id) override
    {
        if (id == Id::Polygon)
            gestures().click(QPointF(1, 2), Qt::RightButton);
        else
            gestures().release(QPointF(2, 1));
    }

    // The settings that tests change, as the program started with them.
    struct
    {
        bool snapToGrid;
        bool snapToObjects;
        double gridSize;
        bool gearCreateRevoluteJoint;
        double gearToothSize;
        double gearToothCountDivisor;
    } saved;

private slots:
    void initTestCase()
    {
        QVERIFY(waitForFirstScene());
        saved.snapToGrid = Settings::instance()->snapToGrid;
        saved.snapToObjects = Settings::instance()->snapToObjects;
        saved.gridSize = Settings::instance()->gridSize;
        saved.gearCreateRevoluteJoint = Settings::instance()->gearCreateRevoluteJoint;
        saved.gearToothSize = Settings::instance()->gearToothSize;
        saved.gearToothCountDivisor = Settings::instance()->gearToothCountDivisor;
    }

    void init()
    {
        newEmptyScene();
        snapNowhere();
        // One gesture, one entry; the gear's axle has its own tests.
        Settings::instance()->setGearCreateRevoluteJoint(false);
        QVERIFY(view()->viewport()->rect().contains(gestures().pixel(QPointF(-6, -5))));
        QVERIFY(view()->viewport()->rect().contains(gestures().pixel(QPointF(6, 5))));
    }

    void cleanup()
    {
        Settings::instance()->setSnapToGrid(saved.snapToGrid);
        Settings::instance()->setSnapToObjects(saved.snapToObjects);
        Settings::instance()->setGridSize(saved.gridSize);
        view()->updateGrid();
        Settings::instance()->setGearCreateRevoluteJoint(saved.gearCreateRevoluteJoint);
        Settings::instance()->setGearToothSize(saved.gearToothSize);
        Settings::instance()->setGearToothCountDivisor(saved.gearToothCountDivisor);
        newEmptyScene();
    }

    void rectangleFromCornerToCorner_data()
    {
        QTest::addColumn<QPointF>("from");
        QTest::addColumn<QPointF>("to");
        QTest::newRow("up and right") << QPointF(-1.3, 0.4) << QPointF(2.2, 1.9);
        QTest::newRow("down and left") << QPointF(3.1, 2.0) << QPointF(-0.6, -1.7);
        QTest::newRow("down and right") << QPointF(-4.0, 3.0) << QPointF(-1.5, 2.2);
    }

    void rectangleFromCornerToCorner()
    {
        QFETCH(QPointF, from);
        QFETCH(QPointF, to);
        selectTool(Id::Rectangle);
        gestures().drag(from, to);

        const QRectF expected
            = QRectF(gestures().onPixel(from), gestures().onPixel(to)).normalized();
        QCOMPARE(stack()->count(), 1);
        QCOMPARE(stack()->text(0), QStringLiteral("Rectangle"));
        auto* rectangle = topItem<BodyCommand, RectangleItem>();
        QVERIFY(rectangle);
        QVERIFY(rectangle->isActive());
        QVERIFY(near(rectangle->positionX(), expected.center().x()));
        QVERIFY(near(rectangle->positionY(), expected.center().y()));
        QVERIFY(near(rectangle->width(), expected.width()));
        QVERIFY(near(rectangle->height(), expected.height()));
        QCOMPARE(rectangle->angle(), 0.0);
        QVERIFY(shownPreviews().isEmpty());
        QCOMPARE(view()->currentAction, tool(Id::Rectangle));
    }

    void rectangleShowsSizesWhileDragging()
    {
        selectTool(Id::Rectangle);
        const QPointF from(-1, -1);
        const QPointF to(2, 1);
        gestures().pressAndDrag(from, to);
        const QPointF size = gestures().onPixel(to) - gestures().onPixel(from);
        QCOMPARE(QToolTip::text(),
                 QStringLiteral("width=%1\nheight=%2")
                     .arg(qAbs(size.x()), 0, 'f', 3)
                     .arg(qAbs(size.y()), 0, 'f', 3));
        auto* preview = shownPreview<QGraphicsRectItem>();
        QVERIFY(preview);
        QCOMPARE(preview->rect(), QRectF(gestures().onPixel(from), gestures().onPixel(to)));
        gestures().release(to);
        // Qt lets a tooltip fade out.
        QTRY_VERIFY_WITH_TIMEOUT(!QToolTip::isVisible(), 2000);
    }

    void shiftMakesASquareUntilItIsReleased()
    {
        selectTool(Id::Rectangle);
        const ViewGestures mouse = gestures();
        const QPointF from(0, 0);
        mouse.press(from, Qt::LeftButton, Qt::ShiftModifier);
        QCOMPARE(QGuiApplication::keyboardModifiers(), Qt::ShiftModifier);
        mouse.move(QPointF(3, -1), Qt::LeftButton);
        auto* preview = shownPreview<QGraphicsRectItem>();
        QVERIFY(preview);
        const double side = qAbs((mouse.onPixel(QPointF(3, -1)) - mouse.onPixel(from)).y());
        QVERIFY(near(preview->rect().width(), side, 1e-9));
        QVERIFY(near(preview->rect().height(), -side, 1e-9));

        QTest::keyRelease(view(), Qt::Key_Shift);
        QCOMPARE(QGuiApplication::keyboardModifiers(), Qt::NoModifier);
        const QPointF to(3, -2);
        mouse.move(to, Qt::LeftButton);
        QCOMPARE(preview->rect(), QRectF(mouse.onPixel(from), mouse.onPixel(to)));
        mouse.release(to);
        auto* rectangle = topItem<BodyCommand, RectangleItem>();
        QVERIFY(rectangle);
        QVERIFY(rectangle->width() > rectangle->height() + 0.5);
    }

    void squareKeepsTheDirectionOfTheDrag()
    {
        selectTool(Id::Rectangle);
        const ViewGestures mouse = gestures();
        const QPointF from(1, 1);
        const QPointF to(-1, 4);
        mouse.press(from, Qt::LeftButton, Qt::ShiftModifier);
        mouse.move(to, Qt::LeftButton);
        mouse.release(to, Qt::LeftButton, Qt::ShiftModifier);
        auto* square = topItem<BodyCommand, RectangleItem>();
        QVERIFY(square);
        const QPointF start = mouse.onPixel(from);
        const double side = qAbs(mouse.onPixel(to).x() - start.x());
        QVERIFY(near(square->width(), side));
        QVERIFY(near(square->height(), side));
        // Left of the press and above it.
        QVERIFY(near(square->positionX(), start.x() - side / 2));
        QVERIFY(near(square->positionY(), start.y() + side / 2));
    }

    void circleFromCentreAndRadius_data()
    {
        QTest::addColumn<Id>("tool");
        QTest::addColumn<QString>("text");
        QTest::newRow("circle") << Id::Circle << QStringLiteral("Circle");
        QTest::newRow("balloon") << Id::Balloon << QStringLiteral("Balloon");
    }

    void circleFromCentreAndRadius()
    {
        QFETCH(Id, tool);
        QFETCH(QString, text);
        selectTool(tool);
        const QPointF centre(-2.2, 1.3);
        const QPointF rim(0.4, 2.5);
        gestures().pressAndDrag(centre, rim);
        const double radius = QLineF(gestures().onPixel(centre), gestures().onPixel(rim)).length();
        QCOMPARE(QToolTip::text(), QStringLiteral("radius=%1").arg(radius, 0, 'f', 3));
        gestures().release(rim);

        QCOMPARE(stack()->count(), 1);
        QCOMPARE(stack()->text(0), text);
        auto* circle = topItem<BodyCommand, CircleItem>();
        QVERIFY(circle);
        QCOMPARE(circle->type() == PhysicsItem::BalloonItemType, tool == Id::Balloon);
        QVERIFY(near(circle->positionX(), gestures().onPixel(centre).x()));
        QVERIFY(near(circle->positionY(), gestures().onPixel(centre).y()));
        QVERIFY(near(circle->radius(), radius));
        QVERIFY(shownPreviews().isEmpty());
        // Qt lets a tooltip fade out.
        QTRY_VERIFY_WITH_TIMEOUT(!QToolTip::isVisible(), 2000);
    }

    void balloonPreviewShadesToWhiteButTheBalloonIsPlain()
    {
        selectTool(Id::Balloon);
        const QPointF centre(1, 1);
        gestures().pressAndDrag(centre, QPointF(3, 1));
        auto* preview = shownPreview<QGraphicsEllipseItem>();
        QVERIFY(preview);
        QCOMPARE(preview->brush().style(), Qt::RadialGradientPattern);
        const auto* gradient = static_cast<const QRadialGradient*>(preview->brush().gradient());
        QCOMPARE(gradient->center(), preview->rect().center());
        QCOMPARE(gradient->radius(), preview->rect().width() / 2);
        QCOMPARE(gradient->stops().last().second, QColor(Qt::white));
        const QColor colour = gradient->stops().first().second;
        gestures().release(QPointF(3, 1));

        auto* balloon = topItem<BodyCommand, BalloonItem>();
        QVERIFY(balloon);
        QCOMPARE(balloon->brush().style(), Qt::SolidPattern);
        QCOMPARE(balloon->brush().color(), colour);
    }

    void eachBodyGetsThePreviewsFreshBrush_data()
    {
        QTest::addColumn<Id>("tool");
        QTest::newRow("rectangle") << Id::Rectangle;
        QTest::newRow("circle") << Id::Circle;
        QTest::newRow("polygon") << Id::Polygon;
        QTest::newRow("gear") << Id::Gear;
    }

    void eachBodyGetsThePreviewsFreshBrush()
    {
        QFETCH(Id, tool);
        selectTool(tool);
        QList<QColor> colours;
        for (int i = 0; i < 2; ++i) {
            beginGesture(tool);
            auto* preview = shownPreview<QAbstractGraphicsShapeItem>();
            QVERIFY(preview);
            const QBrush brush = preview->brush();
            endGesture(tool);
            const BodyItem* body = topItem<BodyCommand, BodyItem>();
            QVERIFY(body);
            QCOMPARE(body->brush().style(), Qt::SolidPattern);
            QCOMPARE(body->brush().color(), brush.color());
            colours.append(brush.color());
        }
        // Random colours, which repeat about once in twenty million.
        QVERIFY(colours.first() != colours.last());
    }

    void gearFromCentreAndRadius_data()
    {
        QTest::addColumn<QPointF>("rim");
        QTest::addColumn<bool>("leastRadius");
        QTest::newRow("dragged") << QPointF(1.5, 2.0) << false;
        QTest::newRow("shorter than a quarter metre") << QPointF(-0.9, 1.1) << true;
        QTest::newRow("click") << gearCentre << true;
    }

    void gearFromCentreAndRadius()
    {
        QFETCH(QPointF, rim);
        QFETCH(bool, leastRadius);
        // Read at the moment of use.
        Settings::instance()->setGearToothSize(0.3);
        Settings::instance()->setGearToothCountDivisor(0.5);
        selectTool(Id::Gear);
        gestures().drag(gearCentre, rim);

        QCOMPARE(stack()->count(), 1);
        QCOMPARE(stack()->text(0), QStringLiteral("Gear"));
        auto* gear = topItem<BodyCommand, BodyItem>();
        QVERIFY(gear);
        QCOMPARE(gear->type(), int(PhysicsItem::GearItemType));
        const QPointF centre = gestures().onPixel(gearCentre);
        QVERIFY(near(gear->positionX(), centre.x()));
        QVERIFY(near(gear->positionY(), centre.y()));
        const double radius = leastRadius ? 0.25 : QLineF(centre, gestures().onPixel(rim)).length();
        QCOMPARE(gear->property("PitchCircleRadius").toDouble(), radius);
        QCOMPARE(gear->property("ToothSize").toDouble(), 0.3);
        QCOMPARE(gear->property("ToothCountDivisor").toDouble(), 0.5);
        QVERIFY(shownPreviews().isEmpty());
    }

    void gearPreviewShowsTheTeethToBe()
    {
        Settings::instance()->setGearToothSize(0.3);
        Settings::instance()->setGearToothCountDivisor(0.5);
        selectTool(Id::Gear);
        const QPointF rim(1.0, 1.0);
        gestures().pressAndDrag(gearCentre, rim);
        auto* preview = shownPreview<GearGraphicsItem>();
        QVERIFY(preview);
        const QPointF centre = gestures().onPixel(gearCentre);
        QCOMPARE(preview->pos(), centre);
        QCOMPARE(preview->pitchCircleRadius(), QLineF(centre, gestures().onPixel(rim)).length());
        QCOMPARE(preview->toothSize(), 0.3);
        QCOMPARE(preview->toothCountDivisor(), 0.5);
        QVERIFY(!preview->polygon().isEmpty());
        gestures().move(QPointF(-0.95, 1.0), Qt::LeftButton);
        QCOMPARE(preview->pitchCircleRadius(), 0.25);
    }

    void gearWithItsAxle_data()
    {
        QTest::addColumn<bool>("onBody");
        QTest::newRow("on empty space, pinned to the background") << false;
        QTest::newRow("on a body, pinned to it") << true;
    }

    void gearWithItsAxle()
    {
        QFETCH(bool, onBody);
        BodyItem* below
            = onBody ? world()->createRectangle(gearCentre.x(), gearCentre.y(), 0, 1, 1) : nullptr;
        Settings::instance()->setGearCreateRevoluteJoint(true);
        selectTool(Id::Gear);
        const QPointF rim(1.5, 1.0);
        gestures().drag(gearCentre, rim);

        // Two entries, so that the axle can be undone on its own.
        QCOMPARE(stack()->count(), 2);
        QCOMPARE(stack()->text(0), QStringLiteral("Gear"));
        QCOMPARE(stack()->text(1), QStringLiteral("Revolute Joint"));
        BodyItem* gear = static_cast<const BodyCommand*>(stack()->command(0))->item();
        auto* axle = topItem<JointCommand, RevoluteJoint>();
        QVERIFY(axle);
        QCOMPARE(axle->bodyItem1(), gear);
        QCOMPARE(axle->bodyItem2(), below);
        const QPointF centre = gestures().onPixel(gearCentre);
        const double radius = QLineF(centre, gestures().onPixel(rim)).length();
        QVERIFY(near(axle->radius(), radius / 5));
        QVERIFY(nearPoint(axle->anchor1(), centre));

        stack()->undo();
        QVERIFY(!axle->isActive());
        QVERIFY(gear->isActive());
    }

    void polygonFromClicks()
    {
        selectTool(Id::Polygon);
        const ViewGestures mouse = gestures();
        const QPolygonF clicked(
            QVector<QPointF> {QPointF(-2, -1), QPointF(3, -1), QPointF(1, 2.5)});
        mouse.click(clicked.at(0));
        mouse.move(clicked.at(1));
        mouse.click(clicked.at(1));
        mouse.move(clicked.at(2));
        QCOMPARE(stack()->count(), 0);
        auto* preview = shownPreview<QGraphicsPolygonItem>();
        QVERIFY(preview);
        QCOMPARE(preview->polygon().size(), 3);
        mouse.click(clicked.at(2), Qt::RightButton);

        QCOMPARE(stack()->count(), 1);
        QCOMPARE(stack()->text(0), QStringLiteral("Polygon"));
        auto* polygon = topItem<BodyCommand, PolygonItem>();
        QVERIFY(polygon);
        QPolygonF expected;
        for (const QPointF& point : clicked)
            expected << mouse.onPixel(point);
        const QPointF centre = expected.boundingRect().center();
        QVERIFY(near(polygon->positionX(), centre.x()));
        QVERIFY(near(polygon->positionY(), centre.y()));
        const QPolygonF outline = polygon->worldPolygon();
        QCOMPARE(outline.size(), 3);
        for (const QPointF& corner : expected) {
            bool found = false;
            for (const QPointF& vertex : outline)
                found = found || QLineF(corner, vertex).length() < 1e-4;
            QVERIFY2(found, qPrintable(QStringLiteral("%1,%2").arg(corner.x()).arg(corner.y())));
        }
        QVERIFY(shownPreviews().isEmpty());
    }

    void polygonMakesNothing_data()
    {
        QTest::addColumn<QPolygonF>("leftClicks");
        QTest::addColumn<QPointF>("rightClick");
        QTest::newRow("right click first") << QPolygonF() << QPointF(1, 1);
        QTest::newRow("two points") << QPolygonF(QVector<QPointF> {QPointF(0, 0)}) << QPointF(2, 1);
        QTest::newRow("crossing itself")
            << QPolygonF(QVector<QPointF> {QPointF(0, 0), QPointF(2, 2), QPointF(2, 0)})
            << QPointF(0, 2);
    }

    void polygonMakesNothing()
    {
        QFETCH(QPolygonF, leftClicks);
        QFETCH(QPointF, rightClick);
        selectTool(Id::Polygon);
        for (const QPointF& point : leftClicks)
            gestures().click(point);
        gestures().move(rightClick);
        gestures().click(rightClick, Qt::RightButton);
        QCOMPARE(stack()->count(), 0);
        QVERIFY(shownPreviews().isEmpty());
        QCOMPARE(world()->bodyItems().size(), 0);
    }

    void polygonPreviewOfACrossingOutlineIsUnfilled()
    {
        selectTool(Id::Polygon);
        for (const QPointF& point : {QPointF(0, 0), QPointF(2, 2), QPointF(2, 0)})
            gestures().click(point);
        auto* preview = shownPreview<QGraphicsPolygonItem>();
        QVERIFY(preview);
        gestures().move(QPointF(0, 2));
        QCOMPARE(preview->brush().style(), Qt::NoBrush);
        QCOMPARE(preview->polygon().size(), 4);
        gestures().move(QPointF(1, -1));
        QCOMPARE(preview->brush().style(), Qt::SolidPattern);
    }

    void crossingTest_data()
    {
        QTest::addColumn<QPolygonF>("polygon");
        QTest::addColumn<bool>("crosses");
        QTest::newRow("empty") << QPolygonF() << false;
        QTest::newRow("one point") << QPolygonF(QVector<QPointF> {QPointF(1, 1)}) << false;
        QTest::newRow("two points")
            << QPolygonF(QVector<QPointF> {QPointF(0, 0), QPointF(1, 1)}) << false;
        QTest::newRow("triangle") << QPolygonF(
            QVector<QPointF> {QPointF(0, 0), QPointF(1, 0), QPointF(0, 1)})
                                  << false;
        QTest::newRow("concave") << QPolygonF(QVector<QPointF> {
            QPointF(0, 0), QPointF(4, 0), QPointF(4, 4), QPointF(2, 1), QPointF(0, 4)})
                                 << false;
        QTest::newRow("closed by a repeated first point") << QPolygonF(
            QVector<QPointF> {QPointF(0, 0), QPointF(1, 0), QPointF(1, 1), QPointF(0, 0)})
                                                          << false;
        QTest::newRow("bow tie") << QPolygonF(
            QVector<QPointF> {QPointF(0, 0), QPointF(2, 2), QPointF(2, 0), QPointF(0, 2)})
                                 << true;
        QTest::newRow("closing edge crosses") << QPolygonF(
            QVector<QPointF> {QPointF(0, 0), QPointF(4, 0), QPointF(4, 2), QPointF(2, -1)})
                                              << true;
        QTest::newRow("pentagram")
            << QPolygonF(QVector<QPointF> {QPointF(0, 3), QPointF(1.8, -2.4), QPointF(-2.9, 0.9),
                                           QPointF(2.9, 0.9), QPointF(-1.8, -2.4)})
            << true;
    }

    void crossingTest()
    {
        QFETCH(QPolygonF, polygon);
        QFETCH(bool, crosses);
        QCOMPARE(PolygonAction::crossesItself(polygon), crosses);
    }

    void belowMinimumSizeMakesNothing_data()
    {
        QTest::addColumn<Id>("tool");
        QTest::addColumn<double>("scale"); // pixels per metre
        QTest::addColumn<QPoint>("drag"); // pixels
        QTest::addColumn<bool>("made");
        QTest::newRow("rectangle, click") << Id::Rectangle << 100.0 << QPoint(0, 0) << false;
        QTest::newRow("rectangle, 0.09 m high")
            << Id::Rectangle << 100.0 << QPoint(300, 9) << false;
        QTest::newRow("rectangle, 0.09 m wide")
            << Id::Rectangle << 100.0 << QPoint(-9, -300) << false;
        QTest::newRow("rectangle, 0.12 m square")
            << Id::Rectangle << 100.0 << QPoint(12, 12) << true;
        QTest::newRow("circle, click") << Id::Circle << 100.0 << QPoint(0, 0) << false;
        QTest::newRow("circle, 1 mm across") << Id::Circle << 1024.0 << QPoint(1, 0) << true;
        QTest::newRow("balloon, click") << Id::Balloon << 100.0 << QPoint(0, 0) << false;
        QTest::newRow("balloon, 1 mm across") << Id::Balloon << 1024.0 << QPoint(0, 1) << true;
    }

    void belowMinimumSizeMakesNothing()
    {
        QFETCH(Id, tool);
        QFETCH(double, scale);
        QFETCH(QPoint, drag);
        QFETCH(bool, made);
        view()->setScale(scale);
        selectTool(tool);
        const QPoint from = view()->viewport()->rect().center();
        const ViewGestures mouse = gestures();
        mouse.drag(view()->mapToScene(from), view()->mapToScene(from + drag));
        QCOMPARE(stack()->count(), made ? 1 : 0);
        QCOMPARE(world()->bodyItems().size(), made ? 1 : 0);
        QVERIFY(shownPreviews().isEmpty());
    }

    void escapeDropsTheGesture_data()
    {
        QTest::addColumn<Id>("tool");
        QTest::newRow("rectangle") << Id::Rectangle;
        QTest::newRow("circle") << Id::Circle;
        QTest::newRow("balloon") << Id::Balloon;
        QTest::newRow("polygon") << Id::Polygon;
        QTest::newRow("gear") << Id::Gear;
    }

    void escapeDropsTheGesture()
    {
        QFETCH(Id, tool);
        checkEscapeDropsTheGesture(tool);
    }

    void changeOfToolDropsTheGesture_data() { escapeDropsTheGesture_data(); }

    void changeOfToolDropsTheGesture()
    {
        QFETCH(Id, tool);
        checkChangeOfToolDropsTheGesture(tool);
    }

    void gridSnapping_data()
    {
        QTest::addColumn<Id>("tool");
        QTest::addColumn<QPointF>("from");
        QTest::addColumn<QPointF>("to");
        QTest::addColumn<QPointF>("position");
        QTest::addColumn<QVariantMap>("sizes");
        QTest::newRow("rectangle")
            << Id::Rectangle << QPointF(1.13, 2.41) << QPointF(3.38, 0.77) << QPointF(2.25, 1.75)
            << QVariantMap {{"Width", 2.5}, {"Height", 1.5}};
        QTest::newRow("circle") << Id::Circle << QPointF(-1.12, 0.91) << QPointF(0.88, 1.1)
                                << QPointF(-1.0, 1.0) << QVariantMap {{"Radius", 2.0}};
    }

    void gridSnapping()
    {
        QFETCH(Id, tool);
        QFETCH(QPointF, from);
        QFETCH(QPointF, to);
        QFETCH(QPointF, position);
        QFETCH(QVariantMap, sizes);
        Settings::instance()->setGridSize(0.5);
        view()->updateGrid();
        Settings::instance()->setSnapToGrid(true);
        selectTool(tool);
        gestures().drag(from, to);
        auto* item = topItem<BodyCommand, BodyItem>();
        QVERIFY(item);
        QVERIFY(near(item->positionX(), position.x()));
        QVERIFY(near(item->positionY(), position.y()));
        for (auto size = sizes.cbegin(); size != sizes.cend(); ++size)
            QVERIFY2(
                near(item->property(qPrintable(size.key())).toDouble(), size.value().toDouble()),
                qPrintable(size.key()));
    }

    void polygonSnapsToTheGrid()
    {
        Settings::instance()->setGridSize(0.5);
        view()->updateGrid();
        Settings::instance()->setSnapToGrid(true);
        selectTool(Id::Polygon);
        gestures().click(QPointF(0.1, -0.2));
        gestures().click(QPointF(2.1, 0.15));
        gestures().click(QPointF(0.9, 1.9), Qt::RightButton);
        auto* polygon = topItem<BodyCommand, PolygonItem>();
        QVERIFY(polygon);
        for (const QPointF& vertex : polygon->worldPolygon()) {
            QVERIFY(near(vertex.x() * 2, qRound(vertex.x() * 2)));
            QVERIFY(near(vertex.y() * 2, qRound(vertex.y() * 2)));
        }
        QVERIFY(near(polygon->positionX(), 1.0));
        QVERIFY(near(polygon->positionY(), 1.0));
    }

    void objectSnapping()
    {
        // Snap points of a 2 m square at the origin lie 5 mm inside its corners.
        world()->createRectangle(0, 0, 0, 2, 2);
        Settings::instance()->setSnapToObjects(true);
        selectTool(Id::Circle);
        const QPointF rim(4, 1);
        gestures().pressAndDrag(QPointF(1.06, 1.04), rim);
        gestures().release(rim);
        auto* circle = topItem<BodyCommand, CircleItem>();
        QVERIFY(circle);
        QVERIFY(near(circle->positionX(), 0.995));
        QVERIFY(near(circle->positionY(), 0.995));
        // Nothing lies near the rim, which stays where the mouse was.
        QVERIFY(near(circle->radius(),
                     QLineF(QPointF(0.995, 0.995), gestures().onPixel(rim)).length()));
    }
};

BRIVANE_WINDOW_TEST_MAIN(TestBodyTools, true)
#include "tst_bodytools.moc"
