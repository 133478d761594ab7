#include <QBrush>
#include <QColor>
#include <QFont>
#include <QLineF>
#include <QPolygonF>
#include <QRectF>
#include <QScriptEngine>
#include <QSizePolicy>
#include <QtTest>

#include <memory>

// Stands for the program's objects: slots that take and return each value type, as the
// world's factories and the items' accessors do, and properties of such types. Each slot
// keeps what it received.
class Echo : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QPointF Position MEMBER position)
    Q_PROPERTY(QColor Color MEMBER color)

public:
    QVariant received;
    QPointF position;
    QColor color;

public slots:
    QPointF echoPointF(QPointF value) { return keep(value); }
    QPoint echoPoint(QPoint value) { return keep(value); }
    QSizeF echoSizeF(QSizeF value) { return keep(value); }
    QSize echoSize(QSize value) { return keep(value); }
    QLineF echoLineF(QLineF value) { return keep(value); }
    QLine echoLine(QLine value) { return keep(value); }
    QRectF echoRectF(QRectF value) { return keep(value); }
    QRect echoRect(QRect value) { return keep(value); }
    QPolygonF echoPolygonF(QPolygonF value) { return keep(value); }
    QList<QPolygonF> echoPolygons(QList<QPolygonF> value) { return keep(value); }
    QColor echoColor(QColor value) { return keep(value); }
    QBrush echoBrush(QBrush value) { return keep(value); }
    QFont echoFont(QFont value) { return keep(value); }
    QSizePolicy echoSizePolicy(QSizePolicy value) { return keep(value); }

private:
    template<typename T> T keep(const T& value)
    {
        received = QVariant::fromValue(value);
        return value;
    }
};

// A wrapped item like a CircleItem: the wrong kind of object where a value is expected.
class Circle : public QObject
{
    Q_OBJECT
    Q_PROPERTY(double X MEMBER x)
    Q_PROPERTY(double Y MEMBER y)
    Q_PROPERTY(double Radius MEMBER radius)

public:
    double x = 7;
    double y = 8;
    double radius = 1;
};

class tst_ScriptExtensions : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void imports_data();
    void imports();
    void everyEngineGetsItsConversions();

    void roundTrip_data();
    void roundTrip();
    void properties();
    void methods_data();
    void methods();

    void badArguments_data();
    void badArguments();
    void wrongThisLeavesObjectAlone();
    void wrongValuesGiveDefaults_data();
    void wrongValuesGiveDefaults();

private:
    static QStringList importAll(QScriptEngine* engine);
    void addGlobal(const QString& name, QObject* object);

    std::unique_ptr<QScriptEngine> engine;
    std::unique_ptr<Echo> echo;
    std::unique_ptr<Circle> circle;
};

namespace {
const QStringList extensions = {"qt.core", "qt.gui", "qt.widgets"};

QPolygonF polygon(std::initializer_list<QPointF> points)
{
    return QVector<QPointF>(points);
}
} // namespace

void tst_ScriptExtensions::initTestCase()
{
    QCoreApplication::addLibraryPath(QCoreApplication::applicationDirPath() + "/lib/");
    // QVariant compares containers only with a registered comparator.
    QMetaType::registerEqualsComparator<QList<QPolygonF>>();
}

// Imports the program's three extensions; returns the text of each result that is not the
// undefined value of success.
QStringList tst_ScriptExtensions::importAll(QScriptEngine* engine)
{
    QStringList failures;
    for (const QString& extension : extensions) {
        const QScriptValue result = engine->importExtension(extension);
        if (!result.isUndefined())
            failures.append(extension + ": " + result.toString());
    }
    return failures;
}

void tst_ScriptExtensions::addGlobal(const QString& name, QObject* object)
{
    engine->globalObject().setProperty(name, engine->newQObject(object));
}

