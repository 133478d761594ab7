#pragma once

#include "Tools/StrokeContextWidget.h"

// The strip of the brush tool: the width of its freehand bodies, 0.10 to 1.00 m.
class BrushContextWidget : public StrokeContextWidget
{
    Q_OBJECT

public:
    BrushContextWidget();

    void retranslate() override;
};
