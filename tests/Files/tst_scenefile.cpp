#include "Application/Application.h"
#include "Files/SceneFile.h"
#include "Files/XMLWriter.h"
#include "Gui/MainWindow.h"
#include "MessageLog.h"
#include "Physics/BalloonItem.h"
#include "Physics/DistanceJoint.h"
#include "Physics/GearItem.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/PolygonItem.h"
#include "Physics/PrismaticJoint.h"
#include "Physics/PulleyJoint.h"
#include "Physics/RectangleItem.h"
#include "Physics/RevoluteJoint.h"
#include "Physics/SpringForce.h"
#include "View/GraphicsView.h"
#include "WindowTestMain.h"

#include <QDir>
#include <QMetaProperty>
#include <QScriptEngine>
#include <QTemporaryDir>
#include <QTest>
#include <QTextCodec>
#include <QUndoStack>
#include <QXmlStreamReader>
#include <quazip5/JlCompress.h>
#include <quazip5/quazip.h>

namespace {
PhysicsWorld* world()
{
    return PhysicsWorld::instance();
}

Application* application()
{
    return Application::instance();
}

GraphicsView* view()
{
    return application()->mainWindow->graphicsView();
}

QString sceneDocument()
{
    QString document;
    XMLWriter(&document).writeScene(world(), view());
    return document;
}

// Sets each value and turns every writable boolean of the object the other way, so that no
// property keeps the value a fresh object has.
void setValues(QObject* object, const QVariantMap& values)
{
    const QMetaObject* metaObject = object->metaObject();
    for (int i = 1; i < metaObject->propertyCount(); ++i) {
        const QMetaProperty property = metaObject->property(i);
        if (property.isWritable() && property.type() == QVariant::Bool)
            property.write(object, !property.read(object).toBool());
    }
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        if (!object->setProperty(value.key().toLatin1().constData(), value.value()))
            qFatal("%s refused %s", metaObject->className(), qPrintable(value.key()));
    }
}

QVariantMap itemValues(const QString& name)
{
    const QString script = QStringLiteral("/* Grüße, 世界 */ var %1Seen = true;").arg(name);
    return {{"Name", name},         {"ZValue", 3.5},         {"Opacity", 0.75},
            {"OnStart", script},    {"OnStop", script},      {"OnUpdate", script},
            {"OnKeyPress", script}, {"OnKeyRelease", script}};
}

QVariantMap bodyValues(const QString& name, double x, double y, const QBrush& brush)
{
    QVariantMap values = itemValues(name);
    values.insert({{"OnContact", QStringLiteral("var contactSeen = true;")},
                   {"BodyType", int(BodyItem::KinematicBody)},
                   {"X", x},
                   {"Y", y},
                   {"Angle", 30.0},
                   {"Density", 2.5},
                   {"Friction", 0.7},
                   {"Restitution", 0.3},
                   {"LinearDamping", 0.2},
                   {"AngularDamping", 0.4},
                   {"AngularVelocity", 1.5},
                   {"LinearVelocityX", 2.0},
                   {"LinearVelocityY", -1.25},
                   {"FilterGroupIndex", -3},
                   {"FilterCategories", QStringLiteral("AC")},
                   {"FilterMasks", QStringLiteral("BD")},
                   {"Brush", brush}});
    return values;
}

QBrush texture()
{
    QImage image(16, 8, QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgba(x * 16, y * 32, 128, 200));
    return QBrush(image);
}

