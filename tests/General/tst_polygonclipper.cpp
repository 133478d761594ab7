#include "General/PolygonClipper.h"
#include "General/XPolygonF.h"
#include "General/support/MessageRecorder.h"
#include "General/support/PolygonChecks.h"

#include <QPainterPath>
#include <QtTest>

using PolygonChecks::centroid;
using PolygonChecks::makePolygon;
using PolygonChecks::signedArea;
using PolygonChecks::totalArea;
using PolygonChecks::triangleFault;

Q_DECLARE_METATYPE(ClipperLib::ClipType)

namespace {

QPolygonF square(double left, double bottom, double size)
{
    return QPolygonF(QRectF(left, bottom, size, size));
}

} // namespace

class tst_PolygonClipper : public QObject
{
    Q_OBJECT

private slots:
    void clip_data();
    void clip();
    void holesAreCutIntoOutline_data();
    void holesAreCutIntoOutline();
    void keepsSixDecimals_data();
    void keepsSixDecimals();
    void isReusable();
};

void tst_PolygonClipper::clip_data()
{
    QTest::addColumn<ClipperLib::ClipType>("operation");
    QTest::addColumn<QPolygonF>("subject");
    QTest::addColumn<QPolygonF>("clip");
    QTest::addColumn<int>("pieceCount");
    QTest::addColumn<double>("area");
    QTest::addColumn<QStringList>("infoMessages");

    const QPolygonF a = square(0, 0, 2);
    const QPolygonF b = square(1, 1, 2);
    const QPolygonF far = square(10, 10, 1);
    QTest::newRow("union of overlapping squares")
        << ClipperLib::ctUnion << a << b << 1 << 7.0 << QStringList();
    QTest::newRow("intersection of overlapping squares")
        << ClipperLib::ctIntersection << a << b << 1 << 1.0 << QStringList();
    QTest::newRow("difference of overlapping squares")
        << ClipperLib::ctDifference << a << b << 1 << 3.0 << QStringList();
    QTest::newRow("intersection of disjoint squares")
        << ClipperLib::ctIntersection << a << far << 0 << 0.0 << QStringList();
    QTest::newRow("union of disjoint squares")
        << ClipperLib::ctUnion << a << far << 2 << 5.0 << QStringList();
    QTest::newRow("difference that removes everything")
        << ClipperLib::ctDifference << b << square(0, 0, 4) << 0 << 0.0 << QStringList();
    QTest::newRow("empty subject")
        << ClipperLib::ctUnion << QPolygonF() << b << 1 << 4.0 << QStringList();
    // A bow tie of two lobes of area 1 each, which the even-odd rule both keep.
    const QPolygonF bowTie
        = makePolygon({QPointF(0, 0), QPointF(2, 2), QPointF(2, 0), QPointF(0, 2)});
    QTest::newRow("self-intersecting subject")
        << ClipperLib::ctIntersection << bowTie << square(0, 0, 2) << 2 << 2.0 << QStringList();
    // The pieces lie at the far end of what 32-bit integers of millionths can hold.
    QTest::newRow("near the coordinate limit")
        << ClipperLib::ctUnion << square(2000, -2100, 100) << square(2050, -2050, 97) << 1
        << 100.0 * 100.0 + 97.0 * 97.0 - 50.0 * 50.0 << QStringList();
    // Beyond that range coordinates are bounded to it; the unit square inside is untouched.
    QTest::newRow("operand reaching beyond the coordinate limit")
        << ClipperLib::ctIntersection << square(-1, -1, 5000) << square(0, 0, 1) << 1 << 1.0
        << QStringList();
    QTest::newRow("huge operand") << ClipperLib::ctIntersection
                                  << makePolygon(
                                         {QPointF(0, 0), QPointF(1e300, 0), QPointF(1e300, 1e300)})
                                  << square(0, 0, 1) << 1 << 0.5 << QStringList();
    // With no edge at all the engine refuses to work.
    QTest::newRow("both operands degenerate")
        << ClipperLib::ctUnion << makePolygon({QPointF(0, 0), QPointF(1, 1), QPointF(2, 2)})
        << QPolygonF() << 0 << 0.0 << QStringList {QStringLiteral("Clipper Failed...")};
}

