#pragma once

#include <QWidget>
#include <initializer_list>

class QComboBox;
class QDoubleSpinBox;
class QHBoxLayout;

// Base of the parameter strips of the tools. A strip shows what the settings held when it was
// made, and each of its controls writes its settings key at every change; the tools read the
// settings when they use a value. Subclasses own their controls as members, fill the row left
// to right, connect the controls after their first values are set, so that a stored value out
// of a control's range is clamped on screen only, and call retranslate() last.
class ActionContextWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ActionContextWidget(QWidget* parent = nullptr);

    // Sets every text and rebuilds every combo box of fixed items through tr.
    virtual void retranslate() = 0;

protected:
    void changeEvent(QEvent* event) override;

    // Appends controls to the row, then a gap of `spacing` pixels.
    void addControls(std::initializer_list<QWidget*> controls, int spacing = 10);
    static void setUp(QDoubleSpinBox& box, double minimum, double maximum, double step,
                      double value);
    // Refills a combo box of fixed items and selects the stored value: by item data where
    // `data` is given, else as the index. An unknown value selects nothing. Signals stay
    // blocked throughout, so a change of language neither writes the settings nor fires slots.
    static void refill(QComboBox& box, const QStringList& texts, const QList<int>& data,
                       int stored);

private:
    QHBoxLayout* row;
};