// A scene with every kind of item, every writable value changed, joints on the background.
void buildFullScene()
{
    RectangleItem* rectangle = world()->createRectangle(0, 0, 0, 1, 1);
    QVariantMap values = bodyValues(QStringLiteral("box"), 1, 2, texture());
    values.insert({{"Width", 2.0},
                   {"Height", 1.5},
                   {"Text", QStringLiteral("Grüße 世界")},
                   {"TextColor", QColor(10, 20, 30)},
                   {"TextSize", 24}});
    setValues(rectangle, values);
    CircleItem* circle = world()->createCircle(0, 0, 0, 1);
    values = bodyValues(QStringLiteral("ball"), -3, 4, QColor(Qt::red));
    values.insert(QStringLiteral("Radius"), 0.8);
    setValues(circle, values);
    PolygonItem* polygon
        = world()->createPolygon(QPolygonF({{5, 0}, {7, 0}, {7, 2}, {6, 3}, {5, 2}}));
    setValues(polygon, bodyValues(QStringLiteral("house"), 6, 1, QColor(Qt::green)));
    BalloonItem* balloon = world()->createBalloon(0, 0, 0, 1);
    values = bodyValues(QStringLiteral("balloon"), -6, 6, QColor(Qt::blue));
    values.insert({{"Radius", 0.7}, {"Force", 4.5}});
    setValues(balloon, values);
    GearItem* gear = world()->createGear(0, 0, 0, 1);
    values = bodyValues(QStringLiteral("gear"), 8, 6, QColor(Qt::yellow));
    values.insert({{"PitchCircleRadius", 1.2}, {"ToothSize", 0.3}, {"ToothCountDivisor", 0.5}});
    setValues(gear, values);

    values = itemValues(QStringLiteral("rod"));
    values.insert({{"DampingRatio", 0.5},
                   {"FrequencyHZ", 4.0},
                   {"Length", 3.0},
                   {"Width", 0.25},
                   {"Color", QColor(1, 2, 3)}});
    setValues(world()->createDistanceJoint(rectangle, circle, QPointF(1, 2), QPointF(-3, 4)),
              values);
    values = itemValues(QStringLiteral("axle"));
    values.insert({{"Radius", 0.4},
                   {"LowerLimit", -30.0},
                   {"UpperLimit", 45.0},
                   {"MotorSpeed", 2.0},
                   {"Angle", 10.0}});
    setValues(world()->createRevoluteJoint(gear, nullptr, QPointF(8, 6)), values);
    setValues(
        world()->createPrismaticJoint(polygon, rectangle, QLineF(6, 0, 6, 1), QLineF(1, 2, 1, 3)),
        itemValues(QStringLiteral("slider")));
    setValues(world()->createPulleyJoint(circle, balloon,
                                         QPolygonF({{-3, 4}, {-3, 9}, {-6, 9}, {-6, 6}})),
              itemValues(QStringLiteral("pulley")));
    values = itemValues(QStringLiteral("spring"));
    values.insert({{"DesiredDistance", 2.5}, {"Color", QColor(4, 5, 6)}});
    setValues(world()->createSpringForce(rectangle, gear, QPointF(1.5, 2), QPointF(8, 6), 200, 3),
              values);

    setValues(world(),
              {{"GravityX", 1.0},
               {"GravityY", -5.0},
               {"StepFrequency", 30},
               {"VelocityIterations", 5},
               {"PositionIterations", 4},
               {"Seconds", 12.5}});
    world()->setRender(false);
    setValues(view(),
              {{"Background", QBrush(QColor(200, 210, 220))},
               {"BodyWithCamera", QStringLiteral("ball")},
               {"Scale", 33.0}});
}

// Compares two documents line by line, so that a failure names the first differing element.
void compareDocuments(const QString& actual, const QString& expected)
{
    const QStringList actualLines = actual.split(QLatin1Char('\n'));
    const QStringList expectedLines = expected.split(QLatin1Char('\n'));
    for (int i = 0; i < qMin(actualLines.size(), expectedLines.size()); ++i)
        QCOMPARE(actualLines.at(i), expectedLines.at(i));
    QCOMPARE(actualLines.size(), expectedLines.size());
}

QString wrapped(const QString& items)
{
    return QStringLiteral("<?xml version=\"1.0\"?>\n<Scene Version=\"%1\">\n"
                          "<PhysicsWorld InstanceCounter=\"40\">\n%2\n</PhysicsWorld>\n</Scene>\n")
        .arg(QCoreApplication::applicationVersion(), items);
}

// A scene archive of these members, written as the archive tool writes them.
bool writeArchive(const QString& archive, const QMap<QString, QByteArray>& members)
{
    QTemporaryDir staging;
    QStringList files;
    for (auto member = members.cbegin(); member != members.cend(); ++member) {
        QFile file(staging.filePath(member.key()));
        if (!file.open(QIODevice::WriteOnly) || file.write(member.value()) != member->size())
            return false;
        files << file.fileName();
    }
    return JlCompress::compressFiles(archive, files);
}