void tst_ScriptExtensions::init()
{
    engine = std::make_unique<QScriptEngine>();
    echo = std::make_unique<Echo>();
    circle = std::make_unique<Circle>();
    const QStringList failures = importAll(engine.get());
    QVERIFY2(failures.isEmpty(), qPrintable(failures.join('\n')));
    addGlobal("echo", echo.get());
    addGlobal("circle", circle.get());
}

void tst_ScriptExtensions::cleanup()
{
    engine.reset();
    echo.reset();
    circle.reset();
}

void tst_ScriptExtensions::imports_data()
{
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QStringList>("globals");
    QTest::addColumn<bool>("found");

    QTest::newRow("qt") << "qt" << QStringList() << true;
    QTest::newRow("qt.core") << "qt.core"
                             << QStringList {"QPointF", "QPoint", "QSizeF", "QSize",     "QLineF",
                                             "QLine",   "QRectF", "QRect",  "QPolygonF", "Qt"}
                             << true;
    QTest::newRow("qt.gui") << "qt.gui" << QStringList {"QColor", "QBrush", "QFont"} << true;
    QTest::newRow("qt.widgets") << "qt.widgets" << QStringList {"QSizePolicy"} << true;
    QTest::newRow("unknown") << "qt.nothing" << QStringList() << false;
}

void tst_ScriptExtensions::imports()
{
    QFETCH(QString, extension);
    QFETCH(QStringList, globals);
    QFETCH(bool, found);

    QScriptEngine fresh;
    for (const QString& name : globals)
        QVERIFY2(!fresh.globalObject().property(name).isValid(), qPrintable(name));

    const QScriptValue result = fresh.importExtension(extension);
    QCOMPARE(result.isUndefined(), found);
    QCOMPARE(fresh.hasUncaughtException(), !found);
    QVERIFY(fresh.availableExtensions().contains(extension) == found);
    for (const QString& name : globals)
        QVERIFY2(fresh.globalObject().property(name).isFunction()
                     || fresh.globalObject().property(name).isObject(),
                 qPrintable(name));
}

void tst_ScriptExtensions::everyEngineGetsItsConversions()
{
    auto first = std::make_unique<QScriptEngine>();
    QScriptEngine second;
    QVERIFY(importAll(first.get()).isEmpty());
    QVERIFY(importAll(&second).isEmpty());
    first.reset();

    Echo other;
    second.globalObject().setProperty("echo", second.newQObject(&other));
    const QScriptValue result = second.evaluate("echo.echoPointF(new QPointF(1, 2)).y()");
    QVERIFY2(!second.hasUncaughtException(), qPrintable(result.toString()));
    QCOMPARE(other.received, QVariant(QPointF(1, 2)));
    QCOMPARE(result.toNumber(), 2.0);
}

