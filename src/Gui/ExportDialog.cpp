#include "Gui/ExportDialog.h"

#include "Physics/PhysicsItemList.h"
#include "Physics/PhysicsWorld.h"
#include "View/GraphicsScene.h"
#include "ui_ExportDialog.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QImageWriter>
#include <QMessageBox>
#include <QPainter>
#include <QPdfWriter>
#include <QPushButton>
#include <QSvgGenerator>
#include <QtMath>

namespace {
const double pixelsPerMetre = 20.0;
const QString svgFormat = QStringLiteral("svg");
const QString pdfFormat = QStringLiteral("pdf");
} // namespace

ExportDialog::ExportDialog(QWidget* parent)
    : QDialog(parent)
    , ui(new Ui::ExportDialog)
{
    ui->setupUi(this);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &ExportDialog::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);

    ui->imageDirectoryLineEdit->setText(QDir::homePath());
    connect(ui->imageDirectoryBrowseButton, &QPushButton::clicked, this,
            &ExportDialog::onImageDirectoryBrowseButtonClicked);
    ui->imageFilenameLineEdit->setText(
        QFileInfo(
            freeFileName(QDir::homePath(), QStringLiteral("Brivane_Export"), QStringLiteral("png")))
            .completeBaseName());

    // The size starts from whole metres. A scene less than a metre wide or high takes its
    // exact sides instead, so that it is not cut down to a single pixel; an empty scene has
    // no proportions to keep.
    sceneArea = PhysicsWorld::instance()->itemsBoundingRect();
    QSizeF metres(int(sceneArea.width()), int(sceneArea.height()));
    if (metres.isEmpty())
        metres = sceneArea.size();
    if (!metres.isEmpty())
        aspectRatio = metres.width() / metres.height();
    const int most = ui->imageWidthSpinBox->maximum();
    ui->imageWidthSpinBox->setValue(qRound(qMin(metres.width() * pixelsPerMetre, double(most))));
    ui->imageHeightSpinBox->setValue(qRound(qMin(metres.height() * pixelsPerMetre, double(most))));
    connect(ui->imageWidthSpinBox, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &ExportDialog::onImageWidthChanged);
    connect(ui->imageHeightSpinBox, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &ExportDialog::onImageHeightChanged);

    QStringList formats;
    for (const QByteArray& format : QImageWriter::supportedImageFormats())
        formats.append(QString::fromLatin1(format));
    for (const QString& vector : {svgFormat, pdfFormat}) {
        if (!formats.contains(vector))
            formats.append(vector);
    }
    ui->imageFormatComboBox->addItems(formats);
    ui->imageFormatComboBox->setCurrentText(QStringLiteral("png"));
    connect(ui->imageFormatComboBox, &QComboBox::currentTextChanged, this,
            &ExportDialog::onImageFormatChanged);
    ui->imageQualitySpinBox->setValue(70);

    connect(ui->ImageGroupBox, &QGroupBox::toggled, this, &ExportDialog::onGroupBoxToggled);
    retranslate();
}

ExportDialog::~ExportDialog() = default;

QString ExportDialog::freeFileName(const QString& directory, const QString& base,
                                   const QString& extension)
{
    const QDir dir(directory);
    if (!dir.exists())
        return QString();
    QString name = QStringLiteral("%1.%2").arg(base, extension);
    for (int counter = 1; dir.exists(name); ++counter)
        name = QStringLiteral("%1_%2.%3").arg(base).arg(counter).arg(extension);
    return name;
}

void ExportDialog::retranslate()
{
    ui->retranslateUi(this);
}

void ExportDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}

void ExportDialog::onGroupBoxToggled()
{
    ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(ui->ImageGroupBox->isChecked());
}

void ExportDialog::onImageDirectoryBrowseButtonClicked()
{
    const QString chosen = QFileDialog::getExistingDirectory(
        this, tr("Select Directory"), ui->imageDirectoryLineEdit->text(),
        QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks);
    if (!chosen.isEmpty())
        ui->imageDirectoryLineEdit->setText(chosen);
}

