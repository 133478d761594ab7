#include "ApplicationTestMain.h"
#include "Commands/BooleanCommand.h"
#include "Commands/EraseCommand.h"
#include "Commands/ExplodeCommand.h"
#include "Commands/TriangulateCommand.h"
#include "ItemsOf.h"
#include "MessageLog.h"
#include "Physics/CircleItem.h"
#include "Physics/DistanceJoint.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/PulleyJoint.h"
#include "Physics/RectangleItem.h"
#include "Physics/RevoluteJoint.h"
#include "Physics/ScenePicture.h"
#include "PolygonArea.h"

#include <QRegularExpression>
#include <QUndoStack>
#include <cmath>

Q_DECLARE_METATYPE(QPolygonF)

namespace {
PhysicsWorld* world()
{
    return PhysicsWorld::instance();
}

QUndoStack* stack()
{
    return Application::instance()->undoStack;
}

double totalArea(const QList<BodyItem*>& pieces)
{
    double sum = 0.0;
    for (BodyItem* piece : pieces)
        sum += polygonArea(piece->worldPolygon());
    return sum;
}

QPolygonF box(double left, double bottom, double right, double top)
{
    return QPolygonF(QRectF(QPointF(left, bottom), QPointF(right, top)));
}

QVariantList values(const XPropertyList& list)
{
    QVariantList result;
    for (const XProperty& property : list.properties)
        result.append(property.value);
    return result;
}

// The mean difference of two pictures in colour steps per channel.
double pictureDifference(const QImage& a, const QImage& b)
{
    if (a.size() != b.size())
        return 255.0;
    double sum = 0.0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q))
                + std::abs(qBlue(p) - qBlue(q));
        }
    }
    return sum / (3.0 * a.width() * a.height());
}
} // namespace

// Cutting bodies apart and putting them together: the eraser, the three boolean operations
// and the three ways of exploding, each one undo step.
class TestCuttingCommands : public QObject
{
    Q_OBJECT

    RectangleItem* bar = nullptr;

private slots:
    // A 4 by 1 bar from x = -2 to 2, y = -0.5 to 0.5, moving and heavy.
    void init()
    {
        Application::instance()->newFile(false);
        bar = world()->createRectangle(0, 0, 0, 4, 1);
        bar->setDensity(3.0);
        bar->setLinearVelocity(1.5, -2.0);
        bar->setBrush(QColor(Qt::darkCyan));
    }

    void erase_data()
    {
        QTest::addColumn<QPolygonF>("eraser");
        QTest::addColumn<int>("pieces");
        QTest::addColumn<double>("remainingArea");
        QTest::newRow("across the middle") << box(-0.25, -1, 0.25, 1) << 2 << 3.5;
        QTest::newRow("across one end") << box(1.5, -1, 3, 1) << 1 << 3.5;
        QTest::newRow("hole") << box(-0.25, -0.25, 0.25, 0.25) << 1 << 3.75;
        QTest::newRow("covering") << box(-3, -2, 3, 2) << 0 << 0.0;
        QTest::newRow("missing") << box(5, -1, 6, 1) << 0 << 0.0;
    }

    // What remains replaces the bar with its values; undo brings the bar back as it was.
    void erase()
    {
        QFETCH(QPolygonF, eraser);
        QFETCH(int, pieces);
        QFETCH(double, remainingArea);
        auto* command = new EraseCommand(eraser);
        stack()->push(command);
        const QList<BodyItem*> made = itemsOf<BodyItem>(command->items());
        QCOMPARE(made.size(), pieces);
        QCOMPARE(bar->isActive(), pieces == 0);
        QVERIFY(std::abs(totalArea(made) - remainingArea) < 1e-6);
        for (BodyItem* piece : made) {
            QVERIFY(piece->isActive());
            QCOMPARE(piece->density(), 3.0);
            QCOMPARE(piece->brush(), bar->brush());
            QVERIFY(std::abs(piece->linearVelocityY() + 2.0) < 1e-5);
        }
        stack()->undo();
        QVERIFY(bar->isActive());
        QCOMPARE(bar->density(), 3.0);
        QVERIFY(std::abs(bar->linearVelocityX() - 1.5) < 1e-5);
        for (BodyItem* piece : made)
            QVERIFY(!piece->isActive());
    }

