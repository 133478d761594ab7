#include "General/XPolygonF.h"
#include "General/support/MessageRecorder.h"
#include "General/support/PolygonChecks.h"

#include <QPainterPath>
#include <QSet>
#include <QtTest>

#include <cmath>

using PolygonChecks::centroid;
using PolygonChecks::makePolygon;
using PolygonChecks::totalArea;
using PolygonChecks::triangleFault;

namespace {

const QPolygonF unitSquare
    = makePolygon({QPointF(0, 0), QPointF(1, 0), QPointF(1, 1), QPointF(0, 1)});

// A star of the given number of spikes around the origin, counter-clockwise.
QPolygonF star(int spikes, double inner, double outer)
{
    QPolygonF polygon;
    for (int i = 0; i < 2 * spikes; ++i) {
        const double angle = M_PI * i / spikes;
        const double radius = i % 2 ? inner : outer;
        polygon << QPointF(radius * std::cos(angle), radius * std::sin(angle));
    }
    return polygon;
}

// Squares of the given size in a grid of columns by rows, two units apart.
QList<QRectF> grid(int columns, int rows, double size)
{
    QList<QRectF> squares;
    for (int i = 0; i < columns * rows; ++i)
        squares << QRectF(1 + 2 * (i % columns), 1 + 2 * (i / columns), size, size);
    return squares;
}

// The outline with the holes cut in as boolean operations leave them: the rings in one
// polygon, each followed by a return to the first vertex.
QPolygonF cutIn(const QRectF& outline, const QList<QRectF>& holes)
{
    QPainterPath path;
    path.addRect(outline);
    for (const QRectF& hole : holes)
        path.addRect(hole);
    return path.toFillPolygon();
}

QPolygonF reversed(QPolygonF polygon)
{
    std::reverse(polygon.begin(), polygon.end());
    return polygon;
}

} // namespace

class tst_XPolygonF : public QObject
{
    Q_OBJECT

private slots:
    void normalForm_data();
    void normalForm();
    void tooFewVertices_data();
    void tooFewVertices();
    void triangulate_data();
    void triangulate();
    void skipsSlivers_data();
    void skipsSlivers();
    void boundary_data();
    void boundary();
};

void tst_XPolygonF::normalForm_data()
{
    QTest::addColumn<QPolygonF>("input");
    QTest::addColumn<QPolygonF>("expected");
    QTest::addColumn<QStringList>("debugMessages");

    const QPointF a(0, 0), b(1, 0), c(1, 1), d(0, 1);
    QTest::newRow("counter-clockwise square unchanged")
        << makePolygon({a, b, c, d}) << makePolygon({a, b, c, d}) << QStringList();
    QTest::newRow("clockwise square reversed")
        << makePolygon({a, d, c, b}) << makePolygon({b, c, d, a}) << QStringList();
    QTest::newRow("closing duplicate removed")
        << makePolygon({a, b, c, d, a}) << makePolygon({a, b, c, d}) << QStringList();
    QTest::newRow("closing duplicate within tolerance removed")
        << makePolygon({a, b, c, d, QPointF(1e-13, -1e-13)}) << makePolygon({a, b, c, d})
        << QStringList();
    const QPointF nearA(0, 2e-12);
    QTest::newRow("closing vertex beyond tolerance kept")
        << makePolygon({a, b, c, d, nearA}) << makePolygon({a, b, c, d, nearA}) << QStringList();
    QTest::newRow("clockwise closed outline opened, then reversed")
        << makePolygon({a, d, c, b, a}) << makePolygon({b, c, d, a}) << QStringList();
    QTest::newRow("short edge removed")
        << makePolygon({a, b, QPointF(1, 1e-8), c, d}) << makePolygon({a, b, c, d})
        << QStringList {QStringLiteral("Removing edge with length = 1e-08")};
    QTest::newRow("edge just above the limit kept")
        << makePolygon({a, b, QPointF(1, 1.2e-7), c, d})
        << makePolygon({a, b, QPointF(1, 1.2e-7), c, d}) << QStringList();
    // After the first removal the scan goes on at index 1, so the zero-length edge left at
    // index 0 stays.
    QTest::newRow("three coincident vertices")
        << makePolygon({a, a, a, b, c, d}) << makePolygon({a, a, b, c, d})
        << QStringList {QStringLiteral("Removing edge with length = 0")};
    QTest::newRow("coincident vertices later in the outline")
        << makePolygon({a, b, b, b, c, d}) << makePolygon({a, b, c, d})
        << QStringList {QStringLiteral("Removing edge with length = 0"),
                        QStringLiteral("Removing edge with length = 0")};
    // The orientation is read at the first vertex on the top or left side; there the
    // neighbours are collinear, which counts as counter-clockwise.
    const QPolygonF clockwiseFromEdgeMiddle = makePolygon({QPointF(0, 0.5), d, c, b, a});
    QTest::newRow("collinear neighbours at the extreme vertex")
        << clockwiseFromEdgeMiddle << clockwiseFromEdgeMiddle << QStringList();
}