QStringList temporaryLeftovers()
{
    return QDir(Application::temporaryDirectory()).entryList(QDir::Files);
}

quint32 crc32(const QByteArray& bytes)
{
    quint32 crc = 0xFFFFFFFFu;
    for (char byte : bytes) {
        crc ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (0xEDB88320u & (0u - (crc & 1u)));
    }
    return ~crc;
}

QByteArray pngChunk(const QByteArray& type, const QByteArray& data)
{
    QByteArray chunk;
    QDataStream stream(&chunk, QIODevice::WriteOnly);
    stream << quint32(data.size());
    chunk += type + data;
    QDataStream crc(&chunk, QIODevice::Append);
    crc << crc32(type + data);
    return chunk;
}

// A zlib stream of `count` zero bytes in a few megabytes: one literal, then copies of 258
// bytes from one byte back, in deflate's fixed codes.
QByteArray zlibZeros(qint64 count)
{
    QByteArray out("\x78\x01", 2);
    quint32 bits = 0;
    int used = 0;
    const auto put = [&](quint32 value, int length, bool code) {
        for (int i = 0; i < length; ++i) {
            bits |= ((code ? value >> (length - 1 - i) : value >> i) & 1u) << used;
            if (++used == 8) {
                out.append(char(bits));
                bits = 0;
                used = 0;
            }
        }
    };
    put(1, 1, false); // last block
    put(1, 2, false); // fixed codes
    const quint32 zero = 0x30;
    put(zero, 8, true);
    qint64 left = count - 1;
    for (; left >= 258; left -= 258) {
        put(0xC5, 8, true); // length 258
        put(0, 5, true); // distance 1
    }
    for (; left > 0; --left)
        put(zero, 8, true);
    put(0, 7, true); // end of block
    if (used)
        out.append(char(bits));
    QDataStream checksum(&out, QIODevice::Append);
    checksum << quint32(((count % 65521) << 16) | 1);
    return out;
}

// A valid, transparent PNG picture of the given size that takes a few megabytes.
QByteArray transparentPng(quint32 width, quint32 height)
{
    QByteArray header;
    QDataStream stream(&header, QIODevice::WriteOnly);
    stream << width << height << quint8(8) << quint8(6) << quint8(0) << quint8(0) << quint8(0);
    return QByteArray("\x89PNG\r\n\x1a\n", 8) + pngChunk("IHDR", header)
        + pngChunk("IDAT", zlibZeros(qint64(height) * (1 + 4 * width)))
        + pngChunk("IEND", QByteArray());
}

QString hexOf(const QVariant& value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_5_15);
    stream << value;
    return QString::fromLatin1(bytes.toHex());
}
// What a test can compare of a property: a brush by its style, since new bodies have a
// colour of their own.
QString valueOf(QObject* object, const QString& property)
{
    const QVariant value = object->property(property.toLatin1().constData());
    if (value.userType() == QMetaType::QBrush)
        return QString::number(value.value<QBrush>().style());
    return value.toString() + hexOf(value);
}

} // namespace

// Scene files: the document written from the property tables, read back through the
// factories, the archive around it, and what a broken or hostile file may and may not do.
class TestSceneFile : public QObject
{
    Q_OBJECT

    QTemporaryDir directory;

    QString path(const QString& name) const { return directory.filePath(name); }

private slots:
    void initTestCase()
    {
        // A system without a UTF-8 locale: files must not depend on it.
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO 8859-1"));
        QVERIFY(directory.isValid());
    }

    void init() { application()->newFile(false); }

    void everyValueSurvivesSaveAndLoad()
    {
        buildFullScene();
        const QString saved = sceneDocument();
        QVERIFY(application()->save(path(QStringLiteral("full.scene"))));
        application()->newFile(true);
        QVERIFY(application()->load(path(QStringLiteral("full.scene"))));
        compareDocuments(sceneDocument(), saved);
        QCOMPARE(world()->items().size(), 10);
        QVERIFY(!world()->running());
        QVERIFY(temporaryLeftovers().isEmpty());
    }

