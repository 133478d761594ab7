#include "ApplicationTestMain.h"
#include "ItemsOf.h"
#include "NemuGeometry/Geometry.h"
#include "Physics/CircleItem.h"
#include "Physics/DistanceJoint.h"
#include "Physics/JointItem.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/PrismaticJoint.h"
#include "Physics/PulleyJoint.h"
#include "Physics/RectangleItem.h"
#include "Physics/RevoluteJoint.h"
#include "Physics/SpringForce.h"

#include <QGraphicsItem>
#include <QScriptEngine>
#include <QtMath>

// Copies of bodies and of selections, made by scripts: where the copies land, which joints and
// springs come along, and what of the sources' state they carry.
class TestCloning : public QObject
{
    Q_OBJECT

    PhysicsWorld* world() { return PhysicsWorld::instance(); }
    QScriptValue run(const QString& script)
    {
        return Application::instance()->scriptEngine->evaluate(script);
    }
    static void select(const PhysicsItemList& items)
    {
        PhysicsWorld::instance()->deselectAll();
        items.setSelected(true);
    }
    static QPointF point(const QString& text) { return Nemu::Geometry::pointFromString(text); }

private slots:
    void init()
    {
        Application::instance()->newFile(true);
        world()->removeAllBodies();
    }

    void copyLandsRightOfTheSelection_data()
    {
        QTest::addColumn<double>("degrees");
        QTest::addColumn<double>("dx");
        QTest::newRow("upright") << 0.0 << 2.5;
        // The rotated outline is wider than its Width: (2 + 1) cos 45° + 0.5.
        QTest::newRow("rotated") << 45.0 << 3.0 * M_SQRT1_2 + 0.5;
    }
    void copyLandsRightOfTheSelection()
    {
        QFETCH(double, degrees);
        QFETCH(double, dx);
        RectangleItem* box = world()->createRectangle(1, 2, qDegreesToRadians(degrees), 2, 1);
        box->setName(QStringLiteral("crate"));
        box->setLinearVelocity(1.5, -2.0);
        box->setAngularVelocity(30.0);
        select(PhysicsItemList(QList<PhysicsItem*> {box}));
        const PhysicsItemList copies
            = qscriptvalue_cast<PhysicsItemList>(run(QStringLiteral("world.cloneSelectedItems()")));
        QCOMPARE(copies.size(), 1);
        auto* copy = qobject_cast<RectangleItem*>(copies.first());
        QVERIFY(copy);
        QVERIFY(qAbs(copy->positionX() - (1.0 + dx)) < 1e-4);
        QVERIFY(qAbs(copy->positionY() - 2.0) < 1e-5);
        QVERIFY(qAbs(copy->angle() - degrees) < 1e-3);
        QCOMPARE(copy->property("Width").toDouble(), 2.0);
        QVERIFY(copy->name().startsWith(QLatin1String("item")));
        QCOMPARE(copy->linearVelocityX(), 1.5);
        QCOMPARE(copy->linearVelocityY(), -2.0);
        QVERIFY(qAbs(copy->angularVelocity() - 30.0) < 1e-3);
        QVERIFY(copy->graphicsItem()->isSelected() && box->graphicsItem()->isSelected());
    }