    // Joints on a cut body move to the piece that holds their anchor; a pulley has no
    // successor, and a joint whose anchor was erased stays on the old body.
    void eraseMovesJoints_data()
    {
        QTest::addColumn<QString>("joint");
        QTest::addColumn<QPointF>("anchor");
        QTest::addColumn<bool>("onPiece");
        QTest::newRow("revolute in a piece") << "revolute" << QPointF(-1.5, 0) << true;
        QTest::newRow("revolute erased") << "revolute" << QPointF(0, 0) << false;
        QTest::newRow("distance in a piece") << "distance" << QPointF(1.5, 0) << true;
        QTest::newRow("pulley") << "pulley" << QPointF(-1.5, 0) << false;
    }

    void eraseMovesJoints()
    {
        QFETCH(QString, joint);
        QFETCH(QPointF, anchor);
        QFETCH(bool, onPiece);
        RectangleItem* other = world()->createRectangle(0, 4, 0, 1, 1);
        JointItem* old = nullptr;
        if (joint == QLatin1String("revolute"))
            old = world()->createRevoluteJoint(bar, nullptr, anchor);
        else if (joint == QLatin1String("distance"))
            old = world()->createDistanceJoint(bar, other, anchor, QPointF(0, 4));
        else
            old = world()->createPulleyJoint(
                bar, other, QPolygonF({anchor, QPointF(-1.5, 3), QPointF(0, 6), QPointF(0, 4)}));
        auto* command = new EraseCommand(box(-0.25, -1, 0.25, 1));
        stack()->push(command);
        QVERIFY(!old->isActive());
        QList<JointItem*> moved;
        for (PhysicsItem* item : command->items()) {
            if (JointItem* successor = item->toJointItem())
                moved.append(successor);
        }
        QCOMPARE(moved.size(), joint == QLatin1String("pulley") ? 0 : 1);
        if (!moved.isEmpty()) {
            QCOMPARE(moved.first()->bodyItem1() != bar, onPiece);
            QVERIFY(QLineF(moved.first()->anchorA(), anchor).length() < 1e-4);
            if (joint == QLatin1String("distance"))
                QCOMPARE(moved.first()->bodyItem2(), static_cast<BodyItem*>(other));
        }
        stack()->undo();
        QVERIFY(old->isActive());
        for (JointItem* successor : moved)
            QVERIFY(!successor->isActive());
    }