    void documentFollowsPropertyTables_data()
    {
        QTest::addColumn<QString>("element");
        QTest::addColumn<QString>("attributes");
        const QString item = "Name ZValue Opacity OnStart OnStop OnUpdate OnKeyPress OnKeyRelease ";
        const QString body = item
            + "OnContact BodyType Bullet AllowSleeping FixedRotation ShowLocalCenter X Y Angle "
              "Density Friction Restitution LinearDamping AngularDamping Mass AngularVelocity "
              "LinearVelocityX LinearVelocityY FilterGroupIndex FilterCategories FilterMasks "
              "Shapes Brush ";
        const QString joint = item + "ReactionTorque BodyItem1Name BodyItem2Name Anchor1 Anchor2 ";
        QTest::newRow("Scene") << "Scene"
                               << "Version";
        QTest::newRow("PhysicsWorld")
            << "PhysicsWorld"
            << "InstanceCounter GravityX GravityY StepFrequency VelocityIterations "
               "PositionIterations WarmStarting ContinuousPhysics Seconds Render BodyCount "
               "JointCount";
        QTest::newRow("GraphicsView") << "GraphicsView"
                                      << "Background BodyWithCamera Scale VisibleSceneRect";
        QTest::newRow("RectangleItem")
            << "RectangleItem" << body + "Width Height Text TextColor TextSize";
        QTest::newRow("BalloonItem") << "BalloonItem" << body + "Radius ShowLine Force";
        QTest::newRow("PolygonItem") << "PolygonItem" << body + "ShowWireframe GeometryString";
        QTest::newRow("GearItem") << "GearItem"
                                  << body
                + "ShowPitchCircle PitchCircleRadius ToothSize ToothCountDivisor";
        QTest::newRow("DistanceJoint")
            << "DistanceJoint"
            << joint + "CollideConnected DampingRatio FrequencyHZ Length Width Color";
        QTest::newRow("RevoluteJoint") << "RevoluteJoint"
                                       << joint
                + "Radius LimitEnabled LowerLimit UpperLimit MotorEnabled MotorSpeed Angle "
                  "MotorTorque";
        QTest::newRow("PrismaticJoint")
            << "PrismaticJoint"
            << joint + "BodyItem1AnchorX BodyItem1AnchorY BodyItem2AnchorX BodyItem2AnchorY";
        QTest::newRow("PulleyJoint")
            << "PulleyJoint"
            << joint + "GroundAnchorA_X GroundAnchorA_Y GroundAnchorB_X GroundAnchorB_Y";
        QTest::newRow("SpringForce")
            << "SpringForce"
            << item + "BodyItem1Name BodyItem2Name Anchor1 Anchor2 k Damping DesiredDistance Color";
    }

