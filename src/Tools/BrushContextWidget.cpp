#include "Tools/BrushContextWidget.h"

#include "Application/Settings.h"

BrushContextWidget::BrushContextWidget()
    : StrokeContextWidget(&Settings::brushSize, &Settings::setBrushSize, 10, 100)
{
    retranslate();
}

void BrushContextWidget::retranslate()
{
    sizeLabel.setText(tr("Brush Size"));
}
