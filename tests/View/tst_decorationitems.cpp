#include "View/CircleGraphicsItem.h"
#include "View/RevoluteJointGraphicsItem.h"
#include "View/SpringGraphicsItem.h"
#include "View/VectorGraphicsItem.h"

#include <QImage>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QTest>
#include <algorithm>
#include <cmath>

// The drawn decorations: the arrow's outline, the spring's zigzag and the revolute joint's
// parts, their bounds, and that what they paint stays within those bounds; and the disc's
// polygon against the ellipse it stands for.
class TestDecorationItems : public QObject
{
    Q_OBJECT

    // Paints an item into an image that shows the given scene rectangle, 100 pixels a metre,
    // and returns the area covered, in scene coordinates, by pixels that are not white.
    static QRectF paintedArea(QGraphicsItem* item, const QRectF& view, bool selected = false)
    {
        const double scale = 100.0;
        QImage image((view.size() * scale).toSize(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.scale(scale, scale);
        painter.translate(-view.topLeft());
        QStyleOptionGraphicsItem option;
        if (selected)
            option.state |= QStyle::State_Selected;
        item->paint(&painter, &option, nullptr);
        painter.end();
        QRect covered;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixel(x, y) != qRgb(255, 255, 255))
                    covered |= QRect(x, y, 1, 1);
            }
        }
        if (covered.isNull())
            return QRectF();
        return QRectF(view.topLeft() + QPointF(covered.topLeft()) / scale,
                      QSizeF(covered.size()) / scale);
    }

    // Metres: a little over one pixel of paintedArea, what rounding to pixels may add.
    static constexpr double pixel = 0.011;

    static bool containsWithin(const QRectF& outer, const QRectF& inner, double tolerance)
    {
        return outer.adjusted(-tolerance, -tolerance, tolerance, tolerance).contains(inner);
    }

    static double distanceFromLine(const QPointF& point, const QLineF& line)
    {
        const QPointF d = line.p2() - line.p1();
        const QPointF p = point - line.p1();
        return qAbs(d.x() * p.y() - d.y() * p.x()) / line.length();
    }

