#include "Tools/GearContextWidget.h"

#include "Application/Settings.h"

GearContextWidget::GearContextWidget()
{
    const Settings* settings = Settings::instance();
    setUp(toothSizeSpinBox, 0.1, 2.0, 0.05, settings->gearToothSize);
    setUp(toothCountDivisorSpinBox, 0.1, 2.0, 0.05, settings->gearToothCountDivisor);
    createRevoluteJointCheckBox.setChecked(settings->gearCreateRevoluteJoint);
    addControls({&toothSizeLabel, &toothSizeSpinBox});
    addControls({&toothCountDivisorLabel, &toothCountDivisorSpinBox});
    addControls({&createRevoluteJointLabel, &createRevoluteJointCheckBox});
    connect(&toothSizeSpinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &GearContextWidget::onGearToothSizeChanged);
    connect(&toothCountDivisorSpinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &GearContextWidget::onGearToothCountDivisorChanged);
    connect(&createRevoluteJointCheckBox, &QCheckBox::toggled, this,
            &GearContextWidget::onGearCreateRevoluteJointToggled);
    retranslate();
}

void GearContextWidget::retranslate()
{
    toothSizeLabel.setText(tr("Gear Tooth Size"));
    toothCountDivisorLabel.setText(tr("Gear Tooth Count Divisor"));
    createRevoluteJointLabel.setText(tr("Create Revolute Joint"));
}

void GearContextWidget::onGearToothSizeChanged(double size)
{
    Settings::instance()->setGearToothSize(size);
}

void GearContextWidget::onGearToothCountDivisorChanged(double divisor)
{
    Settings::instance()->setGearToothCountDivisor(divisor);
}

void GearContextWidget::onGearCreateRevoluteJointToggled(bool create)
{
    Settings::instance()->setGearCreateRevoluteJoint(create);
}
