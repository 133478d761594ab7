#include "ApplicationTestMain.h"
#include "Gui/ExportDialog.h"
#include "MessageBoxAnswerer.h"
#include "Physics/CircleItem.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/RectangleItem.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGraphicsItem>
#include <QGroupBox>
#include <QLineEdit>
#include <QPainter>
#include <QProcess>
#include <QPushButton>
#include <QSpinBox>
#include <QStandardPaths>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QXmlStreamReader>

// The export dialog: the free default name, the locked proportions, the refusals that leave the
// dialog open, and pictures of a known scene in raster and vector formats.
class TestExportDialog : public QObject
{
    Q_OBJECT

    QTemporaryDir home;

    static PhysicsWorld* world() { return PhysicsWorld::instance(); }
    template<typename Widget> static Widget* child(ExportDialog& dialog, const char* name)
    {
        auto* widget = dialog.findChild<Widget*>(QLatin1String(name));
        Q_ASSERT(widget);
        return widget;
    }
    static QSpinBox* widthBox(ExportDialog& dialog)
    {
        return child<QSpinBox>(dialog, "imageWidthSpinBox");
    }
    static QSpinBox* heightBox(ExportDialog& dialog)
    {
        return child<QSpinBox>(dialog, "imageHeightSpinBox");
    }
    // Sets where, under which name and in which format the dialog writes, and accepts it.
    static QString exportTo(ExportDialog& dialog, const QString& directory, const QString& format)
    {
        child<QLineEdit>(dialog, "imageDirectoryLineEdit")->setText(directory);
        child<QLineEdit>(dialog, "imageFilenameLineEdit")->setText(QStringLiteral("picture"));
        child<QComboBox>(dialog, "imageFormatComboBox")->setCurrentText(format);
        dialog.accept();
        return directory + QStringLiteral("/picture.") + format;
    }
    // A red square of 4 m at (2, 2) and a blue disc of radius 2 at (10, 2): the scene spans
    // 12 by 4 metres, 240 by 80 pixels.
    static void twoBodies()
    {
        RectangleItem* square = world()->createRectangle(2, 2, 0, 4, 4);
        CircleItem* disc = world()->createCircle(10, 2, 0, 2);
        for (BodyItem* body : world()->bodyItems())
            body->setBodyType(BodyItem::StaticBody);
        square->setBrush(QBrush(Qt::red));
        disc->setBrush(QBrush(Qt::blue));
        square->graphicsItem()->setSelected(true);
    }
    static bool near(QRgb pixel, QColor expected)
    {
        return qAbs(qRed(pixel) - expected.red()) < 40
            && qAbs(qGreen(pixel) - expected.green()) < 40
            && qAbs(qBlue(pixel) - expected.blue()) < 40;
    }

private slots:
    void initTestCase()
    {
        QVERIFY(home.isValid());
        qputenv("HOME", home.path().toLocal8Bit());
    }
    void init()
    {
        Application::instance()->newFile(true);
        world()->removeAllBodies();
    }

    void defaultNameIsFree_data()
    {
        QTest::addColumn<QStringList>("existing");
        QTest::addColumn<QString>("name");
        QTest::newRow("none") << QStringList() << "Brivane_Export";
        QTest::newRow("taken") << QStringList {"Brivane_Export.png"} << "Brivane_Export_1";
        QTest::newRow("two taken")
            << QStringList {"Brivane_Export.png", "Brivane_Export_1.png"} << "Brivane_Export_2";
        QTest::newRow("other format") << QStringList {"Brivane_Export.jpg"} << "Brivane_Export";
    }
    void defaultNameIsFree()
    {
        QFETCH(QStringList, existing);
        QFETCH(QString, name);
        QDir(home.path()).removeRecursively();
        QDir().mkpath(home.path());
        for (const QString& file : existing)
            QFile(home.filePath(file)).open(QIODevice::WriteOnly);
        ExportDialog dialog;
        QCOMPARE(child<QLineEdit>(dialog, "imageFilenameLineEdit")->text(), name);
        QCOMPARE(child<QLineEdit>(dialog, "imageDirectoryLineEdit")->text(), home.path());
        QCOMPARE(ExportDialog::freeFileName(home.filePath("missing"), "a", "png"), QString());
    }

    // Sizes start at twenty pixels to the metre and stay in proportion, within 1 to 9999.
    void sizeKeepsTheSceneProportions_data()
    {
        QTest::addColumn<QString>("scene");
        QTest::addColumn<QSize>("initial");
        QTest::addColumn<QString>("driven");
        QTest::addColumn<int>("value");
        QTest::addColumn<QSize>("expected");
        QTest::newRow("width") << "wide" << QSize(400, 200) << "width" << 100 << QSize(100, 50);
        QTest::newRow("height") << "wide" << QSize(400, 200) << "height" << 60 << QSize(120, 60);
        // The rounded height does not echo back into the width being typed.
        QTest::newRow("odd width") << "wide" << QSize(400, 200) << "width" << 101 << QSize(101, 51);
        QTest::newRow("beyond") << "wide" << QSize(400, 200) << "height" << 9999
                                << QSize(9999, 9999);
        QTest::newRow("under a metre")
            << "small" << QSize(16, 8) << "width" << 100 << QSize(100, 50);
        QTest::newRow("empty") << "empty" << QSize(1, 1) << "width" << 100 << QSize(100, 1);
    }
    void sizeKeepsTheSceneProportions()
    {
        QFETCH(QString, scene);
        QFETCH(QSize, initial);
        QFETCH(QString, driven);
        QFETCH(int, value);
        QFETCH(QSize, expected);
        if (scene == QLatin1String("wide"))
            world()->createRectangle(0, 0, 0, 20.9, 10.5);
        else if (scene == QLatin1String("small"))
            world()->createRectangle(0, 0, 0, 0.8, 0.4);
        ExportDialog dialog;
        QCOMPARE(QSize(widthBox(dialog)->value(), heightBox(dialog)->value()), initial);
        (driven == QLatin1String("width") ? widthBox(dialog) : heightBox(dialog))->setValue(value);
        QCOMPARE(QSize(widthBox(dialog)->value(), heightBox(dialog)->value()), expected);
    }

