#include "Application/Application.h"
#include "Gui/BrushDialog.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/RectangleItem.h"
#include "WindowTestMain.h"

#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QGraphicsItem>
#include <QGroupBox>
#include <QLinearGradient>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

Q_DECLARE_METATYPE(QBrush)

namespace {
const QString textureFile = QStringLiteral("wood.png");

QPixmap texture(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    image.setPixel(0, 0, qRgb(255, 0, 0));
    return QPixmap::fromImage(image);
}

template<typename Child> Child* part(const BrushDialog& dialog, const char* name)
{
    return dialog.findChild<Child*>(QLatin1String(name));
}

// The four numbers of the transformation as the spin boxes show them.
QVector<double> spinBoxValues(const BrushDialog& dialog)
{
    return {part<QDoubleSpinBox>(dialog, "horizontalScaleDoubleSpinBox")->value(),
            part<QDoubleSpinBox>(dialog, "verticalScaleDoubleSpinBox")->value(),
            part<QDoubleSpinBox>(dialog, "horizontalOffsetDoubleSpinBox")->value(),
            part<QDoubleSpinBox>(dialog, "verticalOffsetDoubleSpinBox")->value()};
}

QImage pixels(const QBrush& brush)
{
    return brush.texture().toImage().convertToFormat(QImage::Format_RGB32);
}
} // namespace

// The brush dialog: how it opens on a brush, what each control does to it, and that a chosen
// texture with its transformation is what the caller gets and what a scene file keeps.
class TestBrushDialog : public QObject
{
    Q_OBJECT

private slots:
    void opensOnTheBrush_data()
    {
        QTest::addColumn<QBrush>("brush");
        QTest::addColumn<bool>("colourBox");
        QTest::addColumn<int>("pattern");
        QBrush textured(texture(8, 8));
        textured.setTransform(QTransform(0.5, 0, 0, -0.25, 1, 2));
        QLinearGradient gradient(0, 0, 1, 1);
        QTest::newRow("solid") << QBrush(Qt::blue) << true << int(Qt::SolidPattern);
        QTest::newRow("pattern") << QBrush(Qt::red, Qt::Dense4Pattern) << true
                                 << int(Qt::Dense4Pattern);
        QTest::newRow("texture") << textured << false << int(Qt::SolidPattern);
        QTest::newRow("gradient") << QBrush(gradient) << true << int(Qt::SolidPattern);
    }

    // Opening changes nothing: Ok at once gives the brush back as it came.
    void opensOnTheBrush()
    {
        QFETCH(QBrush, brush);
        QFETCH(bool, colourBox);
        QFETCH(int, pattern);
        BrushDialog dialog(brush, QString());
        QCOMPARE(part<QGroupBox>(dialog, "colorPatternGroupBox")->isChecked(), colourBox);
        QCOMPARE(part<QGroupBox>(dialog, "textureGroupBox")->isChecked(), !colourBox);
        QCOMPARE(part<QComboBox>(dialog, "patternComboBox")->currentIndex(), pattern);
        // No outline, as for the view's background: nothing to fit a texture to.
        QVERIFY(!part<QPushButton>(dialog, "autoAdjustButton")->isEnabled());
        QCOMPARE(dialog.brush(), brush);
    }

    void switchingKeepsTextureAndTransformation()
    {
        QBrush textured(texture(8, 8));
        const QTransform transform(0.5, 0, 0, -0.25, 1, 2);
        textured.setTransform(transform);
        BrushDialog dialog(textured, QString());
        auto* colourBox = part<QGroupBox>(dialog, "colorPatternGroupBox");

        part<QComboBox>(dialog, "patternComboBox")->setCurrentIndex(Qt::CrossPattern);
        colourBox->setChecked(true);
        QCOMPARE(dialog.brush().style(), Qt::CrossPattern);
        QCOMPARE(dialog.brush().transform(), transform);
        QVERIFY(!part<QGroupBox>(dialog, "textureGroupBox")->isChecked());

        colourBox->setChecked(false);
        QCOMPARE(dialog.brush().style(), Qt::TexturePattern);
        QCOMPARE(pixels(dialog.brush()), pixels(textured));
        QCOMPARE(dialog.brush().transform(), transform);
    }

