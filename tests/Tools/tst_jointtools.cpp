#include "Commands/JointCommand.h"
#include "Commands/SpringForceCommand.h"
#include "GestureFixture.h"
#include "Physics/JointItem.h"
#include "Physics/RectangleItem.h"
#include "Physics/RevoluteJoint.h"
#include "Tools/RevoluteJointAction.h"
#include "View/RevoluteJointGraphicsItem.h"
#include "View/SpringGraphicsItem.h"
#include "WindowTestMain.h"

#include <QGraphicsLineItem>
#include <QGraphicsPathItem>
#include <QPointer>
#include <QScriptEngine>

using Id = MainWindow::ActionId;
Q_DECLARE_METATYPE(MainWindow::ActionId)

// The tools that join bodies, driven through the real view with the mouse: which bodies each
// joins and where, what each refuses, Escape and a change of tool in the middle of a gesture,
// snapping of the ends, and a body that a script deletes in the middle of a drag.
class TestJointTools : public QObject, private GestureFixture
{
    Q_OBJECT

    // The bodies of each test, by name, and the points where the tests click. "space" and
    // "space 2" lie off every body.
    QHash<QString, BodyItem*> bodies;
    const QHash<QString, QPointF> places {
        {"left", QPointF(-3.3, 1.2)},         {"left again", QPointF(-2.5, 0.6)},
        {"right", QPointF(3.2, 0.8)},         {"wall", QPointF(0.5, -3.0)},
        {"space", QPointF(-1.5, 4.0)},        {"space 2", QPointF(1.5, 4.5)},
        {"stack bottom", QPointF(-0.5, 0.5)}, {"stack middle", QPointF(0.8, 1.8)},
        {"stack top", QPointF(0.3, 1.3)}};

    QPointF place(const QString& name) const { return places.value(name); }
    BodyItem* body(const QString& name) const { return bodies.value(name); }
    QPointF onPixel(const QString& name) const { return gestures().onPixel(place(name)); }

    BodyItem* addBody(const QString& name, const QRectF& rect)
    {
        RectangleItem* item = world()->createRectangle(rect.center().x(), rect.center().y(), 0,
                                                       rect.width(), rect.height());
        bodies.insert(name, item);
        return item;
    }

    // The item that the top command of the stack made, joint or spring.
    PhysicsItem* madeItem() const
    {
        if (PhysicsItem* joint = topItem<JointCommand, PhysicsItem>())
            return joint;
        return topItem<SpringForceCommand, PhysicsItem>();
    }

    // Starts the gesture of a tool without finishing it, from the left body towards the right.
    void beginGesture(Id id) override
    {
        const ViewGestures mouse = gestures();
        if (id == Id::PulleyJoint) {
            mouse.click(place("left"));
            mouse.click(place("space"));
            mouse.move(place("space 2"));
        } else if (id == Id::RevoluteJoint) {
            mouse.move(place("left"));
        } else {
            mouse.pressAndDrag(place("left"), place("right"));
        }
    }
    void endGesture(Id id) override
    {
        const ViewGestures mouse = gestures();
        if (id == Id::PulleyJoint) {
            mouse.click(place("space 2"));
            mouse.click(place("right"));
        } else if (id == Id::RevoluteJoint) {
            mouse.click(place("left"));
        } else {
            mouse.release(place("right"));
        }
    }

    struct
    {
        bool snapToGrid;
        bool snapToObjects;
        double gridSize;
        double revoluteJointRadius;
        QString springForceColor;
        double springForceK;
        double springForceDamping;
    } saved;

private slots:
    void initTestCase()
    {
        QVERIFY(waitForFirstScene());
        const Settings* settings = Settings::instance();
        saved = {settings->snapToGrid,          settings->snapToObjects,    settings->gridSize,
                 settings->revoluteJointRadius, settings->springForceColor, settings->springForceK,
                 settings->springForceDamping};
    }