    // Two 2 by 2 squares overlapping by half: the lower one from x = -1 to 1, the top one
    // from 0 to 2.
    void booleans_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("expectedArea");
        QTest::newRow("union") << int(BooleanCommand::Union) << "Union" << 6.0;
        QTest::newRow("difference") << int(BooleanCommand::Difference) << "Difference" << 2.0;
        QTest::newRow("intersection") << int(BooleanCommand::Intersection) << "Intersection" << 2.0;
    }

    void booleans()
    {
        QFETCH(int, type);
        QFETCH(QString, text);
        QFETCH(double, expectedArea);
        RectangleItem* lower = world()->createRectangle(0, 3, 0, 2, 2);
        RectangleItem* top = world()->createRectangle(1, 3, 0, 2, 2);
        lower->setDensity(2.5);
        auto* command = new BooleanCommand(lower, top, type);
        stack()->push(command);
        QCOMPARE(command->text(), text);
        const QList<BodyItem*> made = itemsOf<BodyItem>(command->items());
        QCOMPARE(made.size(), 1);
        QVERIFY(std::abs(totalArea(made) - expectedArea) < 1e-6);
        QCOMPARE(made.first()->density(), 2.5);
        QCOMPARE(made.first()->brush(), lower->brush());
        QVERIFY(!lower->isActive() && !top->isActive());
        stack()->undo();
        QVERIFY(lower->isActive() && top->isActive());
        QVERIFY(!made.first()->isActive());
    }

    // The pieces of each method: how many, and for the triangles that they cover the body.
    void explode_data()
    {
        QTest::addColumn<int>("method");
        QTest::addColumn<double>("size");
        QTest::addColumn<int>("pieces");
        // -1: as many as the body has triangles.
        QTest::newRow("triangles") << int(ExplodeCommand::Triangulate) << 0.0 << -1;
        // Squares with a corner strictly inside the 4 by 1 bar, on a grid from its corner.
        QTest::newRow("squares") << int(ExplodeCommand::Squarify) << 0.3 << 14 * 4;
        QTest::newRow("circles") << int(ExplodeCommand::Circlify) << 0.3 << 14 * 4;
        // Larger than the body: the square at the bottom-left corner only.
        QTest::newRow("size beyond body") << int(ExplodeCommand::Squarify) << 5.0 << 1;
    }

    void explode()
    {
        QFETCH(int, method);
        QFETCH(double, size);
        QFETCH(int, pieces);
        bar->setAngularVelocity(90.0);
        ExplodeCommand* command = ExplodeCommand::create(bar, method, size);
        QVERIFY(command);
        stack()->push(command);
        QVERIFY(!bar->isActive());
        const QList<BodyItem*> made = itemsOf<BodyItem>(command->items());
        QCOMPARE(made.size(), pieces < 0 ? bar->triangles().size() : pieces);
        if (method == ExplodeCommand::Triangulate)
            QVERIFY(std::abs(totalArea(made) - 4.0) < 0.04);
        if (size > 4.0)
            QCOMPARE(made.first()->worldPolygon().boundingRect().topLeft(), QPointF(-2, -0.5));
        QList<XPropertyList> first;
        for (BodyItem* piece : made) {
            // The body's motion without the part its turning gives each piece.
            QVERIFY(std::abs(piece->linearVelocityX() - 1.5) < 1e-5);
            QVERIFY(std::abs(piece->linearVelocityY() + 2.0) < 1e-5);
            QVERIFY(std::abs(piece->angularVelocity() - bar->angularVelocity()) < 1e-3);
            QCOMPARE(piece->density(), 3.0);
            if (auto* circle = qobject_cast<CircleItem*>(piece)) {
                QVERIFY(!circle->showLine());
                QCOMPARE(circle->radius(), size / 2);
            }
            first.append(XPropertyList::read(piece));
        }
        for (int i = 0; i < 5; ++i)
            world()->step();
        stack()->undo();
        QVERIFY(bar->isActive());
        stack()->redo();
        for (int i = 0; i < made.size(); ++i)
            QCOMPARE(values(XPropertyList::read(made.at(i))), values(first.at(i)));
    }

    void staticBodyGivesStaticPieces()
    {
        bar->setBodyType(BodyItem::StaticBody);
        auto* command = new TriangulateCommand(bar);
        stack()->push(command);
        for (BodyItem* piece : itemsOf<BodyItem>(command->items()))
            QCOMPARE(piece->bodyType(), BodyItem::StaticBody);
    }

    void runawayExplodeIsRefused()
    {
        MessageLog log;
        QVERIFY(!ExplodeCommand::create(bar, ExplodeCommand::Circlify, 0.01));
        // The warning names the count: some 400 by 100 circles.
        const QRegularExpressionMatch count
            = QRegularExpression(QStringLiteral("(\\d+) pieces")).match(log.lines().join(' '));
        QVERIFY(count.hasMatch());
        QVERIFY(count.captured(1).toInt() >= 40000);
        QVERIFY(bar->isActive());
        QCOMPARE(world()->bodyItems().size(), 1);
    }

    // A textured body's pieces show what the scene showed under them, things on top
    // included, as a picture rendered for each piece alone would.
    void texturedPiecesShowTheScene()
    {
        QImage texture(50, 50, QImage::Format_RGB32);
        texture.fill(Qt::yellow);
        QBrush textured {QPixmap::fromImage(texture)};
        textured.setTransform(QTransform(0.02, 0, 0, -0.02, 0, 0));
        bar->setBrush(textured);
        RectangleItem* onTop = world()->createRectangle(-1.5, 0, 0, 0.5, 0.5);
        onTop->setBrush(QColor(Qt::red));
        onTop->setZValue(bar->zValue() + 1);
        ExplodeCommand* command = ExplodeCommand::create(bar, ExplodeCommand::Squarify, 1.0);
        const QList<BodyItem*> made = itemsOf<BodyItem>(command->items());
        QVERIFY(!made.isEmpty());
        bool redSeen = false;
        for (BodyItem* piece : made) {
            const QImage picture = piece->brush().textureImage();
            QVERIFY(!picture.isNull());
            const QRectF rect = piece->worldPolygon().boundingRect();
            const QImage alone = ScenePicture(bar, rect).brush(rect).textureImage();
            QVERIFY2(pictureDifference(picture, alone) < 4.0,
                     qPrintable(QString::number(pictureDifference(picture, alone))));
            redSeen = redSeen || picture.pixelColor(25, 25) == QColor(Qt::red);
        }
        QVERIFY(redSeen);
        delete command;
    }
};

BRIVANE_APPLICATION_TEST_MAIN(TestCuttingCommands)

#include "tst_cuttingcommands.moc"
