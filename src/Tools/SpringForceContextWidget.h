#pragma once

#include "Tools/ColorContextWidget.h"

#include <QDoubleSpinBox>

// The strip of the spring tool: the colour of the coil, the stiffness in newtons per metre and
// the damping in newton-seconds per metre of the next spring.
class SpringForceContextWidget : public ColorContextWidget
{
    Q_OBJECT

public:
    SpringForceContextWidget();

    void retranslate() override;

public slots:
    void onSpringForceKChanged(double k);
    void onSpringForceDampingChanged(double damping);

private:
    QLabel kLabel;
    QDoubleSpinBox kSpinBox;
    QLabel dampingLabel;
    QDoubleSpinBox dampingSpinBox;
};
