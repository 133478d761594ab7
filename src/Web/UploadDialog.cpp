#include "Web/UploadDialog.h"

#include "Application/Settings.h"
#include "Web/FormPost.h"
#include "Web/WebsitePassword.h"
#include "ui_UploadDialog.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileInfo>
#include <QMessageBox>
#include <QMetaEnum>
#include <QPushButton>
#include <climits>
#include <iterator>

namespace {
enum UserType { Anonymous = 0, Registered = 1 };
const char* const categories[] = {QT_TRANSLATE_NOOP("UploadDialog", "Bug Report"),
                                  QT_TRANSLATE_NOOP("UploadDialog", "Educational"),
                                  QT_TRANSLATE_NOOP("UploadDialog", "Mechanisms"),
                                  QT_TRANSLATE_NOOP("UploadDialog", "Ragdolls"),
                                  QT_TRANSLATE_NOOP("UploadDialog", "Vehicles"),
                                  QT_TRANSLATE_NOOP("UploadDialog", "General")};
} // namespace

UploadDialog::UploadDialog(const QString& filename, QWidget* parent)
    : QDialog(parent)
    , ui(new Ui::UploadDialog)
    , formPost(new FormPost(this))
    , uploadUrl(repositoryUrl().resolved(QUrl(QStringLiteral("/scenes/upload/"))).toString())
    , filename(filename)
{
    ui->setupUi(this);
    ui->uploadAs->addItem(QString(), Anonymous);
    ui->uploadAs->addItem(QString(), Registered);
    for (int i = 0; i < int(std::size(categories)); ++i)
        ui->category->addItem(QString());
    retranslate();
    connect(ui->uploadAs, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &UploadDialog::onUploadAsChanged);
    const Settings* settings = Settings::instance();
    const int userType = ui->uploadAs->findData(settings->websiteUserType);
    ui->uploadAs->setCurrentIndex(userType < 0 ? 0 : userType);
    ui->loginGroupBox->setEnabled(ui->uploadAs->currentData().toInt() == Registered);
    ui->username->setText(settings->websiteUsername);
    ui->password->setText(WebsitePassword::load(settings->websiteUsername));
    ui->progressBar->hide();
    formPost->setUserAgent(QCoreApplication::applicationName() + QStringLiteral("Browser"));
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &UploadDialog::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    setMinimumWidth(360);
}

UploadDialog::~UploadDialog() = default;

void UploadDialog::retranslate()
{
    ui->retranslateUi(this);
    ui->uploadAs->setItemText(0, tr("Anonymous User"));
    ui->uploadAs->setItemText(1, tr("Registered User"));
    for (int i = 0; i < int(std::size(categories)); ++i)
        ui->category->setItemText(i, tr(categories[i]));
    const QUrl registration
        = websiteUrl().resolved(QUrl(QStringLiteral("/component/user/register")));
    ui->loginInfoLabel->setText(tr("If you don't already have an account, you can create one "
                                   "<a href='%1'>here</a>")
                                    .arg(registration.toString()));
    setWindowTitle(tr("Upload %1").arg(QFileInfo(filename).baseName()));
}

void UploadDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}

void UploadDialog::onUploadAsChanged(int index)
{
    const int userType = ui->uploadAs->itemData(index).toInt();
    Settings::instance()->setWebsiteUserType(userType);
    ui->loginGroupBox->setEnabled(userType == Registered);
}

void UploadDialog::accept()
{
    QString username = QStringLiteral("Anonymous");
    QString password = QStringLiteral("#########");
    if (ui->uploadAs->currentData().toInt() == Registered) {
        username = ui->username->text();
        password = ui->password->text();
        if (username.isEmpty() || password.isEmpty()) {
            QMessageBox::warning(this, tr("Error"), tr("Please fill in username and password"));
            return;
        }
        Settings::instance()->setWebsiteUsername(username);
        // Never the settings file: the keyring, or nowhere.
        WebsitePassword::store(username, password);
    }
    ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(false);
    networkError.clear();
    formPost->addField(QStringLiteral("username"), username);
    formPost->addField(QStringLiteral("password"), password);
    formPost->addField(QStringLiteral("category"), QString::number(ui->category->currentIndex()));
    formPost->addField(QStringLiteral("description"), ui->description->toPlainText());
    formPost->addField(QStringLiteral("keywords"), ui->keywords->text());
    formPost->addFile(QStringLiteral("sceneFile"), filename, QStringLiteral("application/zip"));
    QNetworkReply* reply = formPost->postData(uploadUrl);
    connect(reply, &QNetworkReply::errorOccurred, this, &UploadDialog::onError);
    connect(reply, &QNetworkReply::uploadProgress, this, &UploadDialog::onUploadProgress);
    connect(reply, &QNetworkReply::finished, this, &UploadDialog::onFinished);
}

void UploadDialog::onError(QNetworkReply::NetworkError code)
{
    qDebug().noquote() << "Network reply error:"
                       << QMetaEnum::fromType<QNetworkReply::NetworkError>().valueToKey(code);
    if (auto* reply = qobject_cast<QNetworkReply*>(sender()))
        networkError = reply->errorString();
}

void UploadDialog::onUploadProgress(qlonglong bytesSent, qlonglong bytesTotal)
{
    if (!ui->progressBar->isVisible()) {
        ui->progressBar->setMaximum(int(qMin<qlonglong>(bytesTotal, INT_MAX)));
        ui->progressBar->show();
    }
    ui->progressBar->setValue(int(qMin<qlonglong>(bytesSent, INT_MAX)));
}

void UploadDialog::onFinished()
{
    ui->progressBar->hide();
    ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(true);
    int code = 0;
    QString message;
    if (!parseReply(formPost->response(), &code, &message)) {
        const QString text = networkError.isEmpty()
            ? tr("Bad reply from server")
            : tr("Could not reach the scene repository: %1").arg(networkError);
        QMessageBox::warning(this, tr("Error"), text);
        return;
    }
    if (code == 0) {
        const QUrl scenes = websiteUrl().resolved(QUrl(QStringLiteral("/scenes")));
        QMessageBox::information(
            this, tr("Success"),
            tr("Your scene has been successfully uploaded <a href='%1'>here</a>.")
                .arg(scenes.toString()));
        QDialog::accept();
        return;
    }
    QMessageBox::warning(this, tr("Error"),
                         tr("The server replied with the following message:\n%1").arg(message));
}

bool UploadDialog::parseReply(const QByteArray& reply, int* code, QString* message)
{
    const QStringList parts = QString::fromUtf8(reply).trimmed().split(QLatin1Char('*'));
    if (parts.size() != 2)
        return false;
    *code = parts.first().toInt();
    *message = parts.last();
    return true;
}
