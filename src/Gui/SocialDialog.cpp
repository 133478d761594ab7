#include "Gui/SocialDialog.h"

#include "Application/Settings.h"
#include "Gui/SocialWidget.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

SocialDialog::SocialDialog(QWidget* parent)
    : QDialog(parent)
{
    auto* layout = new QVBoxLayout(this);
    const QString name = QCoreApplication::applicationName();
    auto* text = new QLabel(tr("%1 is a <b>free software</b>. Please <b>support it</b> by "
                               "submitting it to your favourite social networking sites using "
                               "the buttons below.")
                                .arg(name),
                            this);
    text->setWordWrap(true);
    layout->addWidget(text);
    layout->addWidget(
        new SocialWidget(websiteUrl().toString(), QStringLiteral("2D Physics Simulation"), this));
    layout->addSpacing(20);
    auto* buttons = new QDialogButtonBox(Qt::Horizontal, this);
    QPushButton* quit = buttons->addButton(tr("Quit"), QDialogButtonBox::RejectRole);
    quit->setIcon(QIcon(QStringLiteral(":/icons/shutdown.png")));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    setFixedSize(400, 200);
    setWindowTitle(tr("Please Support %1").arg(name));
}
