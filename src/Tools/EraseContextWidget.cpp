#include "Tools/EraseContextWidget.h"

#include "Application/Settings.h"

EraseContextWidget::EraseContextWidget()
    : StrokeContextWidget(&Settings::eraseSize, &Settings::setEraseSize, 1, 20)
{
    retranslate();
}

void EraseContextWidget::retranslate()
{
    sizeLabel.setText(tr("Eraser Size"));
}
