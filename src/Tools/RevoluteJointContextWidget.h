#pragma once

#include "Tools/ActionContextWidget.h"

#include <QDoubleSpinBox>
#include <QLabel>

// The strip of the revolute joint tool: the radius the joint is drawn with, in metres. The
// tool's preview follows it at once through the signal.
class RevoluteJointContextWidget : public ActionContextWidget
{
    Q_OBJECT

public:
    RevoluteJointContextWidget();

    void retranslate() override;

signals:
    void revoluteJointRadiusChanged(double radius);

public slots:
    void onRevoluteJointRadiusChanged(double radius);

private:
    QLabel radiusLabel;
    QDoubleSpinBox radiusSpinBox;
};
