#pragma once

#include "Tools/ActionContextWidget.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>

// The strip of the explode tool: how a body breaks (into triangles, squares or circles) and the
// size of a piece in metres, which triangles do not take.
class ExplodeContextWidget : public ActionContextWidget
{
    Q_OBJECT

public:
    ExplodeContextWidget();

    void retranslate() override;

public slots:
    // Also enables the size exactly when the chosen method takes one. A strip just made has the
    // size enabled whatever the method.
    void onMethodChanged(int index);
    void onSizeChanged(double size);

private:
    QLabel methodLabel;
    QComboBox methodComboBox;
    QLabel sizeLabel;
    QDoubleSpinBox sizeSpinBox;
};
