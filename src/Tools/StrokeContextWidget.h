#pragma once

#include "Tools/ActionContextWidget.h"

#include <QLabel>
#include <QSlider>

class Settings;

// The strip of the freehand tools: the width of the stroke on a slider that counts in
// hundredths of a metre.
class StrokeContextWidget : public ActionContextWidget
{
    Q_OBJECT

public:
    using Size = double Settings::*;
    using SetSize = void (Settings::*)(double);

    // The slider runs from `minimum` to `maximum` hundredths.
    StrokeContextWidget(Size size, SetSize setSize, int minimum, int maximum);

public slots:
    void onSizeChanged(int hundredths);

protected:
    QLabel sizeLabel;

private:
    QSlider sizeSlider;
    SetSize setSize;
};