    void init()
    {
        newEmptyScene();
        snapNowhere();
        bodies.clear();
        addBody("left", QRectF(-4, 0, 2, 2));
        addBody("right", QRectF(2, 0, 2, 2));
        addBody("wall", QRectF(-2, -3.5, 4, 1))->setBodyType(BodyItem::StaticBody);
        // Three bodies on top of each other, each later one higher.
        addBody("stack bottom", QRectF(-1, 0, 2, 2));
        addBody("stack middle", QRectF(0, 1, 1, 1));
        addBody("stack top", QRectF(0.05, 1.05, 0.5, 0.5));
        for (const QPointF& point : places)
            QVERIFY(view()->viewport()->rect().contains(gestures().pixel(point)));
    }

    void cleanup()
    {
        Settings* settings = Settings::instance();
        settings->setSnapToGrid(saved.snapToGrid);
        settings->setSnapToObjects(saved.snapToObjects);
        settings->setGridSize(saved.gridSize);
        view()->updateGrid();
        settings->setRevoluteJointRadius(saved.revoluteJointRadius);
        settings->setSpringForceColor(saved.springForceColor);
        settings->setSpringForceK(saved.springForceK);
        settings->setSpringForceDamping(saved.springForceDamping);
        newEmptyScene();
    }

    void dragJoinsTwoBodies_data()
    {
        QTest::addColumn<Id>("tool");
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<bool>("made");
        QTest::addColumn<QString>("second"); // empty: the background
        const struct
        {
            Id id;
            const char* name;
        } tools[] = {{Id::DistanceJoint, "distance"},
                     {Id::PrismaticJoint, "prismatic"},
                     {Id::SpringForce, "spring"}};
        for (const auto& tool : tools) {
            const bool joint = tool.id != Id::SpringForce;
            QTest::addRow("%s, body to body", tool.name) << tool.id << "left"
                                                         << "right" << true << "right";
            QTest::addRow("%s, body to static body", tool.name) << tool.id << "left"
                                                                << "wall" << true << "wall";
            // A joint's free end holds on to the background; a spring needs two bodies.
            QTest::addRow("%s, body to empty space", tool.name) << tool.id << "left"
                                                                << "space" << joint << "";
            QTest::addRow("%s, empty space to body", tool.name) << tool.id << "space"
                                                                << "right" << false << "";
            QTest::addRow("%s, both ends on one body", tool.name) << tool.id << "left"
                                                                  << "left again" << false << "";
        }
    }

    void dragJoinsTwoBodies()
    {
        QFETCH(Id, tool);
        QFETCH(QString, from);
        QFETCH(QString, to);
        QFETCH(bool, made);
        QFETCH(QString, second);
        Settings::instance()->setSpringForceK(123.0);
        Settings::instance()->setSpringForceDamping(4.5);
        Settings::instance()->setSpringForceColor(QStringLiteral("#123456"));
        const int itemCount = world()->items().size();
        selectTool(tool);
        gestures().drag(place(from), place(to));
        QVERIFY(shownPreviews().isEmpty());
        QCOMPARE(stack()->count(), made ? 1 : 0);
        QCOMPARE(world()->items().size(), itemCount + (made ? 1 : 0));
        if (!made)
            return;

        PhysicsItem* item = madeItem();
        QVERIFY(item);
        QVERIFY(item->isActive());
        QCOMPARE(item->property("BodyItem1Name").toString(), body(from)->name());
        QCOMPARE(item->property("BodyItem2Name").toString(),
                 second.isEmpty() ? QString() : body(second)->name());
        const QLineF drag(onPixel(from), onPixel(to));
        switch (tool) {
        case Id::DistanceJoint:
            QCOMPARE(item->type(), int(PhysicsItem::DistanceJointType));
            QVERIFY(nearPoint(item->property("Anchor1").toString(), drag.p1()));
            QVERIFY(nearPoint(item->property("Anchor2").toString(), drag.p2()));
            QVERIFY(near(item->property("Length").toDouble(), drag.length(), 1e-4));
            break;
        case Id::PrismaticJoint:
            // Both bodies are anchored in the middle of the drag, the track along it.
            QCOMPARE(item->type(), int(PhysicsItem::PrismaticJointType));
            QVERIFY(nearPoint(item->property("Anchor1").toString(), drag.center()));
            QVERIFY(nearPoint(item->property("Anchor2").toString(), drag.center()));
            break;
        default:
            QCOMPARE(item->type(), int(PhysicsItem::SpringForceType));
            QCOMPARE(stack()->text(0), QStringLiteral("Spring Force"));
            QVERIFY(nearPoint(item->property("Anchor1").toString(), drag.p1()));
            QVERIFY(nearPoint(item->property("Anchor2").toString(), drag.p2()));
            QCOMPARE(item->property("k").toDouble(), 123.0);
            QCOMPARE(item->property("Damping").toDouble(), 4.5);
            QCOMPARE(item->property("Color").value<QColor>(), QColor(0x12, 0x34, 0x56));
            QVERIFY(near(item->property("DesiredDistance").toDouble(), drag.length(), 1e-9));
        }
    }