    void refusalsLeaveTheDialogOpen_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("directory");
        QTest::addColumn<QString>("message");
        QTest::newRow("exists") << "taken" << home.path() << "File %1 already exists";
        QTest::newRow("no directory")
            << "new" << home.filePath("missing") << "Failed to save image";
        QTest::newRow("no name") << " " << home.path() << "Please enter a file name.";
    }
    void refusalsLeaveTheDialogOpen()
    {
        QFETCH(QString, name);
        QFETCH(QString, directory);
        QFETCH(QString, message);
        twoBodies();
        QFile taken(home.filePath("taken.png"));
        QVERIFY(taken.open(QIODevice::WriteOnly));
        taken.write("mine");
        taken.close();
        ExportDialog dialog;
        child<QLineEdit>(dialog, "imageDirectoryLineEdit")->setText(directory);
        child<QLineEdit>(dialog, "imageFilenameLineEdit")->setText(name);
        MessageBoxAnswerer answerer;
        dialog.show();
        QTimer::singleShot(0, &dialog, &ExportDialog::accept);
        QTRY_COMPARE(answerer.texts.size(), 1);
        QCOMPARE(answerer.texts.first(),
                 message.arg(directory + QLatin1Char('/') + name + QStringLiteral(".png")));
        QVERIFY(dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
        QCOMPARE(taken.size(), qint64(4));
    }

    void uncheckedGroupWritesNothing()
    {
        twoBodies();
        ExportDialog dialog;
        QPushButton* ok
            = child<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Ok);
        child<QGroupBox>(dialog, "ImageGroupBox")->setChecked(false);
        QVERIFY(!ok->isEnabled());
        const QString target = exportTo(dialog, home.path(), QStringLiteral("png"));
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QVERIFY(!QFile::exists(target));
        child<QGroupBox>(dialog, "ImageGroupBox")->setChecked(true);
        QVERIFY(ok->isEnabled());
    }

    // Each format shows both bodies where they stand, on white, at the asked size.
    void picturesShowTheScene_data()
    {
        QTest::addColumn<QString>("format");
        for (const char* format : {"png", "jpg", "bmp", "svg", "pdf"})
            QTest::newRow(format) << QString(format);
    }
    void picturesShowTheScene()
    {
        QFETCH(QString, format);
        twoBodies();
        QTemporaryDir directory;
        ExportDialog dialog;
        QCOMPARE(QSize(widthBox(dialog)->value(), heightBox(dialog)->value()), QSize(240, 80));
        widthBox(dialog)->setValue(480);
        const QString target = exportTo(dialog, directory.path(), format);
        QCOMPARE(child<QSpinBox>(dialog, "imageQualitySpinBox")->isEnabled(),
                 format != QLatin1String("svg") && format != QLatin1String("pdf"));
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        // The selection, left out of the picture, is back as it was.
        QCOMPARE(world()->bodyItems().first()->graphicsItem()->isSelected(), true);

        QImage picture;
        if (format == QLatin1String("svg")) {
            QFile file(target);
            QVERIFY(file.open(QIODevice::ReadOnly));
            // Each body's colour fills a group that holds a shape.
            QStringList filled;
            QXmlStreamReader xml(&file);
            QString fill;
            while (!xml.atEnd()) {
                xml.readNext();
                if (!xml.isStartElement())
                    continue;
                if (xml.name() == QLatin1String("g"))
                    fill = xml.attributes().value(QLatin1String("fill")).toString();
                else if (QStringList({"path", "rect", "circle", "ellipse", "polygon"})
                             .contains(xml.name().toString()))
                    filled.append(fill);
            }
            QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
            QVERIFY(filled.contains(QStringLiteral("#ff0000")));
            QVERIFY(filled.contains(QStringLiteral("#0000ff")));
            QSvgRenderer renderer(target);
            QVERIFY(renderer.isValid());
            QCOMPARE(renderer.viewBox(), QRect(0, 0, 480, 160));
            picture = QImage(renderer.viewBox().size(), QImage::Format_ARGB32);
            QPainter painter(&picture);
            renderer.render(&painter);
        } else if (format == QLatin1String("pdf")) {
            const QString pdftoppm = QStandardPaths::findExecutable(QStringLiteral("pdftoppm"));
            QVERIFY2(!pdftoppm.isEmpty(), "pdftoppm (poppler-utils) is needed");
            const QString rendered = directory.filePath(QStringLiteral("rendered"));
            QCOMPARE(
                QProcess::execute(pdftoppm, {"-png", "-r", "72", "-singlefile", target, rendered}),
                0);
            picture.load(rendered + QStringLiteral(".png"));
        } else {
            picture.load(target);
        }
        QCOMPARE(picture.size(), QSize(480, 160));
        QVERIFY(near(picture.pixel(80, 80), Qt::red));
        QVERIFY(near(picture.pixel(400, 120), Qt::blue));
        QVERIFY(near(picture.pixel(240, 80), Qt::white));
        QVERIFY(near(picture.pixel(470, 5), Qt::white));
    }
};

BRIVANE_APPLICATION_TEST_MAIN(TestExportDialog)
#include "tst_exportdialog.moc"
