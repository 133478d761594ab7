#include "Tools/ExplodeContextWidget.h"

#include "Application/Settings.h"
#include "Commands/ExplodeCommand.h"

ExplodeContextWidget::ExplodeContextWidget()
{
    setUp(sizeSpinBox, 0.2, 5.0, 0.1, Settings::instance()->explodeSize);
    addControls({&methodLabel, &methodComboBox});
    addControls({&sizeLabel, &sizeSpinBox});
    connect(&methodComboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &ExplodeContextWidget::onMethodChanged);
    connect(&sizeSpinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &ExplodeContextWidget::onSizeChanged);
    retranslate();
}

void ExplodeContextWidget::retranslate()
{
    methodLabel.setText(tr("Explode Method"));
    sizeLabel.setText(tr("Size"));
    refill(methodComboBox, {tr("Triangulate"), tr("Squarify"), tr("Circlify")},
           {ExplodeCommand::Triangulate, ExplodeCommand::Squarify, ExplodeCommand::Circlify},
           Settings::instance()->explodeMethod);
}

void ExplodeContextWidget::onMethodChanged(int index)
{
    const int method = methodComboBox.itemData(index).toInt();
    Settings::instance()->setExplodeMethod(method);
    sizeLabel.setEnabled(method != ExplodeCommand::Triangulate);
    sizeSpinBox.setEnabled(method != ExplodeCommand::Triangulate);
}

void ExplodeContextWidget::onSizeChanged(double size)
{
    Settings::instance()->setExplodeSize(size);
}
