#include "Tools/TextContextWidget.h"

#include "Application/Settings.h"

TextContextWidget::TextContextWidget()
{
    const Settings* settings = Settings::instance();
    textLineEdit.setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    textLineEdit.setText(settings->text);
    // A family that is not installed selects nothing, and the settings keep its name; the box
    // still shows the name, as the text tool asks the system for that family.
    fontFamilyComboBox.setCurrentIndex(fontFamilyComboBox.findText(settings->fontFamily));
    fontFamilyComboBox.setEditText(settings->fontFamily);
    fontPointSizeSpinBox.setRange(6, 32);
    fontPointSizeSpinBox.setValue(settings->fontPointSize);
    addControls({&textLabel, &textLineEdit});
    addControls({&fontFamilyLabel, &fontFamilyComboBox});
    addControls({&fontPointSizeLabel, &fontPointSizeSpinBox});
    connect(&textLineEdit, &QLineEdit::textChanged, this, &TextContextWidget::onTextChanged);
    // The family is taken when an item is chosen, not at each keystroke in the editable box.
    connect(&fontFamilyComboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this](int index) { onFontFamilyChanged(fontFamilyComboBox.itemText(index)); });
    connect(&fontPointSizeSpinBox, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &TextContextWidget::onFontPointSizeChanged);
    retranslate();
}

void TextContextWidget::retranslate()
{
    textLabel.setText(tr("Text"));
    fontFamilyLabel.setText(tr("Font Family"));
    fontPointSizeLabel.setText(tr("Font Size"));
}

void TextContextWidget::onTextChanged(QString text)
{
    Settings::instance()->setText(text);
    emit textChanged(text);
}

void TextContextWidget::onFontFamilyChanged(QString fontFamily)
{
    Settings::instance()->setFontFamily(fontFamily);
    emit fontFamilyChanged(fontFamily);
}

void TextContextWidget::onFontPointSizeChanged(int pointSize)
{
    Settings::instance()->setFontPointSize(pointSize);
    emit fontPointSizeChanged(pointSize);
}
