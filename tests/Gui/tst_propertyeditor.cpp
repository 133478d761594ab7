#include "Application/Application.h"
#include "Gui/BrushDialog.h"
#include "Gui/FlagsStringDialog.h"
#include "Gui/MainWindow.h"
#include "Gui/PropertyEditorWidget.h"
#include "Gui/QPropertyEditorWidget.h"
#include "Physics/DistanceJoint.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/RectangleItem.h"
#include "Scripting/JSDialog.h"
#include "Scripting/JSEdit.h"
#include "View/GraphicsScene.h"
#include "WindowTestMain.h"

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDockWidget>
#include <QDoubleSpinBox>
#include <QGraphicsItem>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScriptEngine>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <functional>

namespace {
PhysicsWorld* world()
{
    return PhysicsWorld::instance();
}

PropertyEditorWidget* editor()
{
    return Application::instance()->mainWindow->findChild<PropertyEditorWidget*>();
}

QAbstractItemModel* model()
{
    return editor()->grid()->model();
}

// The value cell of a property, found by its name in any group.
QModelIndex valueIndex(const QString& name)
{
    for (int group = 0; group < model()->rowCount(); ++group) {
        const QModelIndex parent = model()->index(group, 0);
        for (int row = 0; row < model()->rowCount(parent); ++row) {
            if (model()->index(row, 0, parent).data().toString() == name)
                return model()->index(row, 1, parent);
        }
    }
    return {};
}

QStringList groupTitles()
{
    QStringList titles;
    for (int group = 0; group < model()->rowCount(); ++group)
        titles << model()->index(group, 0).data().toString();
    return titles;
}

void select(PhysicsItem* item)
{
    world()->graphicsScene()->clearSelection();
    if (item)
        item->graphicsItem()->setSelected(true);
}

// Runs `handle` on the modal dialog that the next call opens, once it is up.
template<typename Dialog> void whenModal(std::function<void(Dialog*)> handle)
{
    QTimer::singleShot(0, [handle] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        handle(dialog);
    });
}

bool hasOpenEditor()
{
    const QList<QLineEdit*> edits = editor()->grid()->viewport()->findChildren<QLineEdit*>();
    return std::any_of(edits.begin(), edits.end(),
                       [](QLineEdit* edit) { return edit->isVisible(); });
}

void doubleClick(const QModelIndex& index)
{
    editor()->grid()->scrollTo(index);
    QWidget* viewport = editor()->grid()->viewport();
    const QPoint centre = editor()->grid()->visualRect(index).center();
    // A view takes a double-click only on the cell it was pressed on.
    QTest::mouseClick(viewport, Qt::LeftButton, Qt::NoModifier, centre);
    QTest::mouseDClick(viewport, Qt::LeftButton, Qt::NoModifier, centre);
}
} // namespace

// The property editor with its grid, its dialogs and its brush row, in the main window.
class TestPropertyEditor : public QObject
{
    Q_OBJECT

    RectangleItem* rectangle = nullptr;

private slots:
    void initTestCase()
    {
        QTRY_VERIFY(world()->items().size() > 0);
        auto* dock = Application::instance()->mainWindow->findChild<QDockWidget*>(
            QStringLiteral("PropertyEditorDockWidget"));
        dock->show();
    }

    void init()
    {
        rectangle = world()->createRectangle(0, 5, 0, 2, 1);
        select(rectangle);
    }

    void cleanup()
    {
        select(nullptr);
        if (world()->items().contains(rectangle))
            world()->removePhysicsItem(rectangle);
    }

    void groupsFollowTheClassChain()
    {
        QCOMPARE(groupTitles(),
                 QStringList({QStringLiteral("Physics Item"), QStringLiteral("Body"),
                              QStringLiteral("Rectangle")}));
        QCOMPARE(model()->index(0, 0, model()->index(0, 0)).data().toString(),
                 QStringLiteral("Name"));
        QCOMPARE(model()->index(0, 1, model()->index(0, 0)).data().toString(), rectangle->name());
        // The brush has a row of its own, and the grid shows user properties only.
        QVERIFY(!valueIndex(QStringLiteral("Brush")).isValid());
        QVERIFY(!valueIndex(QStringLiteral("objectName")).isValid());
        QVERIFY(!(valueIndex(QStringLiteral("Mass")).flags() & Qt::ItemIsEditable));
    }

