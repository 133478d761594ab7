#include "Tools/RevoluteJointContextWidget.h"

#include "Application/Settings.h"

RevoluteJointContextWidget::RevoluteJointContextWidget()
{
    setUp(radiusSpinBox, 0.05, 2.0, 0.05, Settings::instance()->revoluteJointRadius);
    addControls({&radiusLabel, &radiusSpinBox}, 0);
    connect(&radiusSpinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &RevoluteJointContextWidget::onRevoluteJointRadiusChanged);
    retranslate();
}

void RevoluteJointContextWidget::retranslate()
{
    radiusLabel.setText(tr("Radius"));
}

void RevoluteJointContextWidget::onRevoluteJointRadiusChanged(double radius)
{
    Settings::instance()->setRevoluteJointRadius(radius);
    emit revoluteJointRadiusChanged(radius);
}
