#pragma once

#include <QDialog>
#include <QHash>
#include <QList>
#include <QUrl>

class QDialogButtonBox;
class QNetworkAccessManager;
class QNetworkReply;
class QProgressBar;
class QTableWidget;
class QTableWidgetItem;

// Fetches scene files all at once into one directory, one row per file with its state. Each
// file fails alone, and a file is written only once its reply has finished without error and
// nothing lies at its place yet. List entries refused before any request get a row that says
// so. Ok is usable once every file is done.
class DownloadProgressDialog : public QDialog
{
    Q_OBJECT

public:
    // Bytes: a larger file is refused on its row.
    static const qint64 maximumFileSize = 50 * 1024 * 1024;

    DownloadProgressDialog(const QString& directory, const QList<QUrl>& urls,
                           QWidget* parent = nullptr, const QStringList& refused = {});

    void start();

protected slots:
    void onReplyFinished(QNetworkReply* pNetworkReply);

private:
    enum class State { Waiting, Downloaded, TargetExists, CannotWrite, NetworkError, TooLarge };
    void addRow(const QString& name);
    void setState(QTableWidgetItem* item, State state, const QString& error = QString());
    // Refuses a reply that grows beyond the limit.
    void watchSize(QNetworkReply* reply);

    QTableWidget* table;
    QProgressBar* progressBar;
    QDialogButtonBox* buttonBox;
    QString directory;
    QList<QUrl> urls;
    int finishedCount = 0;
    QNetworkAccessManager* manager;
    QHash<QString, QTableWidgetItem*> statusItems;
};