    void controlsChangeOneAspect()
    {
        BrushDialog dialog(QBrush(Qt::blue), QString());
        part<QComboBox>(dialog, "patternComboBox")->setCurrentIndex(Qt::NoBrush);
        QCOMPARE(dialog.brush().style(), Qt::NoBrush);
        QCOMPARE(dialog.brush().color(), QColor(Qt::blue));
        part<QDoubleSpinBox>(dialog, "horizontalScaleDoubleSpinBox")->setValue(0.0);
        part<QDoubleSpinBox>(dialog, "verticalOffsetDoubleSpinBox")->setValue(3.0);
        QCOMPARE(dialog.brush().transform(), QTransform(0, 0, 0, 1, 0, 3));
        // A singular transformation paints nothing, but paints without harm.
        dialog.grab();
    }

    // Auto Adjust fits the texture once over the outline, upside up.
    void autoAdjustFitsTheOutline()
    {
        BrushDialog dialog(QBrush(texture(100, 50)), QString());
        auto* button = part<QPushButton>(dialog, "autoAdjustButton");
        QVERIFY(!button->isEnabled());
        QPainterPath outline;
        outline.addRect(-1, -0.5, 2, 1);
        dialog.setOutline(outline);
        QVERIFY(button->isEnabled());
        button->click();
        QCOMPARE(spinBoxValues(dialog), QVector<double>({0.02, -0.02, 1.0, 0.5}));
        QCOMPARE(dialog.brush().transform(), QTransform(0.02, 0, 0, -0.02, 1.0, 0.5));

        part<QGroupBox>(dialog, "colorPatternGroupBox")->setChecked(true);
        QVERIFY(!button->isEnabled());
    }

    // A texture picked from the folder, with a transformation, reaches the item and comes
    // back from a scene file as it was.
    void chosenTextureSurvivesSaveAndLoad()
    {
        const QString directory = Application::dataDirectory(QStringLiteral("textures"));
        QVERIFY(QFileInfo::exists(directory + QLatin1Char('/') + textureFile));
        BrushDialog dialog(QBrush(Qt::blue), directory);
        QString startDirectory;
        QTimer::singleShot(0, [&startDirectory] {
            auto* files = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(files);
            startDirectory = files->directory().absolutePath();
            files->selectFile(textureFile);
            QMetaObject::invokeMethod(files, "accept");
        });
        part<QGroupBox>(dialog, "textureGroupBox")->setChecked(true);
        part<QPushButton>(dialog, "textureSelectButton")->click();
        QCOMPARE(startDirectory, QDir(directory).absolutePath());
        part<QDoubleSpinBox>(dialog, "horizontalScaleDoubleSpinBox")->setValue(0.01);
        part<QDoubleSpinBox>(dialog, "verticalScaleDoubleSpinBox")->setValue(-0.01);
        part<QDoubleSpinBox>(dialog, "horizontalOffsetDoubleSpinBox")->setValue(0.5);
        const QBrush chosen = dialog.brush();
        QCOMPARE(chosen.style(), Qt::TexturePattern);
        QCOMPARE(pixels(chosen),
                 QImage(directory + QLatin1Char('/') + textureFile)
                     .convertToFormat(QImage::Format_RGB32));

        Application* application = Application::instance();
        application->newFile(false);
        RectangleItem* box = PhysicsWorld::instance()->createRectangle(0, 3, 0, 2, 1);
        box->setBrush(chosen);
        const QString name = box->name();
        QTemporaryDir saves;
        const QString file = saves.filePath(QStringLiteral("textured.scene"));
        QVERIFY(application->save(file));
        application->newFile(true);
        QVERIFY(application->load(file));
        PhysicsItem* loaded = PhysicsWorld::instance()->physicsItemFromName(name);
        QVERIFY(loaded);
        QCOMPARE(loaded->brush().transform(), chosen.transform());
        QCOMPARE(pixels(loaded->brush()), pixels(chosen));
    }
};

BRIVANE_WINDOW_TEST_MAIN(TestBrushDialog, true)

#include "tst_brushdialog.moc"