void tst_XPolygonF::normalForm()
{
    QFETCH(QPolygonF, input);
    QFETCH(QPolygonF, expected);
    QFETCH(QStringList, debugMessages);

    MessageRecorder recorder;
    const XPolygonF polygon(input);
    QCOMPARE(QPolygonF(polygon), expected);
    QCOMPARE(recorder.messages(QtDebugMsg), debugMessages);
}

void tst_XPolygonF::tooFewVertices_data()
{
    QTest::addColumn<QPolygonF>("input");
    QTest::addColumn<QPolygonF>("expected");
    QTest::addColumn<QStringList>("debugMessages");

    const QString tooFew = QStringLiteral("XPolygonF with less than 3 vertices.");
    QTest::newRow("empty") << QPolygonF() << QPolygonF() << QStringList {tooFew};
    QTest::newRow("two vertices") << makePolygon({QPointF(0, 0), QPointF(1, 0)})
                                  << makePolygon({QPointF(0, 0), QPointF(1, 0)})
                                  << QStringList {tooFew};
    // The scan stops once the vertex at index 1 is the last one.
    QTest::newRow("three coincident vertices")
        << makePolygon({QPointF(2, 3), QPointF(2, 3), QPointF(2, 3)})
        << makePolygon({QPointF(2, 3), QPointF(2, 3)})
        << QStringList {QStringLiteral("Removing edge with length = 0"), tooFew};
    // The count is checked before the closing vertex goes, so there is no message.
    QTest::newRow("closed two-vertex outline")
        << makePolygon({QPointF(0, 0), QPointF(1, 0), QPointF(0, 1e-13)})
        << makePolygon({QPointF(0, 0), QPointF(1, 0)}) << QStringList();
}

// Too few vertices are no failure: the object stays as it is and has no triangles.
void tst_XPolygonF::tooFewVertices()
{
    QFETCH(QPolygonF, input);
    QFETCH(QPolygonF, expected);
    QFETCH(QStringList, debugMessages);

    MessageRecorder recorder;
    const XPolygonF polygon(input);
    QCOMPARE(QPolygonF(polygon), expected);
    QCOMPARE(recorder.messages(QtDebugMsg), debugMessages);
    QVERIFY(polygon.triangulate().isEmpty());
    QCOMPARE(recorder.messages(QtWarningMsg), QStringList());
}

