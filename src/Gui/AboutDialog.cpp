#include "Gui/AboutDialog.h"

#include "Application/Settings.h"
#include "NemuToolbox/Toolbox.h"
#include "ui_AboutDialog.h"

namespace {
QString page(const char* name)
{
    return Nemu::Toolbox::readAll(QStringLiteral(":/html/%1.html").arg(QLatin1String(name)),
                                  QStringLiteral("UTF-8"));
}
} // namespace

AboutDialog::AboutDialog(QWidget* parent)
    : QDialog(parent)
    , ui(new Ui::AboutDialog)
{
    ui->setupUi(this);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    // Pictures of the page are named relative to it, inside the resources.
    ui->aboutTextBrowser->setSearchPaths({QStringLiteral(":/html")});
    QString about = page("about");
    about.replace(QLatin1String("{{BRIVANE_VERSION}}"), QCoreApplication::applicationVersion());
    about.replace(QLatin1String("{{EMAIL_ADDRESS}}"),
                  QString::fromUtf8(QByteArray::fromBase64(ContactAddress.toLatin1())));
    about.replace(QLatin1String("{{WEBSITE_URL}}"), websiteUrl().toString());
    ui->aboutTextBrowser->setHtml(about);
    ui->creditsTextBrowser->setHtml(page("credits"));
    ui->changelogTextBrowser->setHtml(page("changelog"));
    setWindowTitle(tr("About ") + QCoreApplication::applicationName());
    resize(640, 480);
}

AboutDialog::~AboutDialog() = default;
