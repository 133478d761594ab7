#include "Tools/ColorContextWidget.h"

#include "Application/Settings.h"

#include <QColorDialog>

namespace {
QColor storedColor(const QString& name)
{
    QColor color;
    color.setNamedColor(name);
    return color;
}
} // namespace

ColorContextWidget::ColorContextWidget(Color color, SetColor setColor)
    : color(color)
    , setColor(setColor)
{
    swatch.setAutoFillBackground(true);
    swatch.setMaximumHeight(24);
    swatch.setMinimumWidth(60);
    showColor(storedColor(Settings::instance()->*color));
    addControls({&colorLabel, &swatch, &selectButton});
    connect(&selectButton, &QPushButton::clicked, this,
            &ColorContextWidget::onColorPushButtonClicked);
}

void ColorContextWidget::retranslate()
{
    colorLabel.setText(tr("Color"));
    selectButton.setText(tr("Select..."));
}

void ColorContextWidget::onColorPushButtonClicked()
{
    const QColor chosen
        = QColorDialog::getColor(storedColor(Settings::instance()->*color), this, QString());
    if (!chosen.isValid())
        return;
    showColor(chosen);
    (Settings::instance()->*setColor)(chosen.name());
}

void ColorContextWidget::showColor(const QColor& shown)
{
    swatch.setStyleSheet(shown.isValid()
                             ? QStringLiteral("QLabel { background: %1; }").arg(shown.name())
                             : QStringLiteral("QLabel { background: transparent; "
                                              "border: 1px dashed palette(mid); }"));
}