void tst_XPolygonF::triangulate_data()
{
    QTest::addColumn<QPolygonF>("outline");
    // -1 where the count depends on which vertices the simplification keeps.
    QTest::addColumn<int>("triangleCount");
    QTest::addColumn<double>("area");

    QTest::newRow("triangle") << makePolygon({QPointF(0, 0), QPointF(2, 0), QPointF(0, 1)}) << 1
                              << 1.0;
    QTest::newRow("square") << unitSquare << 2 << 1.0;
    QTest::newRow("clockwise square") << reversed(unitSquare) << 2 << 1.0;
    QTest::newRow("closed square")
        << makePolygon({QPointF(0, 0), QPointF(1, 0), QPointF(1, 1), QPointF(0, 1), QPointF(0, 0)})
        << 2 << 1.0;
    QTest::newRow("L shape") << makePolygon(
        {QPointF(0, 0), QPointF(2, 0), QPointF(2, 1), QPointF(1, 1), QPointF(1, 2), QPointF(0, 2)})
                             << 4 << 3.0;
    // Twenty vertices alternately at radius 2 and 1: twenty triangles between the centre and
    // neighbouring vertices make up the area.
    QTest::newRow("star") << star(10, 1.0, 2.0) << 18 << 20 * 0.5 * 2.0 * 1.0 * std::sin(M_PI / 10);
    // A square with a slit to a square hole, which the outline runs around clockwise.
    QTest::newRow("keyhole") << makePolygon(
        {QPointF(0, 0), QPointF(4, 0), QPointF(4, 4), QPointF(0, 4), QPointF(0, 2), QPointF(1, 2),
         QPointF(1, 3), QPointF(3, 3), QPointF(3, 1), QPointF(1, 1), QPointF(1, 2), QPointF(0, 2)})
                             << -1 << 12.0;
    // The crossing splits it into two lobes of area 1, both filled.
    QTest::newRow("figure of eight")
        << makePolygon({QPointF(0, 0), QPointF(2, 2), QPointF(2, 0), QPointF(0, 2)}) << 2 << 2.0;
    // Simplification gives these rings in no particular order, a hole first as likely as not.
    QTest::newRow("plate with twelve holes")
        << cutIn(QRectF(0, 0, 10, 8), grid(4, 3, 0.5)) << -1 << 80.0 - 12 * 0.25;
    QTest::newRow("island in a hole")
        << cutIn(QRectF(0, 0, 6, 6), {QRectF(1, 1, 4, 4), QRectF(2, 2, 2, 2)}) << -1
        << 36.0 - 16.0 + 4.0;
    QTest::newRow("collinear vertices")
        << makePolygon({QPointF(0, 0), QPointF(1, 0), QPointF(2, 0)}) << 0 << 0.0;
    QTest::newRow("beyond single precision")
        << makePolygon({QPointF(0, 0), QPointF(1e39, 0), QPointF(0, 1)}) << 0 << 0.0;
    QTest::newRow("out and back") << makePolygon(
        {QPointF(0, 0), QPointF(1, 1), QPointF(2, 2), QPointF(1, 1)})
                                  << 0 << 0.0;
}

// Besides the given figures, every triangle must be counter-clockwise and lie in the outline
// by the even-odd rule, so none covers a hole or the outside.
void tst_XPolygonF::triangulate()
{
    QFETCH(QPolygonF, outline);
    QFETCH(int, triangleCount);
    QFETCH(double, area);

    MessageRecorder recorder;
    const QList<XPolygonF> triangles = XPolygonF(outline).triangulate();
    if (triangleCount >= 0)
        QCOMPARE(triangles.size(), triangleCount);
    QVERIFY(qAbs(totalArea(triangles) - area) < 1e-9);
    const QString fault = triangleFault(triangles, outline.boundingRect());
    QVERIFY2(fault.isEmpty(), qPrintable(fault));
    for (const XPolygonF& triangle : triangles)
        QVERIFY(outline.containsPoint(centroid(triangle), Qt::OddEvenFill));
    QCOMPARE(recorder.messages(QtWarningMsg), QStringList());
}

