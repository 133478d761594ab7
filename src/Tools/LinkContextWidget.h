#pragma once

#include "Tools/ColorContextWidget.h"

#include <QComboBox>
#include <QDoubleSpinBox>

// The strip of the tools that lay links along a stroke: their colour, the size of a link and
// which ends of the line are pinned.
class LinkContextWidget : public ColorContextWidget
{
    Q_OBJECT

public:
    using Size = double Settings::*;
    using SetSize = void (Settings::*)(double);
    using AttachPoint = int Settings::*;
    using SetAttachPoint = void (Settings::*)(int);

    // The settings keys of one tool and the range of its link size, in metres.
    struct Keys
    {
        Color color;
        SetColor setColor;
        Size size;
        SetSize setSize;
        double minimumSize;
        double maximumSize;
        AttachPoint attachPoint;
        SetAttachPoint setAttachPoint;
    };

    explicit LinkContextWidget(const Keys& keys);

    void retranslate() override;

public slots:
    void onSizeChanged(double size);
    void onAttachPointChanged(int index);

protected:
    QLabel sizeLabel;

private:
    QDoubleSpinBox sizeSpinBox;
    QLabel attachPointLabel;
    QComboBox attachPointComboBox;
    Keys keys;
};