void tst_ScriptExtensions::roundTrip_data()
{
    QTest::addColumn<QString>("slot");
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QVariant>("expected");
    QTest::addColumn<QString>("check");

    QTest::newRow("QPointF") << "echoPointF"
                             << "new QPointF(1.5, -2)" << QVariant(QPointF(1.5, -2))
                             << "r instanceof QPointF && r.x() == 1.5 && r.y() == -2";
    QTest::newRow("QPoint") << "echoPoint"
                            << "new QPoint(3, 4)" << QVariant(QPoint(3, 4))
                            << "r instanceof QPoint && r.x() == 3 && r.y() == 4";
    QTest::newRow("QPointF as QPoint") << "echoPoint"
                                       << "new QPointF(2.6, -1.2)" << QVariant(QPoint(3, -1))
                                       << "r instanceof QPoint && r.x() == 3 && r.y() == -1";
    QTest::newRow("QSizeF") << "echoSizeF"
                            << "new QSizeF(2, 0.5)" << QVariant(QSizeF(2, 0.5))
                            << "r instanceof QSizeF && r.width() == 2 && r.height() == 0.5";
    QTest::newRow("QSize") << "echoSize"
                           << "new QSize(160, 120)" << QVariant(QSize(160, 120))
                           << "r instanceof QSize && r.width() == 160 && r.height() == 120";
    QTest::newRow("QLineF of numbers")
        << "echoLineF"
        << "new QLineF(0, 1, 2, 3)" << QVariant(QLineF(0, 1, 2, 3))
        << "r instanceof QLineF && r.x1() == 0 && r.y1() == 1 && r.x2() == 2 && r.y2() == 3";
    QTest::newRow("QLineF of points")
        << "echoLineF"
        << "new QLineF(new QPointF(1, 2), new QPoint(3, 4))" << QVariant(QLineF(1, 2, 3, 4))
        << "r.p1().x() == 1 && r.p2().y() == 4";
    QTest::newRow("QLine") << "echoLine"
                           << "new QLine(1, 2, 3, 4)" << QVariant(QLine(1, 2, 3, 4))
                           << "r instanceof QLine && r.dx() == 2 && r.dy() == 2";
    QTest::newRow("QRectF of numbers")
        << "echoRectF"
        << "new QRectF(1, 2, 3, 4)" << QVariant(QRectF(1, 2, 3, 4))
        << "r instanceof QRectF && r.x() == 1 && r.y() == 2 && r.width() == 3 && r.height() == 4";
    QTest::newRow("QRectF of point and size")
        << "echoRectF"
        << "new QRectF(new QPointF(1, 2), new QSizeF(3, 4))" << QVariant(QRectF(1, 2, 3, 4))
        << "r.right() == 4 && r.bottom() == 6";
    QTest::newRow("QRectF of two points")
        << "echoRectF"
        << "new QRectF(new QPointF(1, 2), new QPointF(4, 6))" << QVariant(QRectF(1, 2, 3, 4))
        << "r.size().width() == 3 && r.size().height() == 4";
    QTest::newRow("QRect") << "echoRect"
                           << "new QRect(0, 0, 10, 20)" << QVariant(QRect(0, 0, 10, 20))
                           << "r instanceof QRect && r.center().y() == 10";
    QTest::newRow("QPolygonF appended")
        << "echoPolygonF"
        << "(function() { var p = new QPolygonF(); p.append(new QPointF(1, 2));"
           " p.append(new QPointF(3, 4)); p.append(new QPointF(5, 1)); return p; })()"
        << QVariant(polygon({{1, 2}, {3, 4}, {5, 1}}))
        << "r instanceof QPolygonF && r.size() == 3 && r.at(1).x() == 3 && r.at(2).y() == 1";
    QTest::newRow("QPolygonF of an array")
        << "echoPolygonF"
        << "[new QPointF(1, 2), new QPoint(3, 4)]" << QVariant(polygon({{1, 2}, {3, 4}}))
        << "r instanceof QPolygonF && r.size() == 2";
    QTest::newRow("QList<QPolygonF>")
        << "echoPolygons"
        << "[new QPolygonF([new QPointF(0, 0)]), [new QPointF(1, 1), new QPointF(2, 2)]]"
        << QVariant::fromValue(QList<QPolygonF> {polygon({{0, 0}}), polygon({{1, 1}, {2, 2}})})
        << "r.length == 2 && r[0] instanceof QPolygonF && r[1].at(1).y() == 2";
    QTest::newRow("QColor of components")
        << "echoColor"
        << "new QColor(255, 128, 0)" << QVariant(QColor(255, 128, 0))
        << "r instanceof QColor && r.red() == 255 && r.green() == 128 && r.name() == '#ff8000'";
    QTest::newRow("QColor with alpha")
        << "echoColor"
        << "new QColor(1, 2, 3, 4)" << QVariant(QColor(1, 2, 3, 4)) << "r.alpha() == 4";
    QTest::newRow("QColor of a name")
        << "echoColor"
        << "new QColor('#336699')" << QVariant(QColor(0x33, 0x66, 0x99)) << "r.blue() == 0x99";
    QTest::newRow("colour name as QColor")
        << "echoColor"
        << "'red'" << QVariant(QColor(Qt::red)) << "r instanceof QColor && r.name() == '#ff0000'";
    QTest::newRow("QBrush of a colour")
        << "echoBrush"
        << "new QBrush(new QColor(0, 0, 255))" << QVariant(QBrush(QColor(0, 0, 255)))
        << "r instanceof QBrush && r.style() == QBrush.SolidPattern && r.color().blue() == 255";
    QTest::newRow("QBrush with a style") << "echoBrush"
                                         << "new QBrush('green', QBrush.Dense4Pattern)"
                                         << QVariant(QBrush(QColor("green"), Qt::Dense4Pattern))
                                         << "r.style() == QBrush.Dense4Pattern";
    QTest::newRow("colour as QBrush") << "echoBrush"
                                      << "new QColor(1, 2, 3)" << QVariant(QBrush(QColor(1, 2, 3)))
                                      << "r instanceof QBrush && r.color().green() == 2";
    QTest::newRow("colour name as QBrush")
        << "echoBrush"
        << "'#00ff00'" << QVariant(QBrush(QColor(0, 255, 0))) << "r.color().name() == '#00ff00'";
    QTest::newRow("QFont") << "echoFont"
                           << "new QFont('Serif', 14)" << QVariant(QFont("Serif", 14))
                           << "r instanceof QFont && r.family() == 'Serif' && r.pointSize() == 14";
    QTest::newRow("QSizePolicy")
        << "echoSizePolicy"
        << "new QSizePolicy(QSizePolicy.Expanding, QSizePolicy.Fixed)"
        << QVariant(QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed))
        << "r instanceof QSizePolicy && r.horizontalPolicy() == QSizePolicy.Expanding"
           " && r.verticalPolicy() == QSizePolicy.Fixed";
}