void tst_XPolygonF::boundary_data()
{
    QTest::addColumn<QPolygonF>("outline");
    QTest::addColumn<int>("ringCount");
    QTest::newRow("simple") << makePolygon({QPointF(0, 0), QPointF(2, 0), QPointF(1, 2)}) << 1;
    QTest::newRow("figure of eight")
        << makePolygon({QPointF(0, 0), QPointF(2, 2), QPointF(2, 0), QPointF(0, 2)}) << 1;
    QTest::newRow("bridges to cut-in holes") << cutIn(QRectF(0, 0, 10, 8), grid(2, 1, 0.5)) << 3;
    QTest::newRow("island in a hole")
        << cutIn(QRectF(0, 0, 6, 6), {QRectF(1, 1, 4, 4), QRectF(2, 2, 2, 2)}) << 3;
    QTest::newRow("out and back") << makePolygon(
        {QPointF(0, 0), QPointF(1, 1), QPointF(2, 2), QPointF(1, 1)})
                                  << 0;
}

// The rings fill what the outline fills by the even-odd rule, and no edge of theirs is run
// along twice.
void tst_XPolygonF::boundary()
{
    QFETCH(QPolygonF, outline);
    QFETCH(int, ringCount);
    const QVector<QPolygonF> rings = XPolygonF(outline).boundary();
    QCOMPARE(rings.size(), ringCount);
    QPainterPath path;
    QSet<QString> edges;
    for (const QPolygonF& ring : rings) {
        path.addPolygon(ring);
        path.closeSubpath();
        for (int i = 0; i < ring.size(); ++i) {
            QPointF a = ring.at(i);
            QPointF b = ring.at((i + 1) % ring.size());
            if (qMakePair(b.x(), b.y()) < qMakePair(a.x(), a.y()))
                std::swap(a, b);
            const QString edge
                = QStringLiteral("%1 %2 %3 %4").arg(a.x()).arg(a.y()).arg(b.x()).arg(b.y());
            QVERIFY2(!edges.contains(edge), qPrintable(edge));
            edges.insert(edge);
        }
    }
    const QRectF bounds = outline.boundingRect();
    for (double x = bounds.left() + 0.05; x < bounds.right(); x += 0.1) {
        for (double y = bounds.top() + 0.05; y < bounds.bottom(); y += 0.1)
            QCOMPARE(path.contains(QPointF(x, y)),
                     outline.containsPoint(QPointF(x, y), Qt::OddEvenFill));
    }
}

void tst_XPolygonF::skipsSlivers_data()
{
    QTest::addColumn<QPolygonF>("outline");
    QTest::addColumn<QStringList>("warnings");
    QTest::addColumn<double>("area");

    QTest::newRow("sliver of area 5e-8")
        << makePolygon({QPointF(0, 0), QPointF(1, 0), QPointF(0, 1e-7)})
        << QStringList {QStringLiteral("Skipped 1 triangles")} << 0.0;
    QTest::newRow("thin triangle of area 1.5e-7")
        << makePolygon({QPointF(0, 0), QPointF(1, 0), QPointF(0, 3e-7)}) << QStringList() << 1.5e-7;
    // A spike with a base two ten-millionths wide on top of a unit square: the spike and the
    // triangle of the square on the spike's base, of area 1e-7, are both too thin.
    QTest::newRow("spike on a square")
        << makePolygon({QPointF(0, 0), QPointF(1, 0), QPointF(1, 1), QPointF(0.5 + 2e-7, 1),
                        QPointF(0.5, 1.5), QPointF(0.5, 1), QPointF(0, 1)})
        << QStringList {QStringLiteral("Skipped 2 triangles")} << 1.0 - 1e-7;
}

// Skipped triangles are counted in one warning, and their area is missing from the rest.
void tst_XPolygonF::skipsSlivers()
{
    QFETCH(QPolygonF, outline);
    QFETCH(QStringList, warnings);
    QFETCH(double, area);

    MessageRecorder recorder;
    const QList<XPolygonF> triangles = XPolygonF(outline).triangulate();
    QCOMPARE(recorder.messages(QtWarningMsg), warnings);
    QVERIFY(qAbs(totalArea(triangles) - area) < 1e-12);
    const QString fault = triangleFault(triangles, outline.boundingRect());
    QVERIFY2(fault.isEmpty(), qPrintable(fault));
}

QTEST_GUILESS_MAIN(tst_XPolygonF)
#include "tst_xpolygonf.moc"