    void documentFollowsPropertyTables()
    {
        QFETCH(QString, element);
        QFETCH(QString, attributes);
        buildFullScene();
        QXmlStreamReader reader(sceneDocument());
        QStringList found;
        while (!reader.atEnd() && found.isEmpty()) {
            if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == element) {
                for (const QXmlStreamAttribute& attribute : reader.attributes())
                    found << attribute.name().toString();
            }
        }
        QCOMPARE(found.join(QLatin1Char(' ')), attributes.simplified());
    }

    void valuesHaveTheirTextForms()
    {
        RectangleItem* box = world()->createRectangle(1.23456789, 0, 0, 1, 1);
        box->setBodyType(BodyItem::StaticBody);
        box->setBrush(QColor(Qt::red));
        world()->createRevoluteJoint(box, nullptr, QPointF(1.23456789, 0));
        QXmlStreamReader reader(sceneDocument());
        QMap<QString, QString> values;
        while (!reader.atEnd()) {
            if (reader.readNext() == QXmlStreamReader::StartElement) {
                for (const QXmlStreamAttribute& attribute : reader.attributes())
                    values.insert(reader.name() + QLatin1Char('.') + attribute.name(),
                                  attribute.value().toString());
            }
        }
        QCOMPARE(values.value("RevoluteJoint.Anchor1"), QStringLiteral("1.23457,0"));
        QCOMPARE(values.value("RectangleItem.X"), QString::number(double(1.23456789f), 'g', 17));
        QCOMPARE(values.value("RectangleItem.BodyType"), QStringLiteral("0"));
        QCOMPARE(values.value("RectangleItem.Brush"), hexOf(QBrush(Qt::red)));
        QVERIFY(values.value("RectangleItem.Brush").startsWith(QLatin1String("0000004200")));
        QCOMPARE(values.value("RevoluteJoint.BodyItem2Name"), QString());
    }

    void inactiveItemsAreNotWritten()
    {
        RectangleItem* kept = world()->createRectangle(0, 0, 0, 1, 1);
        RectangleItem* waiting = world()->createRectangle(3, 0, 0, 1, 1);
        world()->createDistanceJoint(kept, waiting, QPointF(0, 0), QPointF(3, 0))->setActive(false);
        waiting->setActive(false);
        const QString document = sceneDocument();
        QVERIFY(document.contains(kept->name()));
        QVERIFY(!document.contains(waiting->name()));
        QVERIFY(!document.contains(QLatin1String("DistanceJoint")));
    }

    void readingDocuments_data()
    {
        QTest::addColumn<QString>("document");
        QTest::addColumn<QStringList>("names"); // of the items made, in order
        QTest::addColumn<QString>("firstBodyOfJoint"); // empty for no joint
        QTest::addColumn<double>("firstBodyX");
        QTest::addColumn<int>("counter");

        const QString box
            = "<RectangleItem Name=\"%1\" X=\"%2\" Y=\"0\" Width=\"1\" Height=\"1\"/>";
        const QString joint = "<DistanceJoint Name=\"rod\" BodyItem1Name=\"%1\" "
                              "BodyItem2Name=\"%2\" Anchor1=\"0,0\" Anchor2=\"5,0\"/>";
        const QString bare = QStringLiteral("<Scene Version=\"%1\">%2</Scene>")
                                 .arg(QCoreApplication::applicationVersion(), box.arg("a").arg(0));
        QTest::newRow("empty world")
            << wrapped(QString()) << QStringList() << QString() << 0.0 << 40;
        // Without a counter in the file, new items go on from those read.
        QTest::newRow("no world element") << bare << QStringList {"a"} << QString() << 0.0 << 1;
        QTest::newRow("later duplicate name wins")
            << wrapped(box.arg("a").arg(0) + box.arg("a").arg(5) + box.arg("b").arg(9)
                       + joint.arg("a", "b"))
            << QStringList {"a", "item42", "b", "rod"} << "item42" << 5.0 << 40;
        QTest::newRow("absent body")
            << wrapped(box.arg("a").arg(0) + joint.arg("a", "ghost") + box.arg("b").arg(9))
            << QStringList {"a", "b"} << QString() << 0.0 << 40;
        QTest::newRow("empty first name") << wrapped(box.arg("a").arg(0) + joint.arg("", "a"))
                                          << QStringList {"a"} << QString() << 0.0 << 40;
        QTest::newRow("empty second name is the background")
            << wrapped(box.arg("a").arg(0) + joint.arg("a", "")) << QStringList {"a", "rod"} << "a"
            << 0.0 << 40;
        QTest::newRow("a name of a joint is no body")
            << wrapped(box.arg("a").arg(0) + joint.arg("a", "") + joint.arg("a", "rod"))
            << QStringList {"a", "rod"} << "a" << 0.0 << 40;
        QTest::newRow("truncated") << wrapped(box.arg("a").arg(0) + box.arg("b").arg(1)).left(180)
                                   << QStringList {"a"} << QString() << 0.0 << 40;
        QTest::newRow("unknown elements and attributes")
            << wrapped("<Tracer Name=\"t\"/><RopeJoint/><WindForce/>"
                       "<RectangleItem Name=\"a\" Colour=\"red\" Mass=\"99\" Width=\"1\" "
                       "Height=\"1\"/>")
            << QStringList {"a"} << QString() << 0.0 << 40;
    }

    void readingDocuments()
    {
        QFETCH(QString, document);
        QFETCH(QStringList, names);
        QFETCH(QString, firstBodyOfJoint);
        QFETCH(double, firstBodyX);
        QFETCH(int, counter);
        const QString archive = path(QStringLiteral("read.scene"));
        QVERIFY(writeArchive(archive, {{"scene.xml", document.toUtf8()}}));
        MessageLog log;
        QVERIFY(application()->load(archive));

        QStringList made;
        for (PhysicsItem* item : world()->items())
            made << item->name();
        QCOMPARE(made, names);
        const QList<JointItem*> joints = world()->jointItems();
        QCOMPARE(joints.isEmpty() ? QString() : joints.first()->bodyItem1Name(), firstBodyOfJoint);
        if (!firstBodyOfJoint.isEmpty())
            QCOMPARE(joints.first()->bodyItem1()->positionX(), firstBodyX);
        QCOMPARE(world()->physicsItemInstanceCounter(), counter);
        QVERIFY(log.lines().filter(QStringLiteral("another version")).isEmpty());
    }

    void otherVersionLoadsAfterOneWarning()
    {
        const QString archive = path(QStringLiteral("old.scene"));
        QVERIFY(writeArchive(archive,
                             {{"scene.xml",
                               "<Scene Version=\"0.9\"><PhysicsWorld "
                               "InstanceCounter=\"1\"><CircleItem Name=\"c\" "
                               "Radius=\"1\"/></PhysicsWorld></Scene>"}}));
        MessageLog log;
        QVERIFY(application()->load(archive));
        QCOMPARE(world()->bodyItems().size(), 1);
        QCOMPARE(
            log.lines().filter(QStringLiteral("another version")),
            QStringList(QStringLiteral(
                            "Trying to load a scene which was created with another version of the "
                            "application. (Scene version: 0.9 Application version: %1)")
                            .arg(QCoreApplication::applicationVersion())));
    }

    // A load that fails leaves the scene, its history and its name as they were.
    void failedLoadsChangeNothing_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content"); // empty: no file at all
        QTest::newRow("missing") << "missing.scene" << QByteArray();
        QTest::newRow("not a zip") << "text.scene" << QByteArray("<Scene/>");
        QTest::newRow("directory") << "." << QByteArray();
        QTest::newRow("no document") << "empty.scene" << QByteArray("thumbnail only");
    }

    void failedLoadsChangeNothing()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        const QString target = path(name);
        if (name == QLatin1String("empty.scene")) {
            QVERIFY(writeArchive(target, {{"thumbnail.png", content}}));
        } else if (!content.isEmpty()) {
            QFile file(target);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(content);
        }
        world()->createRectangle(0, 0, 0, 1, 1);
        application()->undoStack->push(new QUndoCommand(QStringLiteral("kept")));
        application()->fileName = QStringLiteral("current.scene");
        QVERIFY(!application()->load(target));
        QCOMPARE(world()->items().size(), 1);
        QCOMPARE(application()->undoStack->count(), 1);
        QCOMPARE(application()->fileName, QStringLiteral("current.scene"));
        QVERIFY(temporaryLeftovers().isEmpty());
    }

    void archiveHoldsDocumentAndThumbnail()
    {
        view()->resize(700, 300); // not the thumbnail's aspect ratio
        world()->createCircle(0, 0, 0, 2);
        application()->undoStack->push(new QUndoCommand(QStringLiteral("drawn")));
        const QString archive = path(QStringLiteral("plain"));
        QVERIFY(application()->save(archive));
        QCOMPARE(application()->fileName, archive);
        QVERIFY(QFile::exists(archive)); // no extension added
        QCOMPARE(JlCompress::getFileList(archive),
                 QStringList({QStringLiteral("scene.xml"), QStringLiteral("thumbnail.png")}));
        const QImage thumbnail = SceneFile(archive).thumbnail();
        QCOMPARE(thumbnail.size(), QSize(160, 120));
        QVERIFY(temporaryLeftovers().isEmpty());

        world()->start();
        QVERIFY(application()->load(archive));
        QVERIFY(!world()->running());
        QCOMPARE(application()->undoStack->count(), 0);
        QCOMPARE(world()->bodyItems().size(), 1);

        const QString bare = path(QStringLiteral("bare.scene"));
        QVERIFY(writeArchive(bare, {{"scene.xml", "<Scene/>"}}));
        QVERIFY(SceneFile(bare).thumbnail().isNull());
        QVERIFY(application()->load(bare));
    }

    // A save that cannot finish keeps the file that was there, byte for byte.
    void failedSavesKeepTheOldFile_data()
    {
        QTest::addColumn<QString>("target");
        QTest::newRow("read-only folder") << "locked/kept.scene";
        QTest::newRow("target is a folder") << "folder.scene";
        QTest::newRow("folder that is no folder") << "kept.scene/inside.scene";
        // Not /proc, whose entries come and go with the processes of the machine.
        QTest::newRow("unwritable system folder") << "/sys/brivane.scene";
    }

    void failedSavesKeepTheOldFile()
    {
        QFETCH(QString, target);
        const QString kept = path(QStringLiteral("kept.scene"));
        QFile::remove(kept);
        QVERIFY(writeArchive(kept, {{"scene.xml", "<Scene/>"}}));
        QDir(directory.path()).mkpath(QStringLiteral("folder.scene"));
        QDir(directory.path()).mkpath(QStringLiteral("locked"));
        const QString lockedFile = path(QStringLiteral("locked/kept.scene"));
        QFile::copy(kept, lockedFile);
        QFile::setPermissions(path(QStringLiteral("locked")), QFile::ReadOwner | QFile::ExeOwner);
        QFile probe(path(QStringLiteral("locked/probe")));
        if (target.startsWith(QLatin1String("locked")) && probe.open(QIODevice::WriteOnly)) {
            probe.remove();
            QFile::setPermissions(path(QStringLiteral("locked")),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
            QSKIP("This user writes into read-only folders.");
        }
        QFile old(kept);
        QVERIFY(old.open(QIODevice::ReadOnly));
        const QByteArray before = old.readAll();
        const QString full = target.startsWith(QLatin1Char('/')) ? target : path(target);
        const QStringList entries = QDir(QFileInfo(full).path()).entryList(QDir::AllEntries);

        application()->fileName.clear();
        world()->createRectangle(0, 0, 0, 1, 1);
        QVERIFY(!application()->save(full));
        QVERIFY(application()->fileName.isEmpty());
        QCOMPARE(QDir(QFileInfo(full).path()).entryList(QDir::AllEntries), entries);
        QFile after(target == QLatin1String("locked/kept.scene") ? lockedFile : kept);
        QVERIFY(after.open(QIODevice::ReadOnly));
        QCOMPARE(after.readAll(), before);
        QVERIFY(temporaryLeftovers().isEmpty());
        QFile::setPermissions(path(QStringLiteral("locked")),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void savingReplacesTheOldFile()
    {
        const QString target = path(QStringLiteral("replaced.scene"));
        world()->createRectangle(0, 0, 0, 1, 1);
        QVERIFY(application()->save(target));
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
        world()->createRectangle(2, 0, 0, 1, 1);
        QVERIFY(application()->save(target));
        const QFile::Permissions unixBits(0x7777);
        QCOMPARE(QFileInfo(target).permissions() & unixBits & ~QFile::Permissions(0x0700),
                 QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
        QVERIFY(application()->load(target));
        QCOMPARE(world()->bodyItems().size(), 2);
        QCOMPARE(QDir(directory.path()).entryList({QStringLiteral("replaced*")}),
                 QStringList(QStringLiteral("replaced.scene")));
    }

    void loadingRunsNoScript()
    {
        RectangleItem* box = world()->createRectangle(0, 0, 0, 1, 1);
        const QString script = QStringLiteral("loadRanScript = true;");
        setValues(box, {{"OnStart", script}, {"OnUpdate", script}, {"OnContact", script}});
        QVERIFY(application()->save(path(QStringLiteral("scripted.scene"))));
        QVERIFY(application()->load(path(QStringLiteral("scripted.scene"))));
        QCOMPARE(world()->bodyItems().first()->onUpdate(), script);
        QVERIFY(!application()->scriptEngine->globalObject().property("loadRanScript").isValid());
    }

    // Values that would take the program's memory are refused one by one; the rest loads.
    void hostileValuesAreRefused_data()
    {
        QTest::addColumn<QString>("attribute");
        QTest::addColumn<QString>("value");
        QImage tiny(2, 2, QImage::Format_ARGB32);
        tiny.fill(Qt::red);
        QString huge = hexOf(QBrush(tiny));
        QByteArray png = QByteArray::fromHex(huge.toLatin1());
        const int start = png.indexOf("\x89PNG");
        const int end = png.indexOf("IEND") + 8;
        png = png.left(start) + transparentPng(9000, 9000) + png.mid(end);
        QTest::newRow("texture of 81 million pixels") << "Brush" << QString(png.toHex());
        QLinearGradient gradient(0, 0, 1, 1);
        gradient.setColorAt(0, Qt::red);
        gradient.setColorAt(1, Qt::blue);
        QByteArray stops = QByteArray::fromHex(hexOf(QBrush(gradient)).toLatin1());
        const int count = 5 + 1 + 11 + 16;
        QCOMPARE(stops.mid(count, 4), QByteArray::fromHex("00000002"));
        stops.replace(count, 4, QByteArray::fromHex("ffffffff"));
        QTest::newRow("gradient of four billion stops") << "Brush" << QString(stops.toHex());
        QTest::newRow("colour for a brush") << "Brush" << hexOf(QColor(Qt::red));
        QTest::newRow("broken stream") << "Brush" << hexOf(QBrush(Qt::red)).left(20);
        QTest::newRow("not hexadecimal") << "TextColor"
                                         << "red";
        QTest::newRow("not a number") << "Friction"
                                      << "rough";
        QTest::newRow("infinite") << "X"
                                  << "inf";
        QTest::newRow("value of 64 MiB")
            << "Text" << QString(64 * 1024 * 1024 + 1, QLatin1Char('x'));
    }

    void hostileValuesAreRefused()
    {
        QFETCH(QString, attribute);
        QFETCH(QString, value);
        RectangleItem* reference = world()->createRectangle(0, 0, 0, 2, 1);
        const QString before = valueOf(reference, attribute);
        QMap<QString, QString> attributes {
            {"Name", "a"}, {"Brush", hexOf(reference->brush())}, {"Width", "2"}, {"Height", "1"}};
        attributes.insert(attribute, value);
        QString element = QStringLiteral("<RectangleItem");
        for (auto each = attributes.cbegin(); each != attributes.cend(); ++each)
            element += QStringLiteral(" %1=\"%2\"").arg(each.key(), each.value());
        const QString document = wrapped(element + "/><CircleItem Name=\"after\" Radius=\"1\"/>");
        const QString archive = path(QStringLiteral("hostile.scene"));
        QVERIFY(writeArchive(archive, {{"scene.xml", document.toUtf8()}}));
        QVERIFY(application()->load(archive));
        QCOMPARE(world()->bodyItems().size(), 2);
        RectangleItem* loaded = qobject_cast<RectangleItem*>(world()->bodyItems().first());
        QVERIFY(loaded);
        QCOMPARE(valueOf(loaded, attribute), before);
    }

    void deepNestingIsSkipped()
    {
        QString nested = QString::fromLatin1("<a>").repeated(100000)
            + QStringLiteral("<CircleItem Name=\"deep\" Radius=\"1\"/>")
            + QString::fromLatin1("</a>").repeated(100000);
        const QString document = wrapped(nested + "<CircleItem Name=\"shallow\" Radius=\"1\"/>");
        const QString archive = path(QStringLiteral("nested.scene"));
        QVERIFY(writeArchive(archive, {{"scene.xml", document.toUtf8()}}));
        QVERIFY(application()->load(archive));
        QCOMPARE(world()->bodyItems().size(), 1);
        QCOMPARE(world()->bodyItems().first()->name(), QStringLiteral("shallow"));
    }
};

BRIVANE_WINDOW_TEST_MAIN(TestSceneFile, true)
#include "tst_scenefile.moc"