// The box set by the other does not answer back: the echo of a rounded value would change the
// number under the user's fingers while typing. A value beyond the boxes' range is held at the
// end and leaves the pair out of proportion.
void ExportDialog::onImageWidthChanged(int width)
{
    if (aspectRatio <= 0.0)
        return;
    const QSignalBlocker blocker(ui->imageHeightSpinBox);
    ui->imageHeightSpinBox->setValue(
        qRound(qMin(width / aspectRatio, double(ui->imageHeightSpinBox->maximum()))));
}

void ExportDialog::onImageHeightChanged(int height)
{
    if (aspectRatio <= 0.0)
        return;
    const QSignalBlocker blocker(ui->imageWidthSpinBox);
    ui->imageWidthSpinBox->setValue(
        qRound(qMin(height * aspectRatio, double(ui->imageWidthSpinBox->maximum()))));
}

void ExportDialog::onImageFormatChanged()
{
    // Vector pictures have no compression to choose.
    ui->imageQualitySpinBox->setEnabled(!isVectorFormat());
}

bool ExportDialog::isVectorFormat() const
{
    const QString format = ui->imageFormatComboBox->currentText();
    return format == svgFormat || format == pdfFormat;
}

void ExportDialog::accept()
{
    if (!ui->ImageGroupBox->isChecked()) {
        QDialog::accept();
        return;
    }
    if (ui->imageFilenameLineEdit->text().trimmed().isEmpty()) {
        QMessageBox::warning(this, tr("Error"), tr("Please enter a file name."));
        return;
    }
    const QString target = ui->imageDirectoryLineEdit->text() + QLatin1Char('/')
        + ui->imageFilenameLineEdit->text() + QLatin1Char('.')
        + ui->imageFormatComboBox->currentText();
    if (QFile::exists(target)) {
        QMessageBox::warning(this, QStringLiteral("Error"),
                             tr("File %1 already exists").arg(target));
        return;
    }
    if (!save(target)) {
        QMessageBox::warning(this, tr("Error"), tr("Failed to save image"));
        return;
    }
    QDialog::accept();
}

bool ExportDialog::save(const QString& target) const
{
    const QSize size(ui->imageWidthSpinBox->value(), ui->imageHeightSpinBox->value());
    const QString format = ui->imageFormatComboBox->currentText();
    if (format == svgFormat) {
        QSvgGenerator generator;
        generator.setFileName(target);
        generator.setSize(size);
        // Written in millimetres: at the 96 dots per inch of CSS pixels they come to the size.
        generator.setResolution(96);
        generator.setViewBox(QRect(QPoint(), size));
        generator.setTitle(QFileInfo(target).completeBaseName());
        paint(&generator);
        return QFileInfo(target).size() > 0;
    }
    if (format == pdfFormat) {
        QPdfWriter writer(target);
        // A point of the page is a pixel of the picture.
        writer.setResolution(72);
        writer.setPageSize(QPageSize(size, QString(), QPageSize::ExactMatch));
        writer.setPageMargins(QMarginsF());
        writer.setTitle(QFileInfo(target).completeBaseName());
        paint(&writer);
        return QFileInfo(target).size() > 0;
    }
    QImage image(size, QImage::Format_ARGB32);
    if (image.isNull())
        return false;
    paint(&image);
    return image.save(target, format.toLatin1().constData(), ui->imageQualitySpinBox->value());
}

void ExportDialog::paint(QPaintDevice* device) const
{
    QPainter painter;
    if (!painter.begin(device))
        return;
    const QRectF page(0.0, 0.0, device->width(), device->height());
    painter.fillRect(page, Qt::white);
    // An empty scene would render the whole scene rectangle: the page stays white.
    if (sceneArea.isEmpty())
        return;
    // The scene's y axis points up.
    painter.setTransform(QTransform(1, 0, 0, -1, 0, page.height()));
    painter.setRenderHint(QPainter::Antialiasing);
    // The selection's outlines are not part of the picture.
    GraphicsScene* scene = PhysicsWorld::instance()->graphicsScene();
    const PhysicsItemList selection(scene);
    selection.setSelected(false);
    scene->render(&painter, page, sceneArea, Qt::KeepAspectRatio);
    selection.setSelected(true);
}