    void jointPreviewFollowsTheDrag_data()
    {
        QTest::addColumn<Id>("tool");
        QTest::addColumn<QColor>("colour");
        QTest::newRow("distance") << Id::DistanceJoint << QColor(Qt::red);
        QTest::newRow("prismatic") << Id::PrismaticJoint << QColor(Qt::blue);
    }

    void jointPreviewFollowsTheDrag()
    {
        QFETCH(Id, tool);
        QFETCH(QColor, colour);
        selectTool(tool);
        gestures().pressAndDrag(place("left"), place("space"));
        auto* preview = shownPreview<QGraphicsLineItem>();
        QVERIFY(preview);
        QCOMPARE(preview->line(), QLineF(onPixel("left"), onPixel("space")));
        QCOMPARE(preview->pen().color(), colour);
        QCOMPARE(preview->pen().widthF(), 0.1);
        QCOMPARE(preview->opacity(), 0.75);
    }

    void pressOffAnyBodyShowsNothing_data()
    {
        QTest::addColumn<Id>("tool");
        QTest::newRow("distance") << Id::DistanceJoint;
        QTest::newRow("prismatic") << Id::PrismaticJoint;
        QTest::newRow("spring") << Id::SpringForce;
    }

    void pressOffAnyBodyShowsNothing()
    {
        QFETCH(Id, tool);
        selectTool(tool);
        gestures().pressAndDrag(place("space"), place("right"));
        QVERIFY(shownPreviews().isEmpty());
        gestures().release(place("right"));
        QCOMPARE(stack()->count(), 0);
    }

    void springPreviewIsRelaxedInTheSettingsColour()
    {
        Settings::instance()->setSpringForceColor(QStringLiteral("#00ff00"));
        selectTool(Id::SpringForce);
        gestures().pressAndDrag(place("left"), place("right"));
        auto* preview = shownPreview<SpringGraphicsItem>();
        QVERIFY(preview);
        const QLineF drag(onPixel("left"), onPixel("right"));
        QCOMPARE(preview->line(), drag);
        QCOMPARE(preview->restLength(), drag.length());
        QCOMPARE(preview->pen().color(), QColor(Qt::green));
        QCOMPARE(preview->opacity(), 1.0);
    }

    void revoluteJointJoinsTheTwoTopBodies_data()
    {
        QTest::addColumn<QString>("at");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second"); // empty: the background
        QTest::newRow("one body is pinned to the background") << "left"
                                                              << "left"
                                                              << "";
        QTest::newRow("two bodies") << "stack middle"
                                    << "stack middle"
                                    << "stack bottom";
        QTest::newRow("three bodies") << "stack top"
                                      << "stack top"
                                      << "stack middle";
    }

    void revoluteJointJoinsTheTwoTopBodies()
    {
        QFETCH(QString, at);
        QFETCH(QString, first);
        QFETCH(QString, second);
        // Read at the moment of use.
        Settings::instance()->setRevoluteJointRadius(0.4);
        selectTool(Id::RevoluteJoint);
        gestures().move(place(at));
        auto* preview = shownPreview<RevoluteJointGraphicsItem>();
        QVERIFY(preview);
        QCOMPARE(preview->pos(), onPixel(at));
        gestures().click(place(at));

        QCOMPARE(stack()->count(), 1);
        auto* joint = topItem<JointCommand, RevoluteJoint>();
        QVERIFY(joint);
        QCOMPARE(joint->bodyItem1(), body(first));
        QCOMPARE(joint->bodyItem2(), body(second));
        QVERIFY(nearPoint(joint->anchor1(), onPixel(at)));
        QCOMPARE(joint->radius(), 0.4);
        QVERIFY(shownPreviews().isEmpty());
        // The next move shows the joint to be made again.
        gestures().move(place("space"));
        QVERIFY(shownPreview<RevoluteJointGraphicsItem>());
    }

