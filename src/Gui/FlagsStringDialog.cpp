#include "Gui/FlagsStringDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QSpacerItem>

namespace {
const int groupCount = 16;
const int rowsPerColumn = 8;
const int spacerHeight = 20; // pixels
} // namespace

FlagsStringDialog::FlagsStringDialog(const FlagsString& flags, QWidget* parent)
    : QDialog(parent)
    , messageLabel(new QLabel(this))
{
    auto* layout = new QGridLayout(this);
    messageLabel->setWordWrap(true);
    messageLabel->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    layout->addWidget(messageLabel, 0, 0, 1, 2);
    const QList<QChar> letters = flags.letters();
    for (int group = 0; group < groupCount; ++group) {
        const QChar letter(QLatin1Char(char('A' + group)));
        // The group names are the letters themselves, the same in every language.
        auto* box = new QCheckBox(QStringLiteral("Group %1").arg(letter), this);
        box->setChecked(letters.contains(letter));
        layout->addWidget(box, 1 + group % rowsPerColumn, group / rowsPerColumn);
        checkBoxes.append(box);
    }
    layout->addItem(new QSpacerItem(width(), spacerHeight), rowsPerColumn + 1, 0, 1, 2);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel,
                                         Qt::Horizontal, this);
    buttons->setCenterButtons(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons, rowsPerColumn + 2, 0, 1, 2);
}

void FlagsStringDialog::setMessage(const QString& message)
{
    messageLabel->setText(message);
}

FlagsString FlagsStringDialog::flagsString() const
{
    QString letters;
    for (int group = 0; group < groupCount; ++group) {
        if (checkBoxes.at(group)->isChecked())
            letters += QLatin1Char(char('A' + group));
    }
    return FlagsString(letters);
}
