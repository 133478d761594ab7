#include "Gui/TipDialog.h"

#include "Application/Settings.h"
#include "ui_TipDialog.h"

TipDialog::TipDialog(QWidget* parent)
    : QDialog(parent)
    , ui(new Ui::TipDialog)
{
    ui->setupUi(this);
    ui->showTipsAtStartup->setChecked(Settings::instance()->showTipsAtStartup);
    setFixedSize(size());
    const QString website = websiteUrl().toString();
    tips = QStringList {
        tr("You could <B>improve rendering performance</B> by enabling OpenGL in settings."),
        tr("You can show and hide the Property Editor using Shift+P."),
        tr("You can show and hide the Console using Shift+~."),
        tr("You can switch between <B>perspectives</B> using <I>Alt + 1 .. 4</I>."),
        tr("<B>Download</B> scenes that other people have created by selecting "
           "<I>File::Download</I> from the menu bar."),
        tr("You can <B>upload</B> your scene to <A HREF='%1'>%2</A> by selecting "
           "<I>File::Upload</I> from the menu bar.")
            .arg(website, website)};
    index = qrand() % tips.size();
    showTip();
    connect(ui->showTipsAtStartup, &QCheckBox::toggled, this,
            &TipDialog::onShowTipsAtStartupToggled);
    connect(ui->nextButton, &QPushButton::clicked, this, &TipDialog::onNext);
    connect(ui->previousButton, &QPushButton::clicked, this, &TipDialog::onPrevious);
    connect(ui->closeButton, &QPushButton::clicked, this, &QDialog::accept);
}

TipDialog::~TipDialog() = default;

void TipDialog::onShowTipsAtStartupToggled(bool showTipsAtStartup)
{
    Settings::instance()->setShowTipsAtStartup(showTipsAtStartup);
}

void TipDialog::onNext()
{
    index = (index + 1) % tips.size();
    showTip();
}

void TipDialog::onPrevious()
{
    index = (index + tips.size() - 1) % tips.size();
    showTip();
}

void TipDialog::showTip()
{
    ui->textLabel->setText(tips.at(index));
}
