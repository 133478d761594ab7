#pragma once

#include "Tools/ActionContextWidget.h"

#include <QLabel>
#include <QPushButton>

class Settings;

// A strip that begins with a colour: a swatch of the stored colour and a button that opens the
// colour dialog. The settings keep the colour as QColor::name() text.
class ColorContextWidget : public ActionContextWidget
{
    Q_OBJECT

public:
    using Color = QString Settings::*;
    using SetColor = void (Settings::*)(QString);

    ColorContextWidget(Color color, SetColor setColor);

    void retranslate() override;

public slots:
    // A cancelled dialog changes nothing.
    void onColorPushButtonClicked();

private:
    // A colour that does not parse shows as an empty, outlined swatch.
    void showColor(const QColor& color);

    QLabel colorLabel;
    QLabel swatch;
    QPushButton selectButton;
    Color color;
    SetColor setColor;
};