void tst_ScriptExtensions::roundTrip()
{
    QFETCH(QString, slot);
    QFETCH(QString, argument);
    QFETCH(QVariant, expected);
    QFETCH(QString, check);

    const QScriptValue result
        = engine->evaluate(QString("var r = echo.%1(%2); %3").arg(slot, argument, check));
    QVERIFY2(!engine->hasUncaughtException(), qPrintable(result.toString()));
    QCOMPARE(echo->received, expected);
    QVERIFY2(result.toBool(), qPrintable(check));
}

void tst_ScriptExtensions::properties()
{
    const QScriptValue result = engine->evaluate("echo.Position = new QPointF(3, 4);"
                                                 "echo.Color = 'blue';"
                                                 "echo.Position.x() * 10 + echo.Color.blue()");
    QVERIFY2(!engine->hasUncaughtException(), qPrintable(result.toString()));
    QCOMPARE(echo->position, QPointF(3, 4));
    QCOMPARE(echo->color, QColor(Qt::blue));
    QCOMPARE(result.toNumber(), 285.0);
}

void tst_ScriptExtensions::methods_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QVariant>("expected");

    QTest::newRow("called without new") << "QPointF(1, 2).y()" << QVariant(2.0);
    QTest::newRow("copy") << "var a = new QPointF(1, 2); new QPointF(a).x()" << QVariant(1.0);
    QTest::newRow("default") << "new QPointF().isNull()" << QVariant(true);
    QTest::newRow("shared reference")
        << "var a = new QPointF(1, 2); var b = a; b.setX(5); a.x()" << QVariant(5.0);
    QTest::newRow("copy is independent")
        << "var a = new QPointF(1, 2); var b = new QPointF(a); b.setX(5); a.x()" << QVariant(1.0);
    QTest::newRow("polygon grown in place")
        << "var a = new QPolygonF(); var b = a; var c = new QPolygonF(a);"
           " for (var i = 0; i < 100000; ++i) b.append(new QPointF(i, 0));"
           " [a.size(), c.size(), a.at(99999).x()].join()"
        << QVariant("100000,0,99999");
    QTest::newRow("QPointF setY") << "var p = new QPointF(1, 2); p.setY(-3); p.y()"
                                  << QVariant(-3.0);
    QTest::newRow("QPointF manhattanLength")
        << "new QPointF(-3, 4).manhattanLength()" << QVariant(7.0);
    QTest::newRow("QPointF toString") << "'' + new QPointF(1.5, 2)" << QVariant("QPointF(1.5, 2)");
    QTest::newRow("QPoint rounds")
        << "var p = new QPoint(1, 2); p.setX(2.6); p.x()" << QVariant(3.0);
    QTest::newRow("QPoint toString") << "new QPoint(1, 2).toString()" << QVariant("QPoint(1, 2)");
    QTest::newRow("QSizeF setters")
        << "var s = new QSizeF(); s.setWidth(2); s.setHeight(3); s.toString()"
        << QVariant("QSizeF(2, 3)");
    QTest::newRow("QSizeF isEmpty") << "new QSizeF(0, 3).isEmpty()" << QVariant(true);
    QTest::newRow("QLineF length") << "new QLineF(0, 0, 3, 4).length()" << QVariant(5.0);
    QTest::newRow("QLineF angle") << "new QLineF(0, 0, 0, -1).angle()" << QVariant(90.0);
    QTest::newRow("QLineF pointAt")
        << "new QLineF(0, 0, 4, 2).pointAt(0.5).toString()" << QVariant("QPointF(2, 1)");
    QTest::newRow("QLineF setP1") << "var l = new QLineF(0, 0, 1, 1); l.setP1(new QPointF(-1, 5));"
                                     " l.toString()"
                                  << QVariant("QLineF(-1, 5, 1, 1)");
    QTest::newRow("QLineF setP2") << "var l = new QLineF(); l.setP2(new QPoint(2, 3)); l.y2()"
                                  << QVariant(3.0);
    QTest::newRow("QRectF contains")
        << "var r = new QRectF(0, 0, 2, 2); [r.contains(new QPointF(1, 1)),"
           " r.contains(new QPointF(3, 1))].join()"
        << QVariant("true,false");
    QTest::newRow("QRectF moveTo") << "var r = new QRectF(0, 0, 2, 2); r.moveTo(5, 6); r.toString()"
                                   << QVariant("QRectF(5, 6, 2, 2)");
    QTest::newRow("QRectF moveCenter")
        << "var r = new QRectF(0, 0, 2, 4); r.moveCenter(new QPointF(0, 0)); r.topLeft().toString()"
        << QVariant("QPointF(-1, -2)");
    QTest::newRow("QRectF setters")
        << "var r = new QRectF(1, 1, 1, 1); r.setWidth(3); r.setHeight(0);"
           " [r.bottomRight().x(), r.isEmpty()].join()"
        << QVariant("4,true");
    QTest::newRow("QRect right in floating point")
        << "new QRect(0, 0, 10, 10).right()" << QVariant(10.0);
    QTest::newRow("QPolygonF starts empty") << "new QPolygonF().isEmpty()" << QVariant(true);
    QTest::newRow("QPolygonF clear")
        << "var p = new QPolygonF([new QPointF(1, 1)]); p.clear(); p.size()" << QVariant(0.0);
    QTest::newRow("QPolygonF boundingRect")
        << "new QPolygonF([new QPointF(1, 1), new QPointF(3, -2)]).boundingRect().toString()"
        << QVariant("QRectF(1, -2, 2, 3)");
    QTest::newRow("QPolygonF containsPoint")
        << "var p = new QPolygonF([new QPointF(0, 0), new QPointF(4, 0), new QPointF(0, 4)]);"
           " [p.containsPoint(new QPointF(1, 1)), p.containsPoint(new QPointF(3, 3))].join()"
        << QVariant("true,false");
    QTest::newRow("QPolygonF toString")
        << "new QPolygonF([new QPointF(1, 2), new QPointF(3, 4)]).toString()"
        << QVariant("QPolygonF((1, 2), (3, 4))");
    QTest::newRow("Qt key code") << "Qt.Key_Up" << QVariant(double(Qt::Key_Up));
    QTest::newRow("Qt is read-only") << "Qt.Key_A = 1; Qt.Key_A" << QVariant(double(Qt::Key_A));
    QTest::newRow("QColor setters clamp")
        << "var c = new QColor(0, 0, 0); c.setRed(300); c.setGreen(-4); c.setBlue(9);"
           " c.setAlpha(128); c.toString()"
        << QVariant("QColor(#80ff0009)");
    QTest::newRow("QColor invalid")
        << "var c = new QColor(); [c.isValid(), c.toString()].join()" << QVariant("false,QColor()");
    QTest::newRow("QColor lighter")
        << "new QColor(100, 0, 0).lighter(200).red()" << QVariant(200.0);
    QTest::newRow("QColor darker") << "new QColor(100, 0, 0).darker().red()" << QVariant(50.0);
    QTest::newRow("QBrush default") << "new QBrush().style()" << QVariant(double(Qt::NoBrush));
    QTest::newRow("QBrush setColor")
        << "var b = new QBrush('red'); b.setColor('blue'); b.toString()"
        << QVariant("QBrush(#0000ff, SolidPattern)");
    QTest::newRow("QBrush setStyle")
        << "var b = new QBrush('red'); b.setStyle(QBrush.CrossPattern); [b.style(), "
           "b.isOpaque()].join()"
        << QVariant(QString("%1,false").arg(Qt::CrossPattern));
    QTest::newRow("QFont setters")
        << "var f = new QFont('Serif'); f.setFamily('Sans'); f.setPointSize(9); f.setBold(true);"
           " f.setItalic(true); [f.toString(), f.bold(), f.italic()].join()"
        << QVariant("QFont(Sans, 9),true,true");
    QTest::newRow("QFont ignores size 0")
        << "var f = new QFont('Serif', 12); f.setPointSize(0); f.pointSize()" << QVariant(12.0);
    QTest::newRow("QSizePolicy setters")
        << "var s = new QSizePolicy(); s.setHorizontalPolicy(QSizePolicy.Ignored);"
           " s.setVerticalPolicy(QSizePolicy.Minimum); s.toString()"
        << QVariant("QSizePolicy(Ignored, Minimum)");
    QTest::newRow("QSizePolicy stretch clamps")
        << "var s = new QSizePolicy(); s.setHorizontalStretch(300); s.setVerticalStretch(-1);"
           " [s.horizontalStretch(), s.verticalStretch()].join()"
        << QVariant("255,0");
}