    void revoluteJointOffAnyBodyKeepsThePreview()
    {
        selectTool(Id::RevoluteJoint);
        gestures().move(place("space"));
        gestures().click(place("space"));
        QCOMPARE(stack()->count(), 0);
        auto* preview = shownPreview<RevoluteJointGraphicsItem>();
        QVERIFY(preview);
        QCOMPARE(preview->pos(), onPixel("space"));
    }

    void revoluteJointPreviewTakesTheStripsRadius()
    {
        selectTool(Id::RevoluteJoint);
        auto* revolute = qobject_cast<RevoluteJointAction*>(tool(Id::RevoluteJoint));
        QVERIFY(revolute);
        gestures().move(place("space"));
        auto* preview = shownPreview<RevoluteJointGraphicsItem>();
        QVERIFY(preview);
        // As the strip does: it writes the setting and tells the tool.
        Settings::instance()->setRevoluteJointRadius(0.7);
        revolute->onRadiusChanged(0.7);
        QCOMPARE(preview->radius(), 0.7);
        revolute->onRadiusChanged(0.9);
        QCOMPARE(preview->radius(), 0.9);
        // The end of a gesture goes back to the settings.
        QTest::keyClick(view(), Qt::Key_Escape);
        QCOMPARE(preview->radius(), 0.7);
        gestures().move(place("left"));
        gestures().click(place("left"));
        auto* joint = topItem<JointCommand, RevoluteJoint>();
        QVERIFY(joint);
        QCOMPARE(joint->radius(), 0.7);
    }

    void pulleyJoinsTwoMovableBodies_data()
    {
        QTest::addColumn<QStringList>("clicks");
        QTest::addColumn<bool>("made");
        QTest::newRow("two movable bodies")
            << QStringList {"left", "space", "space 2", "right"} << true;
        QTest::newRow("static body first")
            << QStringList {"wall", "space", "space 2", "right"} << false;
        QTest::newRow("static body last")
            << QStringList {"left", "space", "space 2", "wall"} << false;
        QTest::newRow("one body at both ends")
            << QStringList {"left", "space", "space 2", "left again"} << false;
        QTest::newRow("no body at the end")
            << QStringList {"left", "space", "space 2", "space"} << false;
    }

    void pulleyJoinsTwoMovableBodies()
    {
        QFETCH(QStringList, clicks);
        QFETCH(bool, made);
        selectTool(Id::PulleyJoint);
        for (int i = 0; i < clicks.size(); ++i) {
            gestures().click(place(clicks.at(i)));
            if (i + 1 < clicks.size()) {
                gestures().move(place(clicks.at(i + 1)));
                auto* preview = shownPreview<QGraphicsPathItem>();
                QVERIFY(preview);
                QCOMPARE(preview->path().elementCount(), i + 2);
            }
        }
        QVERIFY(shownPreviews().isEmpty());
        QCOMPARE(stack()->count(), made ? 1 : 0);

        // The four clicks are used up either way: four more make a pulley of their own.
        const QStringList valid {"right", "space 2", "space", "left"};
        if (!made) {
            for (const QString& click : valid)
                gestures().click(place(click));
        }
        QCOMPARE(stack()->count(), 1);
        auto* pulley = topItem<JointCommand, JointItem>();
        QVERIFY(pulley);
        QCOMPARE(pulley->type(), int(PhysicsItem::PulleyJointType));
        const QStringList& used = made ? clicks : valid;
        QCOMPARE(pulley->bodyItem1(), body(used.first()));
        QCOMPARE(pulley->bodyItem2(), body(used.last()));
        QVERIFY(near(pulley->property("GroundAnchorA_X").toDouble(), onPixel(used.at(1)).x()));
        QVERIFY(near(pulley->property("GroundAnchorA_Y").toDouble(), onPixel(used.at(1)).y()));
        QVERIFY(near(pulley->property("GroundAnchorB_X").toDouble(), onPixel(used.at(2)).x()));
        QVERIFY(near(pulley->property("GroundAnchorB_Y").toDouble(), onPixel(used.at(2)).y()));
    }

