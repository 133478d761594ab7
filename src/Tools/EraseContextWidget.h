#pragma once

#include "Tools/StrokeContextWidget.h"

// The strip of the erase tool: the width of its erasing strokes, 0.01 to 0.20 m.
class EraseContextWidget : public StrokeContextWidget
{
    Q_OBJECT

public:
    EraseContextWidget();

    void retranslate() override;
};
