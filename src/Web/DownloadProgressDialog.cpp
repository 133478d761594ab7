#include "Web/DownloadProgressDialog.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {
QString fileName(const QUrl& url)
{
    return url.toString().section(QLatin1Char('/'), -1);
}
} // namespace

DownloadProgressDialog::DownloadProgressDialog(const QString& directory, const QList<QUrl>& urls,
                                               QWidget* parent, const QStringList& refused)
    : QDialog(parent)
    , table(new QTableWidget(0, 2))
    , progressBar(new QProgressBar())
    , buttonBox(new QDialogButtonBox(QDialogButtonBox::Ok))
    , directory(directory)
    , urls(urls)
    , manager(new QNetworkAccessManager(this))
{
    table->setHorizontalHeaderLabels({tr("Scene Filename"), tr("Download Information")});
    table->verticalHeader()->hide();
    table->setColumnWidth(0, 360);
    table->horizontalHeader()->setStretchLastSection(true);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    for (const QUrl& url : urls) {
        addRow(fileName(url));
        auto* status = new QTableWidgetItem();
        setState(status, State::Waiting);
        table->setItem(table->rowCount() - 1, 1, status);
        statusItems.insert(url.toString(), status);
    }
    for (const QString& entry : refused) {
        addRow(entry);
        auto* status = new QTableWidgetItem(QIcon(QStringLiteral(":/icons/warning.png")),
                                            tr("Refused: not a file of this folder."));
        table->setItem(table->rowCount() - 1, 1, status);
    }
    progressBar->setMaximum(urls.size());
    progressBar->setValue(0);
    buttonBox->button(QDialogButtonBox::Ok)->setEnabled(urls.isEmpty() && !refused.isEmpty());
    connect(buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(table);
    layout->addWidget(progressBar);
    layout->addWidget(buttonBox);
    connect(manager, &QNetworkAccessManager::finished, this,
            &DownloadProgressDialog::onReplyFinished);
    setMinimumSize(640, 480);
    setWindowTitle(tr("Download Progress"));
}

void DownloadProgressDialog::addRow(const QString& name)
{
    const int row = table->rowCount();
    table->insertRow(row);
    table->setItem(row, 0, new QTableWidgetItem(name));
}

void DownloadProgressDialog::setState(QTableWidgetItem* item, State state, const QString& error)
{
    static const char* const icons[] = {"help", "check", "warning", "warning", "remove", "warning"};
    QString text;
    switch (state) {
    case State::Waiting:
        break;
    case State::Downloaded:
        text = tr("Successfully downloaded.");
        break;
    case State::TargetExists:
        text = tr("Already downloaded.");
        break;
    case State::CannotWrite:
        text = tr("Failed to open file for writing.");
        break;
    case State::NetworkError:
        text = error;
        break;
    case State::TooLarge:
        text = tr("Refused: larger than %1 MB.").arg(maximumFileSize / (1024 * 1024));
        break;
    }
    item->setIcon(QIcon(QStringLiteral(":/icons/%1.png").arg(icons[int(state)])));
    item->setText(text);
}

void DownloadProgressDialog::start()
{
    for (const QUrl& url : qAsConst(urls))
        watchSize(manager->get(QNetworkRequest(url)));
}

void DownloadProgressDialog::watchSize(QNetworkReply* reply)
{
    connect(reply, &QNetworkReply::downloadProgress, reply, [reply](qint64 received, qint64 total) {
        if (received > maximumFileSize || total > maximumFileSize) {
            reply->setProperty("tooLarge", true);
            reply->abort();
        }
    });
}

void DownloadProgressDialog::onReplyFinished(QNetworkReply* pNetworkReply)
{
    pNetworkReply->deleteLater();
    ++finishedCount;
    progressBar->setValue(finishedCount);
    if (finishedCount == urls.size())
        buttonBox->button(QDialogButtonBox::Ok)->setEnabled(true);
    QTableWidgetItem* status = statusItems.value(pNetworkReply->url().toString());
    if (!status)
        return;
    if (pNetworkReply->property("tooLarge").toBool()) {
        setState(status, State::TooLarge);
        return;
    }
    if (pNetworkReply->error() != QNetworkReply::NoError) {
        setState(status, State::NetworkError, pNetworkReply->errorString());
        return;
    }
    const QString path = directory + QDir::separator() + fileName(pNetworkReply->url());
    // What lies there already is the user's: it is never touched.
    if (QFile::exists(path)) {
        setState(status, State::TargetExists);
        return;
    }
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        setState(status, State::CannotWrite);
        return;
    }
    const QByteArray content = pNetworkReply->readAll();
    // A disk that fills up leaves no part of a file behind.
    if (file.write(content) != content.size() || !file.flush()) {
        file.remove();
        setState(status, State::CannotWrite);
        return;
    }
    file.close();
    setState(status, State::Downloaded);
}
