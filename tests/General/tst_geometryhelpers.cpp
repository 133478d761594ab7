#include "General/support/PolygonChecks.h"
#include "NemuGeometry/Geometry.h"
#include "NemuToolbox/Toolbox.h"

#include <QtTest>

#include <limits>

using namespace Nemu;
using PolygonChecks::makePolygon;

class tst_GeometryHelpers : public QObject
{
    Q_OBJECT

private slots:
    void pointFromString_data();
    void pointFromString();
    void pointFromAnchorText_data();
    void pointFromAnchorText();
    void pointFromStringIgnoresLocale();
    void polygonRoundTrip_data();
    void polygonRoundTrip();
    void malformedPolygon_data();
    void malformedPolygon();
    void randomColor();
    void randomBrush();
};

void tst_GeometryHelpers::pointFromString_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QPointF>("point");

    QTest::newRow("integers") << "3,-4" << true << QPointF(3, -4);
    QTest::newRow("decimals") << "0.25,12.5" << true << QPointF(0.25, 12.5);
    QTest::newRow("negative exponent") << "1.5e-05,-2" << true << QPointF(1.5e-05, -2);
    QTest::newRow("positive exponent") << "-2.5e+06,7E3" << true << QPointF(-2.5e6, 7e3);
    QTest::newRow("surrounding blanks") << " 1 , 2 " << true << QPointF(1, 2);
    QTest::newRow("empty") << "" << false << QPointF();
    QTest::newRow("one number") << "1" << false << QPointF();
    QTest::newRow("three numbers") << "1,2,3" << false << QPointF();
    QTest::newRow("missing y") << "1," << false << QPointF();
    QTest::newRow("words") << "x,y" << false << QPointF();
    QTest::newRow("decimal comma") << "1,5;2,5" << false << QPointF();
    QTest::newRow("semicolon") << "1;2" << false << QPointF();
    QTest::newRow("not a number") << "nan,1" << false << QPointF();
    QTest::newRow("infinite") << "1,inf" << false << QPointF();
    QTest::newRow("overflow") << "1e400,1" << false << QPointF();
}

// Malformed text gives the origin and a false ok; a missing ok pointer is allowed.
void tst_GeometryHelpers::pointFromString()
{
    QFETCH(QString, text);
    QFETCH(bool, valid);
    QFETCH(QPointF, point);

    bool ok = !valid;
    QCOMPARE(Geometry::pointFromString(text, &ok), point);
    QCOMPARE(ok, valid);
    QCOMPARE(Geometry::pointFromString(text), point);
}

void tst_GeometryHelpers::pointFromAnchorText_data()
{
    QTest::addColumn<QPointF>("anchor");

    QTest::newRow("small negative exponent") << QPointF(1.23456789e-05, -2.0);
    QTest::newRow("large") << QPointF(-123456.789, 987654.321);
    QTest::newRow("plain") << QPointF(0.5, -3.25);
    QTest::newRow("tiny") << QPointF(-7.654321e-300, 4.4e-12);
}

// Anchors are written as "%1,%2" with six significant digits; reading gives the point back
// to those digits.
void tst_GeometryHelpers::pointFromAnchorText()
{
    QFETCH(QPointF, anchor);

    const QString text = QStringLiteral("%1,%2").arg(anchor.x()).arg(anchor.y());
    bool ok = false;
    const QPointF point = Geometry::pointFromString(text, &ok);
    QVERIFY(ok);
    QCOMPARE(point.x(), QString::number(anchor.x(), 'g', 6).toDouble());
    QCOMPARE(point.y(), QString::number(anchor.y(), 'g', 6).toDouble());
    QVERIFY(qAbs(point.x() - anchor.x()) <= 5e-6 * qAbs(anchor.x()));
    QVERIFY(qAbs(point.y() - anchor.y()) <= 5e-6 * qAbs(anchor.y()));
}

// A system language with a decimal comma changes nothing.
void tst_GeometryHelpers::pointFromStringIgnoresLocale()
{
    const QLocale previous;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    bool ok = false;
    const QPointF point = Geometry::pointFromString(QStringLiteral("1.5,-0.25"), &ok);
    const QPolygonF polygon = makePolygon({QPointF(0.5, 1.25), QPointF(-3.75, 2)});
    const QString text = Geometry::polygonToString(polygon);
    QLocale::setDefault(previous);

    QVERIFY(ok);
    QCOMPARE(point, QPointF(1.5, -0.25));
    QCOMPARE(Geometry::polygonFromString(text), polygon);
}

