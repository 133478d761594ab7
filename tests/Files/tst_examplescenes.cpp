#include "ApplicationTestMain.h"
#include "Files/SceneFile.h"
#include "Physics/BodyItem.h"
#include "Physics/PhysicsWorld.h"

#include <QDir>
#include <QScriptEngine>
#include <QSet>
#include <QTemporaryDir>
#include <cmath>

namespace {
QString dataPath(const QString& relative)
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/data/") + relative;
}

const QStringList sceneNames
    = {"car", "gear-train", "newtons-cradle", "pulley-and-lift", "spring-bridge"};
} // namespace

// The scenes a fresh install offers: each loads, shows itself in its thumbnail and does on play
// what it is there to show; the script that makes them still makes them.
class TestExampleScenes : public QObject
{
    Q_OBJECT

    static PhysicsWorld* world() { return PhysicsWorld::instance(); }
    static QScriptValue global(const char* name)
    {
        return Application::instance()->scriptEngine->globalObject().property(name);
    }

private slots:
    void shippedScenesPlay_data()
    {
        QTest::addColumn<QString>("scene");
        QTest::addColumn<QString>("body");
        QTest::addColumn<QString>("property"); // watched for five seconds
        QTest::addColumn<double>("lowest"); // of its farthest change
        QTest::addColumn<double>("highest");
        QTest::newRow("cradle passes the swing on") << "newtons-cradle"
                                                    << "lastBall"
                                                    << "X" << 4.0 << 10.0;
        QTest::newRow("car drives") << "car"
                                    << "carBody"
                                    << "X" << 5.0 << 30.0;
        QTest::newRow("lift rises") << "pulley-and-lift"
                                    << "liftPlatform"
                                    << "Y" << 5.0 << 6.5;
        QTest::newRow("bridge carries its load") << "spring-bridge"
                                                 << "blueCrate"
                                                 << "Y" << -3.5 << -1.5;
        QTest::newRow("gears turn each other") << "gear-train"
                                               << "lastGear"
                                               << "Angle" << 100.0 << 400.0;
    }

    void shippedScenesPlay()
    {
        QFETCH(QString, scene);
        QFETCH(QString, body);
        QFETCH(QString, property);
        QFETCH(double, lowest);
        QFETCH(double, highest);
        const QString path = dataPath(QStringLiteral("saves/%1.scene").arg(scene));
        QVERIFY2(Application::instance()->load(path), qPrintable(path));
        PhysicsItem* watched = world()->physicsItemFromName(body);
        QVERIFY(watched);
        const double before = watched->property(property.toLatin1()).toDouble();
        double change = 0.0; // the farthest from where it began
        for (int step = 0; step < 300; ++step) {
            world()->step();
            const double now = watched->property(property.toLatin1()).toDouble() - before;
            if (std::abs(now) > std::abs(change))
                change = now;
        }
        QVERIFY2(change >= lowest && change <= highest, qPrintable(QString::number(change)));
        for (BodyItem* item : world()->bodyItems())
            QVERIFY(std::isfinite(item->positionX()) && std::isfinite(item->positionY()));

        const QImage thumbnail = SceneFile(path).thumbnail();
        QCOMPARE(thumbnail.size(), SceneFile::thumbnailSize);
        QSet<QRgb> colours;
        for (int y = 0; y < thumbnail.height(); y += 4)
            for (int x = 0; x < thumbnail.width(); x += 4)
                colours.insert(thumbnail.pixel(x, y));
        QVERIFY(colours.size() > 3);
    }

    void scriptMakesTheScenes()
    {
        const QString script = dataPath(QStringLiteral("scripts/ExampleScenes.script"));
        // Without a directory it stops before it touches the open scene.
        Application::instance()->newFile(false);
        world()->createRectangle(0, 0, 0, 1, 1);
        QVERIFY(!Application::instance()->evaluateScript(script));
        QCOMPARE(world()->bodyItems().size(), 1);

        QTemporaryDir directory;
        Application::instance()->scriptEngine->globalObject().setProperty(
            QStringLiteral("exampleScenesDirectory"), directory.path());
        QVERIFY(Application::instance()->evaluateScript(script));
        QStringList expected;
        for (const QString& name : sceneNames)
            expected << name + QStringLiteral(".scene");
        QCOMPARE(QDir(directory.path()).entryList(QDir::Files, QDir::Name), expected);
        QVERIFY(Application::instance()->load(directory.filePath(expected.first())));
        QVERIFY(world()->bodyItems().size() >= 5);
        QVERIFY(global("buildGearTrain").isFunction());
    }
};

BRIVANE_APPLICATION_TEST_MAIN(TestExampleScenes)
#include "tst_examplescenes.moc"
