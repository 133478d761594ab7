#pragma once

#include "Tools/LinkContextWidget.h"

// The strip of the rope tool, with the length of a link, in metres.
class RopeContextWidget : public LinkContextWidget
{
    Q_OBJECT

public:
    RopeContextWidget();

    void retranslate() override;
};