void tst_GeometryHelpers::polygonRoundTrip_data()
{
    QTest::addColumn<QPolygonF>("polygon");

    QTest::newRow("empty") << QPolygonF();
    QTest::newRow("one point") << makePolygon({QPointF(1, 2)});
    QTest::newRow("closed square")
        << makePolygon({QPointF(-0.5, -0.5), QPointF(0.5, -0.5), QPointF(0.5, 0.5),
                        QPointF(-0.5, 0.5), QPointF(-0.5, -0.5)});
    QTest::newRow("full precision") << makePolygon(
        {QPointF(0.1, 1.0 / 3.0), QPointF(M_PI, -M_E), QPointF(1e-300, -1.7976931348623157e308)});
    QTest::newRow("integers beyond single precision")
        << makePolygon({QPointF(16777217, -16777217), QPointF(0, 0), QPointF(2, 0)});
    QTest::newRow("smallest subnormal")
        << makePolygon({QPointF(std::numeric_limits<double>::denorm_min(), 0)});
}

// Each vertex comes back bit for bit, and writing again gives the same text, which the
// setter of the geometry property relies on to detect an unchanged outline.
void tst_GeometryHelpers::polygonRoundTrip()
{
    QFETCH(QPolygonF, polygon);

    const QString text = Geometry::polygonToString(polygon);
    bool ok = false;
    const QPolygonF read = Geometry::polygonFromString(text, &ok);
    QVERIFY2(ok, qPrintable(text));
    QCOMPARE(read.size(), polygon.size());
    for (int i = 0; i < polygon.size(); ++i) {
        QCOMPARE(read.at(i).x(), polygon.at(i).x());
        QCOMPARE(read.at(i).y(), polygon.at(i).y());
    }
    QCOMPARE(Geometry::polygonToString(read), text);
    QCOMPARE(Geometry::polygonFromString(text), polygon);
}

void tst_GeometryHelpers::malformedPolygon_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("words") << "a square";
    QTest::newRow("bad point at the end") << "0,0 1,0 1,1 0,x";
    QTest::newRow("bad point in the middle") << "0,0 1;0 1,1";
    QTest::newRow("blank after comma") << "0, 0 1,0 1,1";
    QTest::newRow("lone number") << "0,0 1,0 7";
    QTest::newRow("trailing comma") << "0,0 1,0 1,1,";
    QTest::newRow("brackets") << "[0,0] [1,0] [1,1]";
    QTest::newRow("not a number") << "0,0 nan,0 1,1";
}

// Malformed text gives no partial polygon: the result is empty and ok is false.
void tst_GeometryHelpers::malformedPolygon()
{
    QFETCH(QString, text);

    bool ok = true;
    QCOMPARE(Geometry::polygonFromString(text, &ok), QPolygonF());
    QVERIFY(!ok);
    QCOMPARE(Geometry::polygonFromString(text), QPolygonF());
}

// New bodies are told apart by colour, and black marks a static body that has yet to get
// one, so successive colours differ and none is black.
void tst_GeometryHelpers::randomColor()
{
    QSet<QRgb> colours;
    for (int i = 0; i < 100; ++i) {
        const QColor colour = Toolbox::randomColor();
        QVERIFY(colour.isValid());
        QCOMPARE(colour.alpha(), 255);
        QVERIFY(colour != QColor(Qt::black));
        colours.insert(colour.rgb());
    }
    QVERIFY(colours.size() > 50);
}

void tst_GeometryHelpers::randomBrush()
{
    QSet<QRgb> colours;
    for (int i = 0; i < 100; ++i) {
        const QBrush brush = Toolbox::randomBrush();
        QCOMPARE(brush.style(), Qt::SolidPattern);
        QVERIFY(brush.color() != QColor(Qt::black));
        colours.insert(brush.color().rgb());
    }
    QVERIFY(colours.size() > 50);
}

QTEST_GUILESS_MAIN(tst_GeometryHelpers)
#include "tst_geometryhelpers.moc"
