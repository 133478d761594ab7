#include "Gui/HelpWidget.h"

#include "ui_HelpWidget.h"

#include <QDir>
#include <QUrl>

HelpWidget::HelpWidget(QWidget* parent)
    : QWidget(parent)
    , ui(new Ui::HelpWidget)
{
    ui->setupUi(this);
    ui->backwardToolButton->setEnabled(false);
    ui->forwardToolButton->setEnabled(false);
    connect(ui->textBrowser, &QTextBrowser::backwardAvailable, this,
            &HelpWidget::onBackwardAvailable);
    connect(ui->textBrowser, &QTextBrowser::forwardAvailable, this,
            &HelpWidget::onForwardAvailable);
    connect(ui->homeToolButton, &QToolButton::clicked, ui->textBrowser, &QTextBrowser::home);
    connect(ui->backwardToolButton, &QToolButton::clicked, ui->textBrowser,
            &QTextBrowser::backward);
    connect(ui->forwardToolButton, &QToolButton::clicked, ui->textBrowser, &QTextBrowser::forward);
    ui->textBrowser->setSource(QUrl::fromLocalFile(QCoreApplication::applicationDirPath()
                                                   + QDir::separator()
                                                   + QStringLiteral("doc/en/index.html")));
    ui->textBrowser->setOpenExternalLinks(true);
    setWindowTitle(tr("Brivane Help"));
    resize(800, 800);
}

HelpWidget::~HelpWidget() = default;

void HelpWidget::onBackwardAvailable(bool available)
{
    ui->backwardToolButton->setEnabled(available);
}

void HelpWidget::onForwardAvailable(bool available)
{
    ui->forwardToolButton->setEnabled(available);
}
