#include "Tools/StrokeContextWidget.h"

#include "Application/Settings.h"

StrokeContextWidget::StrokeContextWidget(Size size, SetSize setSize, int minimum, int maximum)
    : sizeSlider(Qt::Horizontal)
    , setSize(setSize)
{
    sizeSlider.setMaximumWidth(100);
    sizeSlider.setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    sizeSlider.setRange(minimum, maximum);
    sizeSlider.setSingleStep(1);
    sizeSlider.setValue(qRound(100.0 * (Settings::instance()->*size)));
    addControls({&sizeLabel, &sizeSlider});
    connect(&sizeSlider, &QSlider::valueChanged, this, &StrokeContextWidget::onSizeChanged);
}

void StrokeContextWidget::onSizeChanged(int hundredths)
{
    (Settings::instance()->*setSize)(hundredths / 100.0);
}
