#pragma once

#include "Tools/LinkContextWidget.h"

// The strip of the chain tool, with the radius of a link, in metres.
class ChainContextWidget : public LinkContextWidget
{
    Q_OBJECT

public:
    ChainContextWidget();

    void retranslate() override;
};
