#include "Gui/SettingsWidget.h"
#include "Gui/SnapWidget.h"
#include "Physics/RectangleItem.h"
#include "ToolFixture.h"
#include "View/GridGraphicsItem.h"
#include "WindowTestMain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QSpinBox>
#include <QTimer>
#include <QToolButton>
#include <functional>

namespace {
using WorldSetter = std::function<void(PhysicsWorld*, double)>;
using WorldGetter = std::function<double(PhysicsWorld*)>;
} // namespace

Q_DECLARE_METATYPE(WorldSetter)
Q_DECLARE_METATYPE(WorldGetter)

// The panels of the scene, the settings and snapping in the running window: each control and
// what it is bound to follow each other both ways.
class TestScenePanels : public QObject, private ToolFixture
{
    Q_OBJECT

    template<typename Control> static Control* control(const char* name)
    {
        return window()->findChild<Control*>(QLatin1String(name));
    }
    static QDockWidget* dock(const char* name) { return control<QDockWidget>(name); }
    static QToolButton* snapButton(int index)
    {
        return window()->findChild<SnapWidget*>()->findChildren<QToolButton*>().value(index);
    }

private slots:
    void initTestCase() { QVERIFY(waitForFirstScene()); }

    // A value from a script reaches its control; one outside the control's range comes back
    // to the world clipped.
    void worldValuesReachTheirControls_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<WorldSetter>("set");
        QTest::addColumn<WorldGetter>("get");
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("shown");
        const WorldSetter gravityY = [](PhysicsWorld* w, double v) { w->setGravityY(v); };
        const WorldGetter gravityYOf = [](PhysicsWorld* w) { return w->gravityY(); };
        const WorldSetter frequency
            = [](PhysicsWorld* w, double v) { w->setStepFrequency(int(v)); };
        const WorldGetter frequencyOf = [](PhysicsWorld* w) { return double(w->stepFrequency()); };
        QTest::newRow("gravity") << "gravityY" << gravityY << gravityYOf << -3.5 << -3.5;
        QTest::newRow("gravity below") << "gravityY" << gravityY << gravityYOf << -150.0 << -99.99;
        QTest::newRow("frequency") << "stepFrequency" << frequency << frequencyOf << 120.0 << 120.0;
        // The world holds at most 120 steps a second itself.
        QTest::newRow("frequency above")
            << "stepFrequency" << frequency << frequencyOf << 500.0 << 120.0;
        QTest::newRow("frequency below")
            << "stepFrequency" << frequency << frequencyOf << 10.0 << 30.0;
    }
    void worldValuesReachTheirControls()
    {
        QFETCH(QString, control);
        QFETCH(WorldSetter, set);
        QFETCH(WorldGetter, get);
        QFETCH(double, value);
        QFETCH(double, shown);
        QAbstractSpinBox* box = window()->findChild<QAbstractSpinBox*>(control);
        set(world(), value);
        QCOMPARE(box->property("value").toDouble(), shown);
        // Box2D keeps gravity in single precision.
        QVERIFY(std::abs(get(world()) - shown) < 1e-4);
        // And the other way.
        box->setProperty("value", 60.0);
        QCOMPARE(get(world()), 60.0);
        world()->setGravityY(-10.0);
        world()->setStepFrequency(60);
    }

    // 50 steps per doubling from 1 to 1024; a scale set elsewhere snaps to the nearest step.
    void scaleSlider_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<double>("scale");
        QTest::newRow("least") << 0 << 1.0;
        QTest::newRow("most") << 500 << 1024.0;
        QTest::newRow("a doubling below the middle") << 200 << 16.0;
    }
    void scaleSlider()
    {
        QFETCH(int, position);
        QFETCH(double, scale);
        auto* slider = control<QSlider>("scale");
        slider->setValue(position);
        QCOMPARE(view()->scale(), scale);
        view()->setScale(40.0);
        QCOMPARE(slider->value(), 266);
        QCOMPARE(view()->scale(), std::exp2(266 / 50.0));
    }

    void bodyWithCameraByName()
    {
        RectangleItem* box = world()->createRectangle(0, 3, 0, 1, 1);
        auto* field = control<QLineEdit>("bodyWithCamera");
        // Typed a letter at a time, a name empties the field at its first letter.
        field->clear();
        QTest::keyClicks(field, box->name().left(2));
        QCOMPARE(field->text(), QString());
        QVERIFY(view()->bodyWithCamera().isEmpty());
        // Pasted whole, it holds.
        field->setText(box->name());
        emit field->textEdited(box->name());
        QCOMPARE(view()->bodyWithCamera(), box->name());
        view()->setBodyWithCamera(QString());
        QCOMPARE(field->text(), QString());
        world()->removePhysicsItem(box);
    }

    // The world's figures follow only while the panel is shown.
    void figuresPolledWhileShown()
    {
        QDockWidget* panel = dock("ScenePropertiesDockWidget");
        auto* seconds = control<QLabel>("seconds");
        panel->show();
        world()->setSeconds(12.0);
        QTRY_COMPARE(seconds->text(), QStringLiteral("12.00"));
        panel->hide();
        world()->setSeconds(13.0);
        QTest::qWait(600);
        QCOMPARE(seconds->text(), QStringLiteral("12.00"));
        world()->setSeconds(0.0);
    }

    // A running world runs on at the new period; a stopped one stays stopped.
    void timerSlider_data()
    {
        QTest::addColumn<bool>("running");
        QTest::newRow("running") << true;
        QTest::newRow("stopped") << false;
    }
    void timerSlider()
    {
        QFETCH(bool, running);
        if (running)
            world()->start();
        control<QSlider>("timerIntervalSlider")->setValue(25);
        QCOMPARE(world()->running(), running);
        QCOMPARE(Settings::instance()->timerInterval, 25);
        if (running)
            QCOMPARE(world()->findChild<QTimer*>()->interval(), 25);
        world()->stop();
        control<QSlider>("timerIntervalSlider")->setValue(16);
    }

    // Whatever the order of the clicks, at most one mode is on, and its size is usable.
    void snapModesExcludeEachOther_data()
    {
        QTest::addColumn<QList<int>>("clicks"); // 0 grid, 1 objects
        QTest::addColumn<bool>("grid");
        QTest::addColumn<bool>("objects");
        QTest::newRow("grid after objects") << QList<int> {1, 0} << true << false;
        QTest::newRow("objects after grid") << QList<int> {0, 1} << false << true;
        QTest::newRow("grid off again") << QList<int> {0, 0} << false << false;
    }
    void snapModesExcludeEachOther()
    {
        QFETCH(QList<int>, clicks);
        QFETCH(bool, grid);
        QFETCH(bool, objects);
        snapButton(0)->setChecked(false);
        snapButton(1)->setChecked(false);
        for (int index : clicks)
            snapButton(index)->click();
        QCOMPARE(snapButton(0)->isChecked(), grid);
        QCOMPARE(snapButton(1)->isChecked(), objects);
        QCOMPARE(Settings::instance()->snapToGrid, grid);
        QCOMPARE(Settings::instance()->snapToObjects, objects);
        QCOMPARE(view()->gridItem()->isVisible(), grid);
        const auto sizes = window()->findChild<SnapWidget*>()->findChildren<QDoubleSpinBox*>();
        QCOMPARE(sizes.at(0)->isEnabled(), grid);
        QCOMPARE(sizes.at(1)->isEnabled(), objects);
    }

    void snapGridSizeRebuildsTheGrid()
    {
        snapButton(0)->setChecked(true);
        window()->findChild<SnapWidget*>()->findChildren<QDoubleSpinBox*>().at(0)->setValue(2.0);
        QCOMPARE(Settings::instance()->gridSize, 2.0);
        QCOMPARE(view()->gridItem()->snapToGrid(QPointF(0.9, 1.1)), QPointF(0.0, 2.0));
        snapButton(0)->setChecked(false);
    }

    // A stored value out of a control's range shows clipped and stays stored; a stored
    // language is applied, an unknown one changes nothing.
    void settingsLoadWithoutWritingBack_data()
    {
        QTest::addColumn<int>("language");
        QTest::addColumn<int>("applied");
        QTest::newRow("German") << int(QLocale::German) << int(QLocale::German);
        QTest::newRow("unknown") << 9999 << int(QLocale::English);
    }
    void settingsLoadWithoutWritingBack()
    {
        QFETCH(int, language);
        QFETCH(int, applied);
        Settings* settings = Settings::instance();
        settings->setFrictionDefault(5.0);
        settings->setLanguage(language);
        SettingsWidget panel(view());
        QCOMPARE(panel.findChild<QDoubleSpinBox*>("frictionDoubleSpinBox")->value(), 1.0);
        QCOMPARE(settings->frictionDefault, 5.0);
        QCOMPARE(int(Application::instance()->language()), applied);
        auto* languages = panel.findChild<QComboBox*>("languageComboBox");
        QCOMPARE(languages->currentData().toInt(),
                 applied == language ? language : languages->itemData(0).toInt());
        QCOMPARE(settings->language, language);
        Application::instance()->setLanguage(QLocale::English);
        settings->setFrictionDefault(0.3);
    }
};

BRIVANE_WINDOW_TEST_MAIN(TestScenePanels, true)
#include "tst_scenepanels.moc"
