#pragma once

#include "Tools/ActionContextWidget.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLabel>

// The strip of the gear tool: the size of a tooth in metres, the divisor that turns the
// circumference into a tooth count, and whether a new gear is pinned at its centre.
class GearContextWidget : public ActionContextWidget
{
    Q_OBJECT

public:
    GearContextWidget();

    void retranslate() override;

public slots:
    void onGearToothSizeChanged(double size);
    void onGearToothCountDivisorChanged(double divisor);
    void onGearCreateRevoluteJointToggled(bool create);

private:
    QLabel toothSizeLabel;
    QDoubleSpinBox toothSizeSpinBox;
    QLabel toothCountDivisorLabel;
    QDoubleSpinBox toothCountDivisorSpinBox;
    QLabel createRevoluteJointLabel;
    QCheckBox createRevoluteJointCheckBox;
};
