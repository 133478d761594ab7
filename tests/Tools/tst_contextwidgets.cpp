#include "ApplicationTestMain.h"
#include "Tools/BrushContextWidget.h"
#include "Tools/CameraContextWidget.h"
#include "Tools/ChainContextWidget.h"
#include "Tools/EraseContextWidget.h"
#include "Tools/ExplodeContextWidget.h"
#include "Tools/GearContextWidget.h"
#include "Tools/ImageContextWidget.h"
#include "Tools/RevoluteJointContextWidget.h"
#include "Tools/RopeContextWidget.h"
#include "Tools/SpringForceContextWidget.h"
#include "Tools/TextContextWidget.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QSignalSpy>
#include <QTimer>
#include <functional>
#include <memory>

namespace {
using Strip = std::unique_ptr<ActionContextWidget>;

Strip makeStrip(const QString& name)
{
    const QHash<QString, std::function<ActionContextWidget*()>> factories {
        {"explode", [] { return new ExplodeContextWidget(); }},
        {"erase", [] { return new EraseContextWidget(); }},
        {"camera", [] { return new CameraContextWidget(); }},
        {"brush", [] { return new BrushContextWidget(); }},
        {"chain", [] { return new ChainContextWidget(); }},
        {"rope", [] { return new RopeContextWidget(); }},
        {"spring", [] { return new SpringForceContextWidget(); }},
        {"revolute", [] { return new RevoluteJointContextWidget(); }},
        {"gear", [] { return new GearContextWidget(); }},
        {"text", [] { return new TextContextWidget(); }},
        {"image", [] { return new ImageContextWidget(); }},
    };
    return Strip(factories.value(name)());
}

// The `index`th control of a kind in the strip, counted from the left.
template<typename Control> Control* control(QWidget* strip, int index = 0)
{
    return strip->findChildren<Control*>(QString(), Qt::FindDirectChildrenOnly).value(index);
}

// What a row does to a strip or to the settings, and what it reads back.
using Change = std::function<void(QWidget*)>;
using Reading = std::function<QVariant(QWidget*)>;

Change setDouble(int index, double value)
{
    return [=](QWidget* strip) { control<QDoubleSpinBox>(strip, index)->setValue(value); };
}
Change setInt(int index, int value)
{
    return [=](QWidget* strip) {
        if (auto* box = control<QSpinBox>(strip, index))
            box->setValue(value);
        else
            control<QSlider>(strip, index)->setValue(value);
    };
}
Change choose(int index, int item)
{
    return [=](QWidget* strip) { control<QComboBox>(strip, index)->setCurrentIndex(item); };
}
Reading doubleShown(int index)
{
    return [=](QWidget* strip) { return QVariant(control<QDoubleSpinBox>(strip, index)->value()); };
}
Reading intShown(int index)
{
    return [=](QWidget* strip) {
        if (auto* box = control<QSpinBox>(strip, index))
            return QVariant(box->value());
        return QVariant(control<QSlider>(strip, index)->value());
    };
}

// The value under `key` as a program started afresh reads it from the same file.
QVariant storedAfterRestart(const QString& key, const QVariant& like)
{
    Settings::destroy();
    QVariant stored = Settings::instance()->value(key);
    stored.convert(like.userType());
    return stored;
}

// Answers the next modal dialog of a kind as soon as it shows.
template<typename Dialog> void answerNextDialog(std::function<void(Dialog*)> answer)
{
    QTimer::singleShot(0, [answer] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        answer(dialog);
    });
}

QColor swatchColour(QWidget* strip)
{
    QLabel* swatch = control<QLabel>(strip, 1);
    return swatch->grab().toImage().pixelColor(swatch->rect().center());
}
} // namespace

Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(Reading)

