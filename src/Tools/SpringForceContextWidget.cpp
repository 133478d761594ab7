#include "Tools/SpringForceContextWidget.h"

#include "Application/Settings.h"

SpringForceContextWidget::SpringForceContextWidget()
    : ColorContextWidget(&Settings::springForceColor, &Settings::setSpringForceColor)
{
    const Settings* settings = Settings::instance();
    setUp(kSpinBox, 1.0, 10000.0, 10.0, settings->springForceK);
    setUp(dampingSpinBox, 0.0, 1000.0, 5.0, settings->springForceDamping);
    addControls({&kLabel, &kSpinBox});
    addControls({&dampingLabel, &dampingSpinBox});
    connect(&kSpinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &SpringForceContextWidget::onSpringForceKChanged);
    connect(&dampingSpinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &SpringForceContextWidget::onSpringForceDampingChanged);
    retranslate();
}

void SpringForceContextWidget::retranslate()
{
    ColorContextWidget::retranslate();
    kLabel.setText(tr("K"));
    dampingLabel.setText(tr("Damping"));
}

void SpringForceContextWidget::onSpringForceKChanged(double k)
{
    Settings::instance()->setSpringForceK(k);
}

void SpringForceContextWidget::onSpringForceDampingChanged(double damping)
{
    Settings::instance()->setSpringForceDamping(damping);
}
