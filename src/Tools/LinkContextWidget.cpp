#include "Tools/LinkContextWidget.h"

#include "Application/Settings.h"
#include "Commands/ChainCommand.h"

LinkContextWidget::LinkContextWidget(const Keys& keys)
    : ColorContextWidget(keys.color, keys.setColor)
    , keys(keys)
{
    // Ten steps from the smallest size to the largest.
    setUp(sizeSpinBox, keys.minimumSize, keys.maximumSize, keys.minimumSize,
          Settings::instance()->*keys.size);
    addControls({&sizeLabel, &sizeSpinBox});
    addControls({&attachPointLabel, &attachPointComboBox});
    connect(&sizeSpinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &LinkContextWidget::onSizeChanged);
    connect(&attachPointComboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &LinkContextWidget::onAttachPointChanged);
}

void LinkContextWidget::retranslate()
{
    ColorContextWidget::retranslate();
    attachPointLabel.setText(tr("Attach Point"));
    refill(attachPointComboBox, {tr("First"), tr("Last"), tr("None"), tr("Both")},
           {ChainCommand::First, ChainCommand::Last, ChainCommand::None, ChainCommand::Both},
           Settings::instance()->*keys.attachPoint);
}

void LinkContextWidget::onSizeChanged(double size)
{
    (Settings::instance()->*keys.setSize)(size);
}

void LinkContextWidget::onAttachPointChanged(int index)
{
    (Settings::instance()->*keys.setAttachPoint)(attachPointComboBox.itemData(index).toInt());
}