private slots:
    void zeroLengthArrowDrawsNothing()
    {
        VectorGraphicsItem arrow(QLineF(1, 1, 1, 1));
        QVERIFY(arrow.outline().isEmpty());
        QVERIFY(arrow.boundingRect().isNull());
        QCOMPARE(arrow.headSize(), 0.0);
        QVERIFY(paintedArea(&arrow, QRectF(0, 0, 2, 2)).isNull());
    }

    void arrowHeadGrowsWithTheLine_data()
    {
        QTest::addColumn<QLineF>("line");
        QTest::addColumn<double>("headSize");
        QTest::newRow("1 m to the right") << QLineF(0, 0, 1, 0) << 0.2;
        QTest::newRow("2 m to the right") << QLineF(0, 0, 2, 0) << 0.4;
        QTest::newRow("2 m up") << QLineF(0, 0, 0, 2) << 0.4;
        QTest::newRow("2 m slanted down")
            << QLineF(1, 1, 1 + std::sqrt(2.0), 1 - std::sqrt(2.0)) << 0.4;
    }
    void arrowHeadGrowsWithTheLine()
    {
        QFETCH(QLineF, line);
        QFETCH(double, headSize);
        VectorGraphicsItem arrow(QLineF(0, 0, 3, 0));
        arrow.setLine(line);
        QCOMPARE(arrow.line(), line);
        QVERIFY(qAbs(arrow.headSize() - headSize) < 1e-9);
        const QPolygonF outline = arrow.outline();
        QCOMPARE(outline.size(), 6);
        QCOMPARE(outline[0], line.p1());
        QCOMPARE(outline[3], line.p2());
        // The head starts at 80 percent, as wide as the head size, the shaft half as wide,
        // the two sides mirrored across the line.
        const QPointF headBase = line.pointAt(0.8);
        for (int i : {1, 2, 4, 5}) {
            const double expected = (i == 2 || i == 4 ? 0.5 : 0.25) * headSize;
            QVERIFY(qAbs(QLineF(headBase, outline[i]).length() - expected) < 1e-6);
            QVERIFY(qAbs(distanceFromLine(outline[i], line) - expected) < 1e-6);
        }
        QVERIFY(qAbs(QLineF(outline[2], outline[4]).length() - headSize) < 1e-6);
        QCOMPARE(arrow.boundingRect(), outline.boundingRect());
        const QRectF view = arrow.boundingRect().adjusted(-0.5, -0.5, 0.5, 0.5);
        QVERIFY(containsWithin(arrow.boundingRect(), paintedArea(&arrow, view), pixel));
    }

    void springTurnsFollowTheRestLength_data()
    {
        QTest::addColumn<double>("restLength");
        QTest::addColumn<double>("length");
        QTest::addColumn<int>("teeth");
        QTest::newRow("1 m at rest") << 1.0 << 1.0 << 8;
        QTest::newRow("1 m stretched") << 1.0 << 2.5 << 8;
        QTest::newRow("1 m compressed") << 1.0 << 0.4 << 8;
        QTest::newRow("0.2 m is a straight line") << 0.2 << 0.2 << 0;
        QTest::newRow("0.3 m has one tooth") << 0.3 << 0.3 << 1;
        QTest::newRow("rest length not a number") << double(NAN) << 1.0 << 0;
    }
    void springTurnsFollowTheRestLength()
    {
        QFETCH(double, restLength);
        QFETCH(double, length);
        QFETCH(int, teeth);
        SpringGraphicsItem spring(QLineF(0, 0, 3, 0));
        spring.setRestLength(restLength);
        spring.setLine(QLineF(1, 1, 1 + length, 1));
        const QPolygonF points = spring.points();
        // A lead at each end and three points to each tooth.
        QCOMPARE(points.size(), 2 + 3 * teeth);
        QCOMPARE(points.first(), QPointF(1, 1));
        QCOMPARE(points.last(), QPointF(1 + length, 1));
        QCOMPARE(spring.line(), QLineF(1, 1, 1 + length, 1));
        // Each tooth stands 0.1 m off the line, to alternate sides.
        for (int i = 0; i < teeth; ++i) {
            const QPointF tip = points[2 + 3 * i];
            QVERIFY(qAbs(qAbs(tip.y() - 1.0) - 0.1) < 1e-9);
            if (i > 0)
                QVERIFY((tip.y() - 1.0) * (points[2 + 3 * (i - 1)].y() - 1.0) < 0);
        }
    }

    void springRestLengthLaysTheTurnsAnew()
    {
        SpringGraphicsItem spring(QLineF(0, 0, 1, 0));
        spring.setLine(QLineF(0, 0, 3, 0));
        spring.setRestLength(2.0);
        QCOMPARE(spring.points().size(), 2 + 3 * 18);
        QCOMPARE(spring.line(), QLineF(0, 0, 3, 0));
    }

    void springBoundsHoldWhatItPaints_data()
    {
        QTest::addColumn<bool>("selected");
        QTest::newRow("plain") << false;
        QTest::newRow("selected") << true;
    }
    void springBoundsHoldWhatItPaints()
    {
        QFETCH(bool, selected);
        SpringGraphicsItem spring(QLineF(0, 0, 1, 1));
        const QRectF bounds = spring.boundingRect();
        QVERIFY(bounds.contains(spring.points().boundingRect()));
        const QRectF painted
            = paintedArea(&spring, bounds.adjusted(-0.5, -0.5, 0.5, 0.5), selected);
        QVERIFY(!painted.isNull());
        QVERIFY(containsWithin(bounds, painted, pixel));
    }

    void springShapeFollowsTheCoil()
    {
        SpringGraphicsItem spring(QLineF(0, 0, 1, 0));
        const QPainterPath shape = spring.shape();
        QVERIFY(shape.contains(QPointF(0.005, 0)));
        QVERIFY(shape.contains(spring.points()[2]));
        QVERIFY(!shape.contains(QPointF(0.5, 0.3)));
    }

    // A disc painted at `pixels` pixels a metre, antialiased, as the view does.
    static QImage paintedDisc(QAbstractGraphicsShapeItem* item, double pixels)
    {
        const int side = int(2 * pixels) + 8;
        QImage image(side, side, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(side / 2.0, side / 2.0);
        painter.scale(pixels, -pixels);
        QPen pen(Qt::black, 0);
        pen.setCosmetic(true);
        item->setPen(pen);
        item->setBrush(QColor(200, 120, 40));
        const QStyleOptionGraphicsItem option;
        item->paint(&painter, &option, nullptr);
        return image;
    }

    // The polygon must look like the ellipse at any size: no pixel apart by more than the
    // antialiasing of the one-pixel outline makes of a shift of a fraction of a pixel. Qt's
    // ellipse itself is up to about 90 levels from a polygon of thousands of sides; a polygon
    // of too few sides, or of the wrong radius, is 150 or more away.
    void discLooksLikeTheEllipse_data()
    {
        QTest::addColumn<double>("pixels");
        for (double pixels : {2.0, 12.0, 60.0, 400.0})
            QTest::addRow("%g px", pixels) << pixels;
    }
    void discLooksLikeTheEllipse()
    {
        QFETCH(double, pixels);
        CircleGraphicsItem disc(1.0);
        disc.setSpokeVisible(false);
        // At its first radius, and at one set later, after the outline has been built.
        for (double radius : {1.0, 0.5}) {
            disc.setRadius(radius);
            QGraphicsEllipseItem ellipse(-radius, -radius, 2 * radius, 2 * radius);
            const QImage expected = paintedDisc(&ellipse, pixels);
            const QImage actual = paintedDisc(&disc, pixels);
            int largest = 0;
            for (int y = 0; y < expected.height(); ++y) {
                for (int x = 0; x < expected.width(); ++x) {
                    const QRgb a = expected.pixel(x, y);
                    const QRgb b = actual.pixel(x, y);
                    largest = std::max({largest, qAbs(qRed(a) - qRed(b)),
                                        qAbs(qGreen(a) - qGreen(b)), qAbs(qBlue(a) - qBlue(b))});
                }
            }
            QVERIFY2(largest <= 96, qPrintable(QString::number(largest)));
        }
    }

    void revoluteJointPartsScaleWithTheRadius_data()
    {
        QTest::addColumn<double>("radius");
        QTest::newRow("0.3") << 0.3;
        QTest::newRow("1.2") << 1.2;
    }
    void revoluteJointPartsScaleWithTheRadius()
    {
        QFETCH(double, radius);
        RevoluteJointGraphicsItem joint(0.25);
        joint.setRadius(radius);
        QCOMPARE(joint.radius(), radius);
        QCOMPARE(joint.rect(), QRectF(-radius, -radius, 2 * radius, 2 * radius));
        const QList<QGraphicsItem*> children = joint.childItems();
        QCOMPARE(children.size(), 1);
        auto* disc = static_cast<QGraphicsEllipseItem*>(children.first());
        QCOMPARE(disc->rect(), QRectF(-radius / 2, -radius / 2, radius, radius));
        QCOMPARE(disc->brush().color(), QColor(Qt::lightGray));
        QCOMPARE(disc->childItems().size(), 4);
        QVector<QPointF> positions;
        for (QGraphicsItem* child : disc->childItems()) {
            auto* dot = static_cast<QGraphicsEllipseItem*>(child);
            QCOMPARE(dot->rect().width(), radius / 6);
            QVERIFY(qAbs(QLineF(QPointF(), dot->pos()).length() - radius / 4) < 1e-12);
            positions.append(dot->pos());
        }
        // Four different dots, a quarter turn apart.
        QCOMPARE(QLineF(positions[0], positions[2]).length(), radius / 2);
        QCOMPARE(QLineF(positions[1], positions[3]).length(), radius / 2);
        // Outlines keep their width in pixels at every zoom.
        QVERIFY(joint.pen().isCosmetic());
        QVERIFY(disc->pen().isCosmetic());
    }
};

QTEST_MAIN(TestDecorationItems)
#include "tst_decorationitems.moc"