    // Each kind of link between two bodies, selected with both, comes along with its anchors
    // moved by the offset; left behind when one of its bodies or the link itself is not
    // selected. A joint to the background comes along with its one body.
    void linksComeAlongOnlyWithTheirBodies_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<bool>("selectSecond");
        QTest::addColumn<bool>("selectLink");
        QTest::addColumn<int>("copiedLinks");
        for (const char* kind : {"distance", "revolute", "prismatic", "pulley", "spring"})
            QTest::newRow(kind) << QString(kind) << true << true << 1;
        QTest::newRow("revolute to background") << "background" << false << true << 1;
        QTest::newRow("link not selected") << "distance" << true << false << 0;
        QTest::newRow("second body not selected") << "spring" << false << true << 0;
    }
    void linksComeAlongOnlyWithTheirBodies()
    {
        QFETCH(QString, kind);
        QFETCH(bool, selectSecond);
        QFETCH(bool, selectLink);
        QFETCH(int, copiedLinks);
        CircleItem* first = world()->createCircle(-1, 3, 0, 0.5);
        CircleItem* second = world()->createCircle(1, 3, 0, 0.5);
        first->setName(QStringLiteral("wheel"));
        const QPointF a1(-1, 3), a2(1, 3);
        PhysicsItem* link = nullptr;
        if (kind == QLatin1String("distance"))
            link = world()->createDistanceJoint(first, second, a1, a2);
        else if (kind == QLatin1String("revolute"))
            link = world()->createRevoluteJoint(first, second, QPointF(0, 3));
        else if (kind == QLatin1String("background"))
            link = world()->createRevoluteJoint(first, nullptr, a1);
        else if (kind == QLatin1String("prismatic"))
            link = world()->createPrismaticJoint(first, second, QLineF(QPointF(-1, 2), a1),
                                                 QLineF(QPointF(1, 2), a2));
        else if (kind == QLatin1String("pulley"))
            link = world()->createPulleyJoint(first, second,
                                              QPolygonF({a1, QPointF(-1, 6), QPointF(1, 6), a2}));
        else
            link = world()->createSpringForce(first, second, a1, a2, 80.0, 2.0);
        QVERIFY(link);
        if (auto* spring = qobject_cast<SpringForce*>(link)) {
            spring->setDesiredDistance(1.25);
            spring->setColor(Qt::darkCyan);
        }
        PhysicsItemList selection(QList<PhysicsItem*> {first});
        if (selectSecond)
            selection << second;
        if (selectLink)
            selection << link;
        select(selection);
        const double dx = selection.boundingRect().width() + 0.5;

        const PhysicsItemList copies = world()->cloneSelectedItems();
        QCOMPARE(copies.size(), itemsOf<BodyItem>(selection).size() + copiedLinks);
        if (!copiedLinks)
            return;
        PhysicsItem* copy = copies.last();
        QCOMPARE(copy->metaObject(), link->metaObject());
        // The bodies come in the scene's order: each copy is told by where it stands.
        const auto copyOf = [&](BodyItem* source) {
            for (BodyItem* body : itemsOf<BodyItem>(copies)) {
                if (QLineF(body->position(), source->position() + QPointF(dx, 0)).length() < 1e-4)
                    return body->name();
            }
            return QString();
        };
        QCOMPARE(copy->property("BodyItem1Name").toString(), copyOf(first));
        QCOMPARE(copy->property("BodyItem2Name").toString(),
                 selectSecond ? copyOf(second) : link->property("BodyItem2Name").toString());
        for (const char* anchor : {"Anchor1", "Anchor2"}) {
            const QPointF moved = point(copy->property(anchor).toString());
            const QPointF source = point(link->property(anchor).toString());
            QVERIFY2(QLineF(moved, source + QPointF(dx, 0)).length() < 1e-4, anchor);
        }
        if (qobject_cast<SpringForce*>(copy)) {
            QCOMPARE(copy->property("k").toDouble(), 80.0);
            QCOMPARE(copy->property("DesiredDistance").toDouble(), 1.25);
            QCOMPARE(copy->property("Color").value<QColor>(), QColor(Qt::darkCyan));
        }
    }

    void cloneIsAPlainCopyOfOneBody()
    {
        RectangleItem* box = world()->createRectangle(0, 5, 0, 1, 1);
        box->setOnStart(QStringLiteral("started.push(this.Name);"));
        CircleItem* other = world()->createCircle(3, 5, 0, 0.5);
        world()->createDistanceJoint(box, other, QPointF(0, 5), QPointF(3, 5));
        run(QStringLiteral("started = [];"));
        QScriptValue copy = run(QStringLiteral("world.clone(%1)").arg(box->name()));
        QVERIFY(copy.isQObject());
        auto* item = qobject_cast<RectangleItem*>(copy.toQObject());
        QVERIFY(item && item != box);
        QCOMPARE(item->position(), box->position());
        QCOMPARE(world()->jointItems().size(), 1);

        world()->start();
        world()->stop();
        QCOMPARE(run(QStringLiteral("started.join(' ')")).toString(),
                 box->name() + QLatin1Char(' ') + item->name());
        QVERIFY(run(QStringLiteral("world.clone(null)")).isNull());
        QVERIFY(world()->cloneSelectedItems().isEmpty());
    }
};

BRIVANE_APPLICATION_TEST_MAIN(TestCloning)
#include "tst_cloning.moc"
