#include "Tools/ChainContextWidget.h"

#include "Application/Settings.h"

ChainContextWidget::ChainContextWidget()
    : LinkContextWidget({&Settings::chainColor, &Settings::setChainColor,
                         &Settings::chainCircleRadius, &Settings::setChainCircleRadius, 0.05, 0.5,
                         &Settings::chainAttachPoint, &Settings::setChainAttachPoint})
{
    retranslate();
}

void ChainContextWidget::retranslate()
{
    LinkContextWidget::retranslate();
    sizeLabel.setText(tr("Circle Radius"));
}