    void escapeDropsTheGesture_data()
    {
        QTest::addColumn<Id>("tool");
        QTest::newRow("distance") << Id::DistanceJoint;
        QTest::newRow("revolute") << Id::RevoluteJoint;
        QTest::newRow("prismatic") << Id::PrismaticJoint;
        QTest::newRow("pulley") << Id::PulleyJoint;
        QTest::newRow("spring") << Id::SpringForce;
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

    void snappingMovesTheEnds_data()
    {
        QTest::addColumn<bool>("grid");
        QTest::addColumn<QPointF>("from");
        QTest::addColumn<QPointF>("to");
        QTest::addColumn<QPointF>("anchor1");
        QTest::addColumn<QPointF>("anchor2");
        // Object snap points of the two squares: their centres.
        QTest::newRow("objects") << false << QPointF(-2.95, 1.04) << QPointF(3.06, 0.93)
                                 << QPointF(-3, 1) << QPointF(3, 1);
        QTest::newRow("grid") << true << QPointF(-3.3, 0.8) << QPointF(2.6, 1.4)
                              << QPointF(-3.5, 1.0) << QPointF(2.5, 1.5);
    }

    void snappingMovesTheEnds()
    {
        QFETCH(bool, grid);
        QFETCH(QPointF, from);
        QFETCH(QPointF, to);
        QFETCH(QPointF, anchor1);
        QFETCH(QPointF, anchor2);
        Settings::instance()->setGridSize(0.5);
        view()->updateGrid();
        Settings::instance()->setSnapToGrid(grid);
        Settings::instance()->setSnapToObjects(!grid);
        selectTool(Id::DistanceJoint);
        gestures().drag(from, to);
        auto* joint = topItem<JointCommand, JointItem>();
        QVERIFY(joint);
        QVERIFY2(nearPoint(joint->anchor1(), anchor1), qPrintable(joint->anchor1()));
        QVERIFY2(nearPoint(joint->anchor2(), anchor2), qPrintable(joint->anchor2()));
    }

    void bodyDeletedByAScriptMidDragIsNotUsed_data() { pressOffAnyBodyShowsNothing_data(); }

    void bodyDeletedByAScriptMidDragIsNotUsed()
    {
        QFETCH(Id, tool);
        selectTool(tool);
        const ViewGestures mouse = gestures();
        mouse.pressAndDrag(place("left"), place("space"));
        const QPointer<BodyItem> left = body("left");
        Application::instance()->scriptEngine->evaluate(
            QStringLiteral("world.removeBody(%1);").arg(left->name()));
        QVERIFY(!left);
        mouse.move(place("right"), Qt::LeftButton);
        mouse.release(place("right"));
        QCOMPARE(stack()->count(), 0);
        QVERIFY(world()->jointItems().isEmpty());
        QVERIFY(shownPreviews().isEmpty());

        // The tool goes on as before.
        mouse.drag(place("stack bottom"), place("right"));
        QCOMPARE(stack()->count(), 1);
    }

    void bodyUndoneMidDragIsNotUsed()
    {
        selectTool(Id::Rectangle);
        gestures().drag(QPointF(-1.5, 3.5), QPointF(-0.5, 4.5));
        QCOMPARE(stack()->count(), 1);
        selectTool(Id::DistanceJoint);
        gestures().pressAndDrag(QPointF(-1.0, 4.0), place("right"));
        stack()->undo();
        gestures().release(place("right"));
        // Nothing pushed, so the undone rectangle can still be redone.
        QCOMPARE(stack()->count(), 1);
        QVERIFY(stack()->canRedo());
        QVERIFY(world()->jointItems().isEmpty());
    }
};

BRIVANE_WINDOW_TEST_MAIN(TestJointTools, true)
#include "tst_jointtools.moc"
