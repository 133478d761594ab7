#include "Web/DownloadDialog.h"

#include "Application/Settings.h"
#include "Web/DownloadProgressDialog.h"
#include "ui_DownloadDialog.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPushButton>

DownloadDialog::DownloadDialog(const QString& directory, QWidget* parent)
    : QDialog(parent)
    , ui(new Ui::DownloadDialog)
    , manager(new QNetworkAccessManager(this))
{
    ui->setupUi(this);
    ui->directory->setText(directory);
    connect(ui->browseButton, &QPushButton::clicked, this, &DownloadDialog::onBrowse);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &DownloadDialog::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(manager, &QNetworkAccessManager::finished, this, &DownloadDialog::onReplyFinished);
    setMinimumWidth(400);
    retranslate();
}

DownloadDialog::~DownloadDialog() = default;

bool DownloadDialog::acceptedEntry(const QString& entry)
{
    if (entry.startsWith(QLatin1Char('/')) || entry.contains(QLatin1Char('\\')))
        return false;
    const QStringList parts = entry.split(QLatin1Char('/'));
    return !parts.last().isEmpty() && !parts.contains(QStringLiteral(".."))
        && parts.last() != QLatin1String(".");
}

void DownloadDialog::retranslate()
{
    ui->retranslateUi(this);
    setWindowTitle(tr("Download scenes from %1").arg(websiteUrl().toString()));
}

void DownloadDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}

void DownloadDialog::onBrowse()
{
    const QString chosen = QFileDialog::getExistingDirectory(
        this, tr("Select Directory"), ui->directory->text(), QFileDialog::ShowDirsOnly);
    if (!chosen.isEmpty())
        ui->directory->setText(chosen);
}

void DownloadDialog::accept()
{
    const QUrl list = repositoryUrl().resolved(
        QUrl(QStringLiteral("/scenes/fileList/%1/").arg(ui->sceneCount->value())));
    listReply = manager->get(QNetworkRequest(list));
    ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(false);
}

void DownloadDialog::onReplyFinished(QNetworkReply* pNetworkReply)
{
    pNetworkReply->deleteLater();
    if (pNetworkReply != listReply)
        return;
    listReply = nullptr;
    if (pNetworkReply->error() != QNetworkReply::NoError) {
        QMessageBox::critical(this, tr("Error"),
                              tr("Failed to retrieve file list from server.") + QStringLiteral("\n")
                                  + pNetworkReply->errorString());
        ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(true);
        return;
    }
    const QStringList entries = QString::fromUtf8(pNetworkReply->readAll())
                                    .trimmed()
                                    .split(QLatin1Char('*'), Qt::SkipEmptyParts);
    QList<QUrl> urls;
    QStringList refused;
    for (const QString& entry : entries) {
        if (acceptedEntry(entry))
            urls.append(repositoryUrl().resolved(QUrl(QLatin1Char('/') + entry)));
        else
            refused.append(entry);
    }
    DownloadProgressDialog progress(ui->directory->text(), urls, this, refused);
    progress.start();
    progress.exec();
    QDialog::accept();
}