    // Editors take their range, step and decimals from the class information.
    void editorsHonourAttributes_data()
    {
        QTest::addColumn<QString>("property");
        QTest::addColumn<QString>("editorClass");
        QTest::addColumn<QVariantList>("limits");
        const auto row
            = [](const char* property, const char* editorClass, const QVariantList& limits) {
                  QTest::newRow(property) << QString::fromLatin1(property)
                                          << QString::fromLatin1(editorClass) << limits;
              };
        // Spin boxes: minimum, maximum, step, decimals (doubles only).
        row("Density", "QDoubleSpinBox", {0.0, 1e9, 0.1, 2});
        row("Friction", "QDoubleSpinBox", {0.0, 1.0, 0.05, 2});
        row("Opacity", "QDoubleSpinBox", {0.0, 1.0, 0.05, 4});
        row("Width", "QDoubleSpinBox", {0.1, 1e9, 1.0, 4});
        row("FilterGroupIndex", "QSpinBox", {-8, 8, 1});
        row("TextSize", "QSpinBox", {6, 32, 1});
        // Line edits: the length limit; combo boxes: the keys.
        row("FilterCategories", "QLineEdit", {16});
        row("BodyType", "QComboBox", {"StaticBody", "KinematicBody", "DynamicBody"});
    }

    void editorsHonourAttributes()
    {
        QFETCH(QString, property);
        QFETCH(QString, editorClass);
        QFETCH(QVariantList, limits);
        const QModelIndex index = valueIndex(property);
        QWidget* editorWidget = editor()->grid()->itemDelegate()->createEditor(
            editor()->grid()->viewport(), QStyleOptionViewItem(), index);
        QVERIFY(editorWidget);
        QCOMPARE(QString::fromLatin1(editorWidget->metaObject()->className()), editorClass);
        if (auto* box = qobject_cast<QDoubleSpinBox*>(editorWidget)) {
            QCOMPARE(box->minimum(), limits.at(0).toDouble());
            QCOMPARE(box->maximum(), limits.at(1).toDouble());
            QCOMPARE(box->singleStep(), limits.at(2).toDouble());
            QCOMPARE(box->decimals(), limits.at(3).toInt());
        } else if (auto* box = qobject_cast<QSpinBox*>(editorWidget)) {
            QCOMPARE(box->minimum(), limits.at(0).toInt());
            QCOMPARE(box->maximum(), limits.at(1).toInt());
            QCOMPARE(box->singleStep(), limits.at(2).toInt());
        } else if (auto* edit = qobject_cast<QLineEdit*>(editorWidget)) {
            QCOMPARE(edit->maxLength(), limits.at(0).toInt());
        } else if (auto* box = qobject_cast<QComboBox*>(editorWidget)) {
            QStringList keys;
            for (int i = 0; i < box->count(); ++i)
                keys << box->itemText(i);
            QCOMPARE(QVariant(keys).toList(), limits);
        }
        delete editorWidget;
    }

    // An edit goes through the setter, clamped to the declared range; values the property
    // cannot take are refused and change nothing.
    void setDataReachesTheSetter_data()
    {
        QTest::addColumn<QString>("property");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("accepted");
        QTest::addColumn<QVariant>("expected");
        QTest::newRow("density below minimum")
            << "Density" << QVariant(-5.0) << true << QVariant(0.0);
        QTest::newRow("friction above maximum")
            << "Friction" << QVariant(3) << true << QVariant(1.0);
        QTest::newRow("angle in degrees") << "Angle" << QVariant(90.0) << true << QVariant(90.0);
        QTest::newRow("number as text") << "X" << QVariant("2.5") << true << QVariant(2.5);
        QTest::newRow("not a number") << "X" << QVariant("abc") << false << QVariant(0.0);
        QTest::newRow("body type by key")
            << "BodyType" << QVariant("StaticBody") << true << QVariant(int(BodyItem::StaticBody));
        QTest::newRow("body type by number")
            << "BodyType" << QVariant(1) << true << QVariant(int(BodyItem::KinematicBody));
        QTest::newRow("unknown key")
            << "BodyType" << QVariant("Floating") << false << QVariant(int(BodyItem::DynamicBody));
        QTest::newRow("bool") << "Bullet" << QVariant(true) << true << QVariant(true);
        QTest::newRow("group index clamped")
            << "FilterGroupIndex" << QVariant(20) << true << QVariant(8);
        QTest::newRow("colour by name")
            << "TextColor" << QVariant("#ff0000") << true << QVariant(QColor(Qt::red));
        QTest::newRow("no colour")
            << "TextColor" << QVariant("nothing") << false << QVariant(QColor(Qt::black));
        QTest::newRow("read-only") << "Shapes" << QVariant(5) << false << QVariant(1);
    }

