#include "ApplicationTestMain.h"
#include "Commands/ChainCommand.h"
#include "Commands/ImageCommand.h"
#include "Commands/RopeCommand.h"
#include "Commands/TextCommand.h"
#include "ItemsOf.h"
#include "Physics/CircleItem.h"
#include "Physics/DistanceJoint.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/PolygonItem.h"
#include "Physics/RectangleItem.h"
#include "Physics/RevoluteJoint.h"
#include "PolygonArea.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTemporaryDir>
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

// Points along the x axis from the origin, `spacing` metres apart.
QPolygonF line(int count, double spacing)
{
    QPolygonF points;
    for (int i = 0; i < count; ++i)
        points << QPointF(i * spacing, 5.0);
    return points;
}

bool allActive(const PhysicsItemList& items, bool active)
{
    return std::all_of(items.begin(), items.end(),
                       [active](PhysicsItem* item) { return item->isActive() == active; });
}

QRectF bounds(const QList<PolygonItem*>& pieces)
{
    QRectF rect;
    for (PolygonItem* piece : pieces)
        rect |= piece->worldPolygon().boundingRect();
    return rect;
}

// A picture with opaque round blobs of the given radius in pixels on a clear ground.
QString blobPicture(const QTemporaryDir& directory, const QList<QPoint>& centres, int radius)
{
    QImage picture(200, 100, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::red);
    for (const QPoint& centre : centres)
        painter.drawEllipse(centre, radius, radius);
    painter.end();
    const QString file = directory.filePath(QStringLiteral("blobs.png"));
    picture.save(file);
    return file;
}
} // namespace

// Chains, ropes, texts and pictures laid down as many items in one undo step.
class TestStampCommands : public QObject
{
    Q_OBJECT

private slots:
    void init() { Application::instance()->newFile(false); }