void tst_ScriptExtensions::methods()
{
    QFETCH(QString, script);
    QFETCH(QVariant, expected);

    const QScriptValue result = engine->evaluate(script);
    QVERIFY2(!engine->hasUncaughtException(), qPrintable(result.toString()));
    QCOMPARE(result.toVariant(), expected);
}

void tst_ScriptExtensions::badArguments_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("error");

    QTest::newRow("QPointF of a string") << "new QPointF('x')"
                                         << "TypeError";
    QTest::newRow("QPointF of one number") << "new QPointF(1)"
                                           << "TypeError";
    QTest::newRow("QPointF of three numbers") << "new QPointF(1, 2, 3)"
                                              << "TypeError";
    QTest::newRow("QPointF of an item") << "new QPointF(circle)"
                                        << "TypeError";
    QTest::newRow("QPoint of an object") << "new QPoint({x: 1, y: 2})"
                                         << "TypeError";
    QTest::newRow("QSizeF of a string") << "new QSizeF(1, '2')"
                                        << "TypeError";
    QTest::newRow("QLineF of three numbers") << "new QLineF(1, 2, 3)"
                                             << "TypeError";
    QTest::newRow("QLineF of a point and a number") << "new QLineF(new QPointF(), 5)"
                                                    << "TypeError";
    QTest::newRow("QRectF of a point and a number") << "new QRectF(new QPointF(), 3)"
                                                    << "TypeError";
    QTest::newRow("QRectF with null") << "new QRectF(1, 2, 3, null)"
                                      << "TypeError";
    QTest::newRow("QPolygonF of numbers") << "new QPolygonF([1, 2])"
                                          << "TypeError";
    QTest::newRow("QPolygonF with an item") << "new QPolygonF([new QPointF(), circle])"
                                            << "TypeError";
    QTest::newRow("QPolygonF of a point") << "new QPolygonF(new QPointF())"
                                          << "TypeError";
    QTest::newRow("QPolygonF of a sparse array")
        << "var a = []; a[4000000000] = new QPointF(); new QPolygonF(a)"
        << "TypeError";
    QTest::newRow("QColor out of range") << "new QColor(300, 0, 0)"
                                         << "TypeError";
    QTest::newRow("QColor of NaN") << "new QColor(0, 0, NaN)"
                                   << "TypeError";
    QTest::newRow("QColor of two numbers") << "new QColor(1, 2)"
                                           << "TypeError";
    QTest::newRow("QColor of an unknown name") << "new QColor('no such colour')"
                                               << "TypeError";
    QTest::newRow("QColor of an item") << "new QColor(circle)"
                                       << "TypeError";
    QTest::newRow("QBrush of an object") << "new QBrush({})"
                                         << "TypeError";
    QTest::newRow("QBrush of an unknown style") << "new QBrush('red', 999)"
                                                << "TypeError";
    QTest::newRow("QBrush of a fractional style") << "new QBrush('red', 1.5)"
                                                  << "TypeError";
    QTest::newRow("QFont of a number") << "new QFont(12)"
                                       << "TypeError";
    QTest::newRow("QFont of a string size") << "new QFont('Sans', 'big')"
                                            << "TypeError";
    QTest::newRow("QSizePolicy of an unknown policy") << "new QSizePolicy(99, 0)"
                                                      << "TypeError";
    QTest::newRow("QSizePolicy of one policy") << "new QSizePolicy(QSizePolicy.Fixed)"
                                               << "TypeError";
    QTest::newRow("at on an empty polygon") << "new QPolygonF().at(0)"
                                            << "RangeError";
    QTest::newRow("at with a negative index") << "new QPolygonF([new QPointF()]).at(-1)"
                                              << "RangeError";
    QTest::newRow("append of a number") << "new QPolygonF().append(3)"
                                        << "TypeError";
    QTest::newRow("append of an item") << "new QPolygonF().append(circle)"
                                       << "TypeError";
    QTest::newRow("setP1 of a string") << "new QLineF().setP1('x')"
                                       << "TypeError";
    QTest::newRow("contains of an item") << "new QRectF().contains(circle)"
                                         << "TypeError";
    QTest::newRow("setColor of an unknown name") << "new QBrush().setColor('nonsense')"
                                                 << "TypeError";
    QTest::newRow("setStyle out of range") << "new QBrush().setStyle(-5)"
                                           << "RangeError";
    QTest::newRow("setHorizontalPolicy of a flag") << "new QSizePolicy().setHorizontalPolicy(2)"
                                                   << "RangeError";
    QTest::newRow("method on an item") << "QPointF.prototype.x.call(circle)"
                                       << "TypeError";
    QTest::newRow("method on another type") << "QColor.prototype.red.call(new QPointF(1, 2))"
                                            << "TypeError";
    QTest::newRow("method on the prototype") << "QPolygonF.prototype.at(0)"
                                             << "TypeError";
    QTest::newRow("missing argument") << "new QPolygonF().append()"
                                      << "SyntaxError";
}

