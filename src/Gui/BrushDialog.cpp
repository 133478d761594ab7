#include "Gui/BrushDialog.h"

#include "ui_BrushDialog.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QGraphicsPathItem>
#include <QGraphicsScene>

namespace {
// The last entry of the pattern list; styles beyond it are gradients and textures.
const int lastPatternStyle = Qt::DiagCrossPattern;
} // namespace

BrushDialog::BrushDialog(QBrush brush, QString textureDirectory, QWidget* parent)
    : QDialog(parent)
    , ui(new Ui::BrushDialog)
    , texture(brush.texture())
    , textureDirectory(std::move(textureDirectory))
{
    ui->setupUi(this);
    ui->graphicsView->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    ui->graphicsView->setScene(new QGraphicsScene(this));
    ui->graphicsView->setBackgroundBrush(brush);
    paintPreview(ui->colorPreviewLabel, brush.color());
    ui->patternComboBox->setCurrentIndex(brush.style() > lastPatternStyle ? int(Qt::SolidPattern)
                                                                          : int(brush.style()));
    updateAutoAdjustButton();
    const QTransform transform = brush.transform();
    ui->horizontalScaleDoubleSpinBox->setValue(transform.m11());
    ui->horizontalOffsetDoubleSpinBox->setValue(transform.dx());
    ui->verticalScaleDoubleSpinBox->setValue(transform.m22());
    ui->verticalOffsetDoubleSpinBox->setValue(transform.dy());

    connect(ui->colorPatternGroupBox, &QGroupBox::toggled, this,
            &BrushDialog::onColorPatternGroupBoxToggled);
    connect(ui->textureGroupBox, &QGroupBox::toggled, this, &BrushDialog::onTextureGroupBoxToggle);
    connect(ui->colorSelectButton, &QPushButton::clicked, this,
            &BrushDialog::onColorSelectButtonClicked);
    connect(ui->textureSelectButton, &QPushButton::clicked, this,
            &BrushDialog::onTextureSelectButtonClicked);
    connect(ui->patternComboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &BrushDialog::onPatternChanged);
    for (QDoubleSpinBox* box : {ui->horizontalScaleDoubleSpinBox, ui->verticalScaleDoubleSpinBox,
                                ui->horizontalOffsetDoubleSpinBox, ui->verticalOffsetDoubleSpinBox})
        connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                &BrushDialog::onTransformationChanged);
    connect(ui->autoAdjustButton, &QPushButton::clicked, this, &BrushDialog::onAutoAdjust);

    // Both boxes start checked; the connections above make each call exclude the other.
    ui->colorPatternGroupBox->setChecked(texture.isNull());
    ui->textureGroupBox->setChecked(!texture.isNull());
}

BrushDialog::~BrushDialog() = default;

QBrush BrushDialog::brush() const
{
    return ui->graphicsView->backgroundBrush();
}

void BrushDialog::setBrush(const QBrush& brush)
{
    ui->graphicsView->setBackgroundBrush(brush);
}

void BrushDialog::applyTexture()
{
    // Setting a texture may reset the transformation, which the user has set apart from it.
    QBrush textured = brush();
    const QTransform transform = textured.transform();
    textured.setTexture(texture);
    textured.setTransform(transform);
    setBrush(textured);
}

void BrushDialog::paintPreview(QWidget* label, const QBrush& brush)
{
    QPalette palette = label->palette();
    palette.setBrush(QPalette::All, label->backgroundRole(), brush);
    label->setPalette(palette);
}

void BrushDialog::setOutline(const QPainterPath& path)
{
    QPainterPath closed = path;
    closed.closeSubpath();
    if (!pathItem) {
        pathItem = new QGraphicsPathItem();
        // A cosmetic pen: one pixel wide at any preview scale.
        pathItem->setPen(QPen(Qt::black, 0));
        ui->graphicsView->scene()->addItem(pathItem);
    }
    pathItem->setPath(closed);
    updateAutoAdjustButton();
    fitPreview();
}

void BrushDialog::setPreviewScale(double scale)
{
    ui->graphicsView->scale(scale, -scale);
}

void BrushDialog::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    fitPreview();
}

void BrushDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    fitPreview();
}

void BrushDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    QDialog::changeEvent(event);
}

void BrushDialog::onColorPatternGroupBoxToggled(bool on)
{
    ui->textureGroupBox->setChecked(!on);
    if (on) {
        const QColor colour
            = ui->colorPreviewLabel->palette().color(ui->colorPreviewLabel->backgroundRole());
        QBrush rebuilt(colour, Qt::BrushStyle(ui->patternComboBox->currentIndex()));
        rebuilt.setTransform(brush().transform());
        setBrush(rebuilt);
    }
    updateAutoAdjustButton();
}

void BrushDialog::onTextureGroupBoxToggle(bool on)
{
    ui->colorPatternGroupBox->setChecked(!on);
    if (on)
        applyTexture();
    updateAutoAdjustButton();
}

void BrushDialog::onColorSelectButtonClicked()
{
    QBrush coloured = brush();
    const QColor colour = QColorDialog::getColor(coloured.color(), this);
    if (!colour.isValid())
        return;
    paintPreview(ui->colorPreviewLabel, colour);
    coloured.setColor(colour);
    setBrush(coloured);
}

void BrushDialog::onTextureSelectButtonClicked()
{
    const QString filename = QFileDialog::getOpenFileName(
        this, tr("Select Texture"), textureDirectory, tr("Image Files (*.png *.jpg *.bmp *.gif)"));
    if (!filename.isEmpty()) {
        texture = QPixmap(filename);
        ui->textureFilenameLabel->setText(QFileInfo(filename).fileName());
        ui->textureFilenameLabel->setToolTip(filename);
        applyTexture();
    }
    ui->graphicsView->viewport()->update();
    updateAutoAdjustButton();
}

void BrushDialog::onPatternChanged(int index)
{
    QBrush patterned = brush();
    patterned.setStyle(Qt::BrushStyle(index));
    setBrush(patterned);
}

void BrushDialog::onTransformationChanged()
{
    QBrush transformed = brush();
    transformed.setTransform(QTransform(ui->horizontalScaleDoubleSpinBox->value(), 0.0, 0.0,
                                        ui->verticalScaleDoubleSpinBox->value(),
                                        ui->horizontalOffsetDoubleSpinBox->value(),
                                        ui->verticalOffsetDoubleSpinBox->value()));
    setBrush(transformed);
}

void BrushDialog::onAutoAdjust()
{
    if (!pathItem || texture.isNull())
        return;
    const QRectF bounds = pathItem->boundingRect();
    ui->horizontalScaleDoubleSpinBox->setValue(bounds.width() / texture.width());
    // Scene y points up while the rows of a picture run down.
    ui->verticalScaleDoubleSpinBox->setValue(-bounds.height() / texture.height());
    ui->horizontalOffsetDoubleSpinBox->setValue(bounds.width() * 0.5);
    ui->verticalOffsetDoubleSpinBox->setValue(bounds.height() * 0.5);
}

void BrushDialog::updateAutoAdjustButton()
{
    ui->autoAdjustButton->setEnabled(ui->textureGroupBox->isChecked() && pathItem
                                     && !texture.isNull());
}

void BrushDialog::fitPreview()
{
    if (!pathItem)
        return;
    ui->graphicsView->fitInView(pathItem, Qt::KeepAspectRatio);
    const double scale = ui->graphicsView->transform().m11();
    ui->graphicsView->setTransform(QTransform(scale, 0.0, 0.0, -scale, 0.0, 0.0));
}