    // Links, hidden joints between them and pins to the background as the attach point says.
    void links_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<int>("attachPoint");
        QTest::addColumn<int>("pins");
        for (const char* kind : {"chain", "rope"}) {
            QTest::addRow("%s first", kind) << kind << 1 << 1;
            QTest::addRow("%s last", kind) << kind << 2 << 1;
            QTest::addRow("%s none", kind) << kind << 3 << 0;
            QTest::addRow("%s both", kind) << kind << 4 << 2;
        }
    }

    void links()
    {
        QFETCH(QString, kind);
        QFETCH(int, attachPoint);
        QFETCH(int, pins);
        const bool chain = kind == QLatin1String("chain");
        // A chain of four circles of radius 0.2, or a rope of two links 0.6 long.
        const QPolygonF points = chain ? line(4, 0.4) : line(3, 0.6);
        QUndoCommand* command = chain
            ? static_cast<QUndoCommand*>(new ChainCommand(points, attachPoint, Qt::blue))
            : new RopeCommand(points, attachPoint, Qt::blue);
        stack()->push(command);
        const PhysicsItemList items = static_cast<ComplexCommand*>(command)->items();
        const int links = chain ? 4 : 2;
        QCOMPARE(items.size(), links + (links - 1) + pins);
        QCOMPARE(command->text(), chain ? QStringLiteral("Chain") : QStringLiteral("Rope"));
        QVERIFY(allActive(items, true));
        if (chain) {
            for (CircleItem* circle : itemsOf<CircleItem>(items)) {
                QCOMPARE(circle->radius(), 0.2);
                QVERIFY(circle->fixedRotation() && !circle->showLine());
            }
            for (DistanceJoint* joint : itemsOf<DistanceJoint>(items))
                QVERIFY(std::abs(joint->opacity() - 0.01) < 1e-6);
        } else {
            for (RectangleItem* link : itemsOf<RectangleItem>(items)) {
                QVERIFY(std::abs(link->width() - 0.6) < 1e-9);
                QVERIFY(std::abs(link->height() - 0.3) < 1e-9);
            }
        }
        int pinned = 0;
        for (RevoluteJoint* joint : itemsOf<RevoluteJoint>(items)) {
            if (joint->bodyItem2())
                continue;
            ++pinned;
            const QPointF end = attachPoint == 2 || (attachPoint == 4 && pinned == 2)
                ? points.last()
                : points.first();
            QVERIFY(QLineF(joint->anchorA(), end).length() < 1e-5);
        }
        QCOMPARE(pinned, pins);
        // One undo takes links, joints and pins away together.
        stack()->undo();
        QVERIFY(allActive(items, false));
    }

    // The joints between links are real: a long chain hanging from its top link stays
    // together, where loose links would fall away for good. Box2D's iterative solver lets so
    // long a chain stretch under its own weight, most near the top, where links come to about
    // two and a half times their length.
    void longChainHoldsTogether()
    {
        const double spacing = 0.1;
        QPolygonF points;
        for (int i = 0; i < 300; ++i)
            points << QPointF(0.0, 40.0 - i * spacing);
        auto* command = new ChainCommand(points, ChainCommand::First, Qt::blue);
        stack()->push(command);
        const QList<CircleItem*> circles = itemsOf<CircleItem>(command->items());
        for (int step = 0; step < 600; ++step)
            world()->step();
        double worst = 0.0;
        for (int i = 0; i + 1 < circles.size(); ++i) {
            const QLineF link(circles.at(i)->positionX(), circles.at(i)->positionY(),
                              circles.at(i + 1)->positionX(), circles.at(i + 1)->positionY());
            worst = std::max(worst, std::abs(link.length() - spacing));
        }
        QVERIFY2(worst < spacing * 2, qPrintable(QString::number(worst)));
        QVERIFY(std::abs(circles.first()->positionY() - 40.0) < 0.01);
    }

    // Each character stands at the advances of those before it, upright, and "AB" makes the
    // undo text "Text (AB)".
    void textFollowsTheAdvances()
    {
        const QFont font(QStringLiteral("DejaVu Sans"), 12);
        auto* command = new TextCommand(1.0, 2.0, QStringLiteral("AB"), font, Qt::red);
        stack()->push(command);
        QCOMPARE(command->text(), QStringLiteral("Text (AB)"));
        const QList<PolygonItem*> pieces = itemsOf<PolygonItem>(command->items());
        QVERIFY(pieces.size() >= 2);
        const QList<PolygonItem*> a = pieces.mid(0, 1);
        const QList<PolygonItem*> b = pieces.mid(1);
        double glyphLeft = 1e9;
        for (const QPolygonF& outline : TextCommand::glyphPolygons('B', font, 2.5))
            glyphLeft = std::min(glyphLeft, outline.boundingRect().left());
        const double advance = QFontMetricsF(font).horizontalAdvance('A') * 0.1;
        QVERIFY(std::abs(bounds(b).left() - (1.0 + advance + glyphLeft * 0.1)) < 1e-6);
        // Capitals stand on the base line and rise above it.
        QVERIFY(std::abs(bounds(a).top() - 2.0) < 0.05);
        QVERIFY(bounds(a).bottom() > 2.5);
        for (PolygonItem* piece : pieces)
            QCOMPARE(piece->brush().color(), QColor(Qt::red));

        auto* empty = new TextCommand(0, 0, QString(), font, Qt::red);
        QVERIFY(empty->items().isEmpty());
        delete empty;
    }

    // Each opaque region is a body, all painted with the one picture; a larger threshold
    // keeps fewer points.
    void imageRegionsBecomeBodies()
    {
        QTemporaryDir directory;
        const QString file = blobPicture(directory, {QPoint(50, 50), QPoint(150, 50)}, 40);
        auto* fine = new ImageCommand(0, 3, 0, file, 0.01, 0.01);
        stack()->push(fine);
        QCOMPARE(fine->text(), QStringLiteral("Image (blobs)"));
        const QList<PolygonItem*> pieces = itemsOf<PolygonItem>(fine->items());
        QCOMPARE(pieces.size(), 2);
        QCOMPARE(pieces.at(0)->brush().texture().cacheKey(),
                 pieces.at(1)->brush().texture().cacheKey());
        QVERIFY(std::abs(bounds(pieces).top() - (3.0 - 0.9)) < 0.02);

        auto* coarse = new ImageCommand(0, 3, 0, file, 0.1, 0.01);
        const QList<PolygonItem*> coarsePieces = itemsOf<PolygonItem>(coarse->items());
        QCOMPARE(coarsePieces.size(), 2);
        QVERIFY(coarsePieces.at(0)->worldPolygon().size() < pieces.at(0)->worldPolygon().size());
        delete coarse;

        // A ring is one body with its hole left open.
        const QString ring = blobPicture(directory, {QPoint(100, 50)}, 40);
        QImage holed(ring);
        QPainter cutter(&holed);
        cutter.setCompositionMode(QPainter::CompositionMode_Clear);
        cutter.setBrush(Qt::black);
        cutter.drawEllipse(QPoint(100, 50), 20, 20);
        cutter.end();
        holed.save(ring);
        auto* ringCommand = new ImageCommand(0, 3, 0, ring, 0.001, 0.01);
        const QList<PolygonItem*> ringPieces = itemsOf<PolygonItem>(ringCommand->items());
        QCOMPARE(ringPieces.size(), 1);
        double area = 0.0;
        for (const QPolygonF& triangle : ringPieces.first()->triangles())
            area += polygonArea(triangle);
        const double expected = M_PI * (0.4 * 0.4 - 0.2 * 0.2);
        QVERIFY2(std::abs(area - expected) < 0.05 * expected, qPrintable(QString::number(area)));
        delete ringCommand;

        auto* missing = new ImageCommand(0, 0, 0, directory.filePath("none.png"), 0.1, 0.01);
        QVERIFY(missing->items().isEmpty());
        delete missing;
    }

    void decimate_data()
    {
        QTest::addColumn<QPolygonF>("input");
        QTest::addColumn<double>("distance");
        QTest::addColumn<QPolygonF>("expected");
        const QPolygonF six = line(6, 1.0);
        QTest::newRow("one point") << QPolygonF({QPointF(1, 1)}) << 1.0 << QPolygonF();
        // The point that ends a search is passed over; the last is never kept.
        QTest::newRow("nothing near") << six << 0.5 << QPolygonF({six.at(0), six.at(2), six.at(4)});
        QTest::newRow("all near") << six << 10.0 << QPolygonF({six.at(0)});
    }

    void decimate()
    {
        QFETCH(QPolygonF, input);
        QFETCH(double, distance);
        QFETCH(QPolygonF, expected);
        QCOMPARE(ImageCommand::decimate(input, distance), expected);
    }
};

BRIVANE_APPLICATION_TEST_MAIN(TestStampCommands)

#include "tst_stampcommands.moc"
