#include "Application/Settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTest>

// Settings read every key once and write at each setter; these tests work on the ini file
// beside the test executable and remove it around each case.
class TestSettings : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QCoreApplication::setApplicationName(QStringLiteral("Brivane"));
        QFile::remove(Settings::settingsFileName());
    }
    void cleanup()
    {
        Settings::destroy();
        QFile::remove(Settings::settingsFileName());
    }

    void defaultsWithoutFile()
    {
        Settings* settings = Settings::instance();
        QCOMPARE(settings->useOpenGL, true);
        QCOMPARE(settings->timerInterval, 16);
        QCOMPARE(settings->angularDampingDefault, 0.01);
        QCOMPARE(settings->frictionDefault, 0.3);
        QCOMPARE(settings->restitutionDefault, 0.4);
        QCOMPARE(settings->isStaticDefault, false);
        QVERIFY(settings->mainWindowState.isEmpty());
        QCOMPARE(settings->quickLoadIconSize, QSize(80, 60));
        QCOMPARE(settings->language, int(QLocale::English));
        QCOMPARE(settings->gridSize, 0.5);
        QCOMPARE(settings->maxObjectSnapDistance, 0.2);
        QCOMPARE(settings->explodeMethod, 3);
        QCOMPARE(settings->chainColor, QStringLiteral("#3333dd"));
        QCOMPARE(settings->ropeColor, QStringLiteral("#ffa500"));
        QCOMPARE(settings->text, QStringLiteral("Brivane"));
        QCOMPARE(settings->fontFamily, QStringLiteral("Arial"));
        QCOMPARE(settings->gearToothCountDivisor, 0.6);
        QCOMPARE(settings->springForceK, 400.0);
        QCOMPARE(settings->springForceDamping, 5.0);
        QCOMPARE(settings->springForceColor, QStringLiteral("#aaaaaa"));
        // Paths follow the executable's directory, not the working directory.
        const QString data = QCoreApplication::applicationDirPath() + QDir::separator()
            + QStringLiteral("data") + QDir::separator();
        QCOMPARE(settings->quickLoadDirectory, data + QStringLiteral("saves"));
        QCOMPARE(settings->imageFilename,
                 data + QStringLiteral("images") + QDir::separator() + QStringLiteral("tux.png"));

        settings->sync();
        QVERIFY2(!QFile::exists(Settings::settingsFileName()), "reading must write nothing");
    }

    void setterWritesItsKey_data()
    {
        QTest::addColumn<QString>("setter");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("key");
        QTest::newRow("timer") << "setTimerInterval" << QVariant(5) << "Physics/TimerInterval";
        QTest::newRow("website user type")
            << "setWebsiteUserType" << QVariant(2) << "Website/UserType";
        QTest::newRow("text") << "setText" << QVariant(QStringLiteral("Hi")) << "Tools/Text/Text";
        QTest::newRow("gear joint")
            << "setGearCreateRevoluteJoint" << QVariant(false) << "Tools/Gear/CreateRevoluteJoint";
        QTest::newRow("icon size")
            << "setQuickLoadIconSize" << QVariant(QSize(40, 30)) << "General/QuickLoadIconSize";
        QTest::newRow("spring damping")
            << "setSpringForceDamping" << QVariant(7.5) << "Tools/SpringForce/Damping";
    }
    void setterWritesItsKey()
    {
        QFETCH(QString, setter);
        QFETCH(QVariant, value);
        QFETCH(QString, key);
        Settings* settings = Settings::instance();
        const QByteArray signature = setter.toLatin1() + "(" + value.typeName() + ")";
        const int index = settings->metaObject()->indexOfSlot(signature.constData());
        QVERIFY2(index >= 0, signature.constData());
        QGenericArgument argument(value.typeName(), value.constData());
        QVERIFY(settings->metaObject()->method(index).invoke(settings, argument));
        Settings::destroy();

        QSettings file(Settings::settingsFileName(), QSettings::IniFormat);
        QCOMPARE(file.value(key), value);
    }

    void unchangedValueIsStillWritten()
    {
        Settings* settings = Settings::instance();
        settings->setTimerInterval(settings->timerInterval);
        settings->sync();
        QSettings file(Settings::settingsFileName(), QSettings::IniFormat);
        QVERIFY(file.contains(QStringLiteral("Physics/TimerInterval")));
        QCOMPARE(file.allKeys().size(), 1);
    }

    void storedValuesAreReadBack()
    {
        Settings::instance()->setGridSize(1.25);
        Settings::instance()->setMainWindowState(QByteArray("\x01\x02\x00\x03", 4));
        Settings::instance()->setChainColor(QStringLiteral("#123456"));
        Settings::destroy();
        Settings* settings = Settings::instance();
        QCOMPARE(settings->gridSize, 1.25);
        QCOMPARE(settings->mainWindowState, QByteArray("\x01\x02\x00\x03", 4));
        QCOMPARE(settings->chainColor, QStringLiteral("#123456"));
    }

    void malformedValueGivesConversionResult()
    {
        {
            QSettings file(Settings::settingsFileName(), QSettings::IniFormat);
            file.setValue(QStringLiteral("Physics/TimerInterval"), QStringLiteral("fast"));
            file.setValue(QStringLiteral("General/GridSize"), QStringLiteral("wide"));
        }
        Settings* settings = Settings::instance();
        QCOMPARE(settings->timerInterval, 0);
        QCOMPARE(settings->gridSize, 0.0);
        QCOMPARE(settings->frictionDefault, 0.3);
    }

    void constants()
    {
        QCOMPARE(ThumbnailSize, QSize(160, 120));
        QCOMPARE(TextureMatrix, QMatrix(0.02, 0, 0, -0.02, 0, 0));
        QVERIFY(WebsiteUrl.isValid() && WebsiteUrl.path().isEmpty());
        QVERIFY(RepositoryUrl.isValid());
        QVERIFY(QByteArray::fromBase64(ContactAddress.toLatin1()).contains('@'));
    }
};

QTEST_GUILESS_MAIN(TestSettings)
#include "tst_settings.moc"