    void setDataReachesTheSetter()
    {
        QFETCH(QString, property);
        QFETCH(QVariant, value);
        QFETCH(bool, accepted);
        QFETCH(QVariant, expected);
        rectangle->setTextColor(Qt::black);
        QCOMPARE(model()->setData(valueIndex(property), value, Qt::EditRole), accepted);
        QVariant stored = rectangle->property(property.toLatin1().constData());
        if (stored.userType() == qMetaTypeId<BodyItem::BodyType>())
            stored = stored.toInt();
        // Box2D keeps positions and angles in float.
        if (expected.userType() == QMetaType::Double)
            QVERIFY(qAbs(stored.toDouble() - expected.toDouble()) < 1e-5);
        else
            QCOMPARE(stored, expected);
        if (property == QLatin1String("Angle"))
            QVERIFY(qAbs(rectangle->body()->GetAngle() - M_PI / 2) < 1e-6);
    }

    void checkBoxCellWritesBool()
    {
        const QModelIndex index = valueIndex(QStringLiteral("FixedRotation"));
        QVERIFY(index.flags() & Qt::ItemIsUserCheckable);
        QVERIFY(model()->setData(index, Qt::Checked, Qt::CheckStateRole));
        QVERIFY(rectangle->fixedRotation());
        QCOMPARE(index.data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    }

    // The grid reads the item whenever it paints, so a script's change or a step shows.
    void showsChangesMadeElsewhere()
    {
        Application::instance()->scriptEngine->evaluate(
            QStringLiteral("%1.X = 4; %1.Density = 3;").arg(rectangle->name()));
        QCOMPARE(valueIndex(QStringLiteral("X")).data().toString(), QStringLiteral("4.00"));
        QCOMPARE(valueIndex(QStringLiteral("Density")).data().toString(), QStringLiteral("3.00"));
        const QString before = valueIndex(QStringLiteral("Y")).data().toString();
        for (int step = 0; step < 30; ++step)
            world()->step();
        QVERIFY(valueIndex(QStringLiteral("Y")).data().toString() != before);
    }

    void removedItemEmptiesTheEditor()
    {
        Application::instance()->scriptEngine->evaluate(
            QStringLiteral("world.removePhysicsItem(%1);").arg(rectangle->name()));
        QCOMPARE(model()->rowCount(), 0);
        QVERIFY(!editor()->isEnabled());
        QCoreApplication::processEvents();
        editor()->grab();
    }

    // Both cells of a script row open the script dialog; what it accepts is stored, and the
    // grid's own editor opened by the same double-click is gone soon after.
    void scriptRowsOpenTheScriptDialog_data()
    {
        QTest::addColumn<int>("column");
        QTest::newRow("name cell") << 0;
        QTest::newRow("value cell") << 1;
    }

    void scriptRowsOpenTheScriptDialog()
    {
        QFETCH(int, column);
        const QString script = QStringLiteral("this.X = 1;\nthis.Y = 2;");
        QString title;
        whenModal<JSDialog>([&](JSDialog* dialog) {
            title = dialog->windowTitle();
            dialog->editor()->setPlainText(script);
            dialog->accept();
        });
        const QModelIndex index = valueIndex(QStringLiteral("OnUpdate"));
        doubleClick(index.sibling(index.row(), column));
        QCOMPARE(title, rectangle->name() + QStringLiteral(".OnUpdate"));
        QCOMPARE(rectangle->onUpdate(), script);
        // The grid's own editor opens on the value cell only.
        QCOMPARE(hasOpenEditor(), column == 1);
        QTRY_VERIFY(!hasOpenEditor());
        QCOMPARE(valueIndex(QStringLiteral("OnUpdate")).data().toString(), script);
    }

    void colourCellOpensTheColourDialog()
    {
        whenModal<QColorDialog>([](QColorDialog* dialog) {
            dialog->setCurrentColor(QColor(10, 20, 30));
            dialog->accept();
        });
        doubleClick(valueIndex(QStringLiteral("TextColor")));
        QCOMPARE(rectangle->textColor(), QColor(10, 20, 30));
    }

    void cancelledDialogChangesNothing()
    {
        rectangle->setFilterMasks(QStringLiteral("BC"));
        bool shown = false;
        whenModal<FlagsStringDialog>([&shown](FlagsStringDialog* dialog) {
            shown = true;
            dialog->reject();
        });
        doubleClick(valueIndex(QStringLiteral("FilterMasks")));
        QVERIFY(shown);
        QCOMPARE(rectangle->filterMasks(), QStringLiteral("BC"));
    }

    // The tick boxes show the letters of the value; what is ticked is the result, and
    // nothing ticked is "A".
    void flagsDialog_data()
    {
        QTest::addColumn<QString>("property");
        QTest::addColumn<QString>("flags");
        QTest::addColumn<QString>("toggled");
        QTest::addColumn<QString>("result");
        QTest::newRow("categories") << "FilterCategories"
                                    << "A"
                                    << "CP"
                                    << "ACP";
        QTest::newRow("masks untick all") << "FilterMasks"
                                          << "BDP"
                                          << "BDP"
                                          << "A";
    }

    void flagsDialog()
    {
        QFETCH(QString, property);
        QFETCH(QString, flags);
        QFETCH(QString, toggled);
        QFETCH(QString, result);
        rectangle->setProperty(property.toLatin1().constData(), flags);
        QString message;
        whenModal<FlagsStringDialog>([&](FlagsStringDialog* dialog) {
            message = dialog->findChild<QLabel*>()->text();
            const QList<QCheckBox*> boxes = dialog->findChildren<QCheckBox*>();
            QCOMPARE(boxes.size(), 16);
            for (QCheckBox* box : boxes) {
                const QChar letter = box->text().back();
                QCOMPARE(box->isChecked(), flags.contains(letter));
                if (toggled.contains(letter))
                    box->toggle();
            }
            dialog->accept();
        });
        doubleClick(valueIndex(property));
        QVERIFY(message.contains(rectangle->name()));
        QCOMPARE(rectangle->property(property.toLatin1().constData()).toString(), result);
    }

    // Bodies, joints and springs have a brush row; no item, or several, leave it blank.
    void brushRowFollowsSelection_data()
    {
        QTest::addColumn<QString>("selection");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("none") << "none" << false;
        QTest::newRow("two") << "two" << false;
        QTest::newRow("rectangle") << "rectangle" << true;
        QTest::newRow("joint") << "joint" << true;
    }

    void brushRowFollowsSelection()
    {
        QFETCH(QString, selection);
        QFETCH(bool, enabled);
        RectangleItem* other = world()->createRectangle(5, 5, 0, 1, 1);
        DistanceJoint* joint
            = world()->createDistanceJoint(rectangle, other, QPointF(0, 5), QPointF(5, 5));
        select(nullptr);
        if (selection == QLatin1String("two")) {
            rectangle->graphicsItem()->setSelected(true);
            other->graphicsItem()->setSelected(true);
        } else if (selection != QLatin1String("none")) {
            select(selection == QLatin1String("joint") ? static_cast<PhysicsItem*>(joint)
                                                       : rectangle);
        }
        auto* button = editor()->findChild<QPushButton*>(QStringLiteral("selectButton"));
        QCOMPARE(editor()->isEnabled(), enabled);
        QCOMPARE(button->isEnabled(), enabled);
        QCOMPARE(model()->rowCount() > 0, enabled);
        select(nullptr);
        world()->removePhysicsItem(other);
    }

    void selectButtonSetsTheBrush()
    {
        whenModal<BrushDialog>([](BrushDialog* dialog) {
            dialog->findChild<QComboBox*>(QStringLiteral("patternComboBox"))
                ->setCurrentIndex(Qt::Dense3Pattern);
            dialog->accept();
        });
        editor()->findChild<QPushButton*>(QStringLiteral("selectButton"))->click();
        QCOMPARE(rectangle->brush().style(), Qt::Dense3Pattern);
    }
};

BRIVANE_WINDOW_TEST_MAIN(TestPropertyEditor, true)

#include "tst_propertyeditor.moc"