// The parameter strips of the tools: every control writes its settings key at once and for
// good, a strip shows the stored values without writing them back, and a change of language
// rebuilds its texts without touching the choices.
class TestContextWidgets : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        Settings::destroy();
        QFile::remove(Settings::settingsFileName());
    }

    void controlWritesItsKey_data()
    {
        QTest::addColumn<QString>("strip");
        QTest::addColumn<Change>("change");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("stored");
        QTest::newRow("explode method")
            << "explode" << choose(0, 1) << "Tools/Explode/Method" << QVariant(2);
        QTest::newRow("explode size")
            << "explode" << setDouble(0, 1.5) << "Tools/Explode/Size" << QVariant(1.5);
        QTest::newRow("eraser in hundredths")
            << "erase" << setInt(0, 7) << "Tools/Erase/Size" << QVariant(0.07);
        QTest::newRow("brush in hundredths")
            << "brush" << setInt(0, 40) << "Tools/Brush/Size" << QVariant(0.4);
        QTest::newRow("camera mode")
            << "camera" << choose(0, 1) << "Tools/Camera/Mode" << QVariant(1);
        QTest::newRow("chain radius")
            << "chain" << setDouble(0, 0.35) << "Tools/Chain/CircleRadius" << QVariant(0.35);
        QTest::newRow("chain attach both")
            << "chain" << choose(0, 3) << "Tools/Chain/AttachPoint" << QVariant(4);
        QTest::newRow("rope width")
            << "rope" << setDouble(0, 0.8) << "Tools/Rope/RectangleWidth" << QVariant(0.8);
        QTest::newRow("rope attach none")
            << "rope" << choose(0, 2) << "Tools/Rope/AttachPoint" << QVariant(3);
        QTest::newRow("spring k") << "spring" << setDouble(0, 1000.0) << "Tools/SpringForce/K"
                                  << QVariant(1000.0);
        QTest::newRow("spring damping")
            << "spring" << setDouble(1, 20.0) << "Tools/SpringForce/Damping" << QVariant(20.0);
        QTest::newRow("revolute radius")
            << "revolute" << setDouble(0, 0.5) << "Tools/RevoluteJoint/Radius" << QVariant(0.5);
        QTest::newRow("gear tooth size")
            << "gear" << setDouble(0, 0.6) << "Tools/Gear/ToothSize" << QVariant(0.6);
        QTest::newRow("gear divisor")
            << "gear" << setDouble(1, 1.0) << "Tools/Gear/ToothCountDivisor" << QVariant(1.0);
        QTest::newRow("gear joint")
            << "gear"
            << Change([](QWidget* strip) { control<QCheckBox>(strip)->setChecked(false); })
            << "Tools/Gear/CreateRevoluteJoint" << QVariant(false);
        QTest::newRow("typed text") << "text" << Change([](QWidget* strip) {
            QTest::keyClicks(control<QLineEdit>(strip), "Hi");
        }) << "Tools/Text/Text" << QVariant("BrivaneHi");
        QTest::newRow("font family") << "text" << Change([](QWidget* strip) {
            auto* box = control<QFontComboBox>(strip);
            box->setCurrentIndex(box->findText("DejaVu Serif"));
        }) << "Tools/Text/FontFamily" << QVariant("DejaVu Serif");
        QTest::newRow("font size")
            << "text" << setInt(0, 20) << "Tools/Text/FontPointSize" << QVariant(20);
        QTest::newRow("polygon threshold")
            << "image" << setDouble(0, 0.1) << "Tools/Image/PolygonThreshold" << QVariant(0.1);
        QTest::newRow("image scale")
            << "image" << setDouble(1, 0.025) << "Tools/Image/Scale" << QVariant(0.025);
    }
    void controlWritesItsKey()
    {
        QFETCH(QString, strip);
        QFETCH(Change, change);
        QFETCH(QString, key);
        QFETCH(QVariant, stored);
        Strip made = makeStrip(strip);
        QVERIFY(!Settings::instance()->contains(key));
        change(made.get());
        QCOMPARE(storedAfterRestart(key, stored), stored);
    }

    // A value out of a control's range shows clamped; the file keeps it until the user changes
    // the control.
    void outOfRangeClampedOnScreenOnly_data()
    {
        QTest::addColumn<QString>("strip");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<Reading>("shown");
        QTest::addColumn<QVariant>("expected");
        QTest::newRow("explode size")
            << "explode"
            << "Tools/Explode/Size" << QVariant(9.0) << doubleShown(0) << QVariant(5.0);
        QTest::newRow("eraser") << "erase"
                                << "Tools/Erase/Size" << QVariant(0.5) << intShown(0)
                                << QVariant(20);
        QTest::newRow("brush") << "brush"
                               << "Tools/Brush/Size" << QVariant(0.01) << intShown(0)
                               << QVariant(10);
        QTest::newRow("chain radius")
            << "chain"
            << "Tools/Chain/CircleRadius" << QVariant(3.0) << doubleShown(0) << QVariant(0.5);
        QTest::newRow("rope width")
            << "rope"
            << "Tools/Rope/RectangleWidth" << QVariant(0.01) << doubleShown(0) << QVariant(0.1);
        QTest::newRow("spring damping") << "spring"
                                        << "Tools/SpringForce/Damping" << QVariant(5000.0)
                                        << doubleShown(1) << QVariant(1000.0);
        QTest::newRow("revolute radius")
            << "revolute"
            << "Tools/RevoluteJoint/Radius" << QVariant(10.0) << doubleShown(0) << QVariant(2.0);
        QTest::newRow("gear divisor")
            << "gear"
            << "Tools/Gear/ToothCountDivisor" << QVariant(0.0) << doubleShown(1) << QVariant(0.1);
        QTest::newRow("font size")
            << "text"
            << "Tools/Text/FontPointSize" << QVariant(100) << intShown(0) << QVariant(32);
        QTest::newRow("image scale")
            << "image"
            << "Tools/Image/Scale" << QVariant(1.0) << doubleShown(1) << QVariant(0.05);
    }
    void outOfRangeClampedOnScreenOnly()
    {
        QFETCH(QString, strip);
        QFETCH(QString, key);
        QFETCH(QVariant, stored);
        QFETCH(Reading, shown);
        QFETCH(QVariant, expected);
        Settings::instance()->setValue(key, stored);
        Settings::destroy();
        Strip made = makeStrip(strip);
        QCOMPARE(shown(made.get()), expected);
        QCOMPARE(storedAfterRestart(key, stored), stored);
    }

    // A stored choice that no item has selects none, and stays stored.
    void unknownChoiceSelectsNothing_data()
    {
        QTest::addColumn<QString>("strip");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("stored");
        QTest::newRow("explode method") << "explode"
                                        << "Tools/Explode/Method" << QVariant(7);
        QTest::newRow("chain attach point") << "chain"
                                            << "Tools/Chain/AttachPoint" << QVariant(0);
        QTest::newRow("rope attach point") << "rope"
                                           << "Tools/Rope/AttachPoint" << QVariant(9);
        QTest::newRow("camera mode") << "camera"
                                     << "Tools/Camera/Mode" << QVariant(5);
        QTest::newRow("font family") << "text"
                                     << "Tools/Text/FontFamily" << QVariant("No Such Family");
    }
    void unknownChoiceSelectsNothing()
    {
        QFETCH(QString, strip);
        QFETCH(QString, key);
        QFETCH(QVariant, stored);
        Settings::instance()->setValue(key, stored);
        Settings::destroy();
        Strip made = makeStrip(strip);
        QCOMPARE(control<QComboBox>(made.get())->currentIndex(), -1);
        QCOMPARE(storedAfterRestart(key, stored), stored);
    }

    // The translated strip keeps its choices, and its combo boxes fire nothing on the way.
    void languageChangeKeepsChoices_data()
    {
        QTest::addColumn<QString>("strip");
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("stored");
        QTest::addColumn<int>("index");
        QTest::newRow("explode") << "explode"
                                 << "Tools/Explode/Method" << 2 << 1;
        QTest::newRow("chain") << "chain"
                               << "Tools/Chain/AttachPoint" << 4 << 3;
        QTest::newRow("rope") << "rope"
                              << "Tools/Rope/AttachPoint" << 3 << 2;
        QTest::newRow("camera") << "camera"
                                << "Tools/Camera/Mode" << 1 << 1;
    }
    void languageChangeKeepsChoices()
    {
        QFETCH(QString, strip);
        QFETCH(QString, key);
        QFETCH(int, stored);
        QFETCH(int, index);
        Settings::instance()->setValue(key, stored);
        Settings::destroy();
        Strip made = makeStrip(strip);
        auto* box = control<QComboBox>(made.get());
        const QString english = box->currentText();
        QSignalSpy fired(box, QOverload<int>::of(&QComboBox::currentIndexChanged));
        // The application posts the change to each window.
        Application::instance()->setLanguage(QLocale::German);
        QCoreApplication::processEvents();
        const QString german = box->currentText();
        Application::instance()->setLanguage(QLocale::English);
        QCoreApplication::processEvents();
        QVERIFY2(german != english, qPrintable(german));
        QCOMPARE(box->currentIndex(), index);
        QCOMPARE(box->currentText(), english);
        QCOMPARE(fired.count(), 0);
        QCOMPARE(storedAfterRestart(key, stored), QVariant(stored));
    }

    // The colour strips: the swatch shows the stored colour, or nothing for a name that does
    // not parse; a chosen colour is shown and stored, a cancelled dialog changes nothing.
    void colourSwatch_data()
    {
        QTest::addColumn<QString>("strip");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<bool>("accept");
        QTest::newRow("chain, chosen") << "chain"
                                       << "Tools/Chain/Color"
                                       << "#ff0000" << true;
        QTest::newRow("rope, cancelled") << "rope"
                                         << "Tools/Rope/Color"
                                         << "#00ff00" << false;
        QTest::newRow("spring, unparsable kept") << "spring"
                                                 << "Tools/SpringForce/Color"
                                                 << "not a colour" << false;
        QTest::newRow("spring, unparsable replaced") << "spring"
                                                     << "Tools/SpringForce/Color"
                                                     << "#12" << true;
    }
    void colourSwatch()
    {
        QFETCH(QString, strip);
        QFETCH(QString, key);
        QFETCH(QString, stored);
        QFETCH(bool, accept);
        Settings::instance()->setValue(key, stored);
        Settings::destroy();
        Strip made = makeStrip(strip);
        // An empty swatch lets what lies behind it show.
        const QColor shown = QColor(stored).isValid() ? QColor(stored) : QColor(Qt::transparent);
        QCOMPARE(swatchColour(made.get()), shown);

        const QColor chosen(10, 20, 200);
        answerNextDialog<QColorDialog>([&](QColorDialog* dialog) {
            dialog->setCurrentColor(chosen);
            accept ? dialog->accept() : dialog->reject();
        });
        control<QPushButton>(made.get())->click();
        QCOMPARE(swatchColour(made.get()), accept ? chosen : shown);
        QCOMPARE(storedAfterRestart(key, QString()), QVariant(accept ? chosen.name() : stored));
    }

    void explodeSizeOnlyForMethodsThatTakeIt()
    {
        Strip made = makeStrip("explode");
        auto* size = control<QDoubleSpinBox>(made.get());
        // A strip just made has it enabled whatever the method.
        QVERIFY(size->isEnabled());
        choose(0, 0)(made.get());
        QVERIFY(!size->isEnabled() && !control<QLabel>(made.get(), 1)->isEnabled());
        choose(0, 2)(made.get());
        QVERIFY(size->isEnabled() && control<QLabel>(made.get(), 1)->isEnabled());
    }

    void imageChosenInTheFileDialog_data()
    {
        QTest::addColumn<bool>("accept");
        QTest::newRow("chosen") << true;
        QTest::newRow("cancelled") << false;
    }
    void imageChosenInTheFileDialog()
    {
        QFETCH(bool, accept);
        Strip made = makeStrip("image");
        auto* strip = static_cast<ImageContextWidget*>(made.get());
        const QString before = Settings::instance()->imageFilename;
        const QString star = Application::dataDirectory("images") + QDir::separator() + "star.png";
        QSignalSpy changed(strip, &ImageContextWidget::imageFilenameChanged);
        QString startDirectory;
        answerNextDialog<QFileDialog>([&](QFileDialog* dialog) {
            startDirectory = dialog->directory().absolutePath();
            dialog->selectFile(star);
            QMetaObject::invokeMethod(dialog, accept ? "accept" : "reject");
        });
        control<QPushButton>(strip)->click();
        QCOMPARE(startDirectory, QDir(Application::dataDirectory("images")).absolutePath());
        const QString expected = accept ? QFileInfo(star).absoluteFilePath() : before;
        QCOMPARE(QFileInfo(control<QLineEdit>(strip)->text()).absoluteFilePath(),
                 QFileInfo(expected).absoluteFilePath());
        QCOMPARE(changed.count(), accept ? 1 : 0);
        Settings::destroy();
        QCOMPARE(QFileInfo(Settings::instance()->imageFilename), QFileInfo(expected));
    }

    // Only the strips whose tools preview a value at once tell about it.
    void signalsCarryTheNewValue()
    {
        Strip text = makeStrip("text");
        QSignalSpy typed(text.get(), SIGNAL(textChanged(QString)));
        QSignalSpy sized(text.get(), SIGNAL(fontPointSizeChanged(int)));
        QTest::keyClicks(control<QLineEdit>(text.get()), "ab");
        setInt(0, 14)(text.get());
        QCOMPARE(typed.count(), 2);
        QCOMPARE(typed.last().first().toString(), QStringLiteral("Brivaneab"));
        QCOMPARE(sized.last().first().toInt(), 14);

        Strip revolute = makeStrip("revolute");
        QSignalSpy radius(revolute.get(), SIGNAL(revoluteJointRadiusChanged(double)));
        setDouble(0, 0.75)(revolute.get());
        QCOMPARE(radius.last().first().toDouble(), 0.75);

        Strip image = makeStrip("image");
        QSignalSpy scaled(image.get(), SIGNAL(imageScaleChanged(double)));
        setDouble(0, 0.3)(image.get());
        setDouble(1, 0.02)(image.get());
        QCOMPARE(scaled.count(), 1);
        QCOMPARE(scaled.last().first().toDouble(), 0.02);
    }
};

BRIVANE_APPLICATION_TEST_MAIN(TestContextWidgets)
#include "tst_contextwidgets.moc"
