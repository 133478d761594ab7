#pragma once

#include "Tools/ActionContextWidget.h"

#include <QFontComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

// The strip of the text tool: the text, its font family and its size in points. The tool's
// preview follows each change at once through the signals.
class TextContextWidget : public ActionContextWidget
{
    Q_OBJECT

public:
    TextContextWidget();

    void retranslate() override;

signals:
    void textChanged(QString text);
    void fontFamilyChanged(QString fontFamily);
    void fontPointSizeChanged(int pointSize);

public slots:
    // Every keystroke is stored.
    void onTextChanged(QString text);
    void onFontFamilyChanged(QString fontFamily);
    void onFontPointSizeChanged(int pointSize);

private:
    QLabel textLabel;
    QLineEdit textLineEdit;
    QLabel fontFamilyLabel;
    QFontComboBox fontFamilyComboBox;
    QLabel fontPointSizeLabel;
    QSpinBox fontPointSizeSpinBox;
};
