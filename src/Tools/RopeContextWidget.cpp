#include "Tools/RopeContextWidget.h"

#include "Application/Settings.h"

RopeContextWidget::RopeContextWidget()
    : LinkContextWidget({&Settings::ropeColor, &Settings::setRopeColor,
                         &Settings::ropeRectangleWidth, &Settings::setRopeRectangleWidth, 0.1, 1.0,
                         &Settings::ropeAttachPoint, &Settings::setRopeAttachPoint})
{
    retranslate();
}

void RopeContextWidget::retranslate()
{
    LinkContextWidget::retranslate();
    sizeLabel.setText(tr("Rectangle Width"));
}