// The pieces' outlines must add up to the expected area, and no two may overlap, though they
// may touch.
void tst_PolygonClipper::clip()
{
    QFETCH(ClipperLib::ClipType, operation);
    QFETCH(QPolygonF, subject);
    QFETCH(QPolygonF, clip);
    QFETCH(int, pieceCount);
    QFETCH(double, area);
    QFETCH(QStringList, infoMessages);

    MessageRecorder recorder;
    const QList<QPolygonF> pieces = PolygonClipper().clip(operation, subject, clip);
    QCOMPARE(pieces.size(), pieceCount);
    double sum = 0.0;
    for (const QPolygonF& piece : pieces)
        sum += qAbs(signedArea(piece));
    QVERIFY2(qAbs(sum - area) < 1e-6, qPrintable(QString::number(sum)));
    for (int i = 0; i < pieces.size(); ++i) {
        for (int j = i + 1; j < pieces.size(); ++j)
            QVERIFY(qAbs(signedArea(pieces.at(i).intersected(pieces.at(j)))) < 1e-9);
    }
    QCOMPARE(recorder.messages(QtInfoMsg), infoMessages);
    QCOMPARE(recorder.messages(QtWarningMsg), QStringList());
}

void tst_PolygonClipper::holesAreCutIntoOutline_data()
{
    QTest::addColumn<QList<QRectF>>("holes");
    QTest::addColumn<double>("area");

    QTest::newRow("one hole") << QList<QRectF> {QRectF(1, 1, 2, 2)} << 16.0 - 4.0;
    QTest::newRow("two holes") << QList<QRectF> {QRectF(0.5, 0.5, 1, 1), QRectF(2, 2, 1.5, 1)}
                               << 16.0 - 1.0 - 1.5;
    QTest::newRow("holes touching at a corner")
        << QList<QRectF> {QRectF(1, 1, 1, 1), QRectF(2, 2, 1, 1)} << 16.0 - 2.0;
}

// A square with smaller ones taken out of it is one outline with the holes cut in; its
// triangles cover what is left and leave the holes free.
void tst_PolygonClipper::holesAreCutIntoOutline()
{
    QFETCH(QList<QRectF>, holes);
    QFETCH(double, area);

    const QPolygonF outer = square(0, 0, 4);
    QPainterPath holePath;
    for (const QRectF& hole : holes)
        holePath.addRect(hole);
    const QList<QPolygonF> pieces
        = PolygonClipper().clip(ClipperLib::ctDifference, outer, holePath.toFillPolygon());
    QCOMPARE(pieces.size(), 1);
    QVERIFY(qAbs(qAbs(signedArea(pieces.first())) - area) < 1e-9);

    MessageRecorder recorder;
    const QList<XPolygonF> triangles = XPolygonF(pieces.first()).triangulate();
    QVERIFY(qAbs(totalArea(triangles) - area) < 1e-9);
    const QString fault = triangleFault(triangles, outer.boundingRect());
    QVERIFY2(fault.isEmpty(), qPrintable(fault));
    for (const XPolygonF& triangle : triangles) {
        for (const QRectF& hole : holes)
            QVERIFY(!hole.contains(centroid(triangle)));
    }
    QCOMPARE(recorder.messages(QtWarningMsg), QStringList());
}

void tst_PolygonClipper::keepsSixDecimals_data()
{
    QTest::addColumn<double>("coordinate");
    QTest::addColumn<double>("expected");

    QTest::newRow("rounded up") << 0.1234567 << 0.123457;
    QTest::newRow("rounded down") << 0.1234564 << 0.123456;
    QTest::newRow("negative rounded up in magnitude") << -0.1234567 << -0.123457;
    QTest::newRow("negative rounded down in magnitude") << -0.1234564 << -0.123456;
    QTest::newRow("exact") << 1.5 << 1.5;
}

// The vertex at the given coordinate in x and y comes back rounded to millionths.
void tst_PolygonClipper::keepsSixDecimals()
{
    QFETCH(double, coordinate);
    QFETCH(double, expected);

    const QPointF corner(coordinate, coordinate);
    const QPolygonF triangle
        = makePolygon({corner, corner + QPointF(5, 0), corner + QPointF(0, 5)});
    const QList<QPolygonF> pieces
        = PolygonClipper().clip(ClipperLib::ctUnion, triangle, QPolygonF());
    QCOMPARE(pieces.size(), 1);
    QVERIFY(pieces.first().contains(QPointF(expected, expected)));
}

// Each operation starts from an empty engine.
void tst_PolygonClipper::isReusable()
{
    PolygonClipper clipper;
    clipper.clip(ClipperLib::ctUnion, square(0, 0, 1), square(5, 5, 1));
    const QList<QPolygonF> pieces
        = clipper.clip(ClipperLib::ctUnion, square(10, 10, 1), QPolygonF());
    QCOMPARE(pieces.size(), 1);
    QCOMPARE(pieces.first().boundingRect(), QRectF(10, 10, 1, 1));
}

QTEST_GUILESS_MAIN(tst_PolygonClipper)
#include "tst_polygonclipper.moc"