void tst_ScriptExtensions::badArguments()
{
    QFETCH(QString, script);
    QFETCH(QString, error);

    const QScriptValue result = engine->evaluate(script);
    QVERIFY(engine->hasUncaughtException());
    QCOMPARE(result.property("name").toString(), error);
}

void tst_ScriptExtensions::wrongThisLeavesObjectAlone()
{
    engine->evaluate("QPointF.prototype.setX.call(circle, 5)");
    QVERIFY(engine->hasUncaughtException());
    engine->clearExceptions();

    const QScriptValue result = engine->evaluate("circle.X + circle.Radius");
    QVERIFY2(!engine->hasUncaughtException(), qPrintable(result.toString()));
    QCOMPARE(result.toNumber(), 8.0);
}

void tst_ScriptExtensions::wrongValuesGiveDefaults_data()
{
    QTest::addColumn<QString>("slot");
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QVariant>("expected");

    QTest::newRow("item as QPointF") << "echoPointF"
                                     << "circle" << QVariant(QPointF());
    QTest::newRow("number as QPointF") << "echoPointF"
                                       << "5" << QVariant(QPointF());
    QTest::newRow("plain object as QPointF") << "echoPointF"
                                             << "{x: 1, y: 2}" << QVariant(QPointF());
    QTest::newRow("colour as QPointF") << "echoPointF"
                                       << "new QColor(1, 2, 3)" << QVariant(QPointF());
    QTest::newRow("item as QPoint") << "echoPoint"
                                    << "circle" << QVariant(QPoint());
    QTest::newRow("item as QSizeF") << "echoSizeF"
                                    << "circle" << QVariant(QSizeF());
    QTest::newRow("point as QSizeF") << "echoSizeF"
                                     << "new QPointF(1, 2)" << QVariant(QSizeF());
    QTest::newRow("item as QLineF") << "echoLineF"
                                    << "circle" << QVariant(QLineF());
    QTest::newRow("item as QRectF") << "echoRectF"
                                    << "circle" << QVariant(QRectF());
    QTest::newRow("item as QPolygonF") << "echoPolygonF"
                                       << "circle" << QVariant(QPolygonF());
    QTest::newRow("numbers as QPolygonF") << "echoPolygonF"
                                          << "[1, 2]" << QVariant(QPolygonF());
    QTest::newRow("item as QList<QPolygonF>")
        << "echoPolygons"
        << "circle" << QVariant::fromValue(QList<QPolygonF>());
    QTest::newRow("item in QList<QPolygonF>")
        << "echoPolygons"
        << "[circle]" << QVariant::fromValue(QList<QPolygonF> {QPolygonF()});
    QTest::newRow("item as QColor") << "echoColor"
                                    << "circle" << QVariant(QColor());
    QTest::newRow("unknown name as QColor") << "echoColor"
                                            << "'nonsense'" << QVariant(QColor());
    QTest::newRow("item as QBrush") << "echoBrush"
                                    << "circle" << QVariant(QBrush());
    QTest::newRow("item as QFont") << "echoFont"
                                   << "circle" << QVariant(QFont());
    QTest::newRow("item as QSizePolicy") << "echoSizePolicy"
                                         << "circle" << QVariant(QSizePolicy());
}

void tst_ScriptExtensions::wrongValuesGiveDefaults()
{
    QFETCH(QString, slot);
    QFETCH(QString, argument);
    QFETCH(QVariant, expected);

    const QScriptValue result = engine->evaluate(QString("echo.%1(%2)").arg(slot, argument));
    QVERIFY2(!engine->hasUncaughtException(), qPrintable(result.toString()));
    QCOMPARE(echo->received, expected);
}

QTEST_MAIN(tst_ScriptExtensions)
#include "tst_scriptextensions.moc"
