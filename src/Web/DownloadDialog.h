#pragma once

#include <QDialog>
#include <memory>

class QNetworkAccessManager;
class QNetworkReply;

namespace Ui {
class DownloadDialog;
}

// Asks how many of the newest scenes of the repository are wanted and where they go, gets
// their list from the server, and hands it to a DownloadProgressDialog. A failed list leaves
// the dialog open to try again.
class DownloadDialog : public QDialog
{
    Q_OBJECT

public:
    DownloadDialog(const QString& directory, QWidget* parent = nullptr);
    ~DownloadDialog() override;

    // Whether a list entry names a file of the repository that may be saved under its last
    // part: no "..", no absolute path, no backslash, no empty last part.
    static bool acceptedEntry(const QString& entry);

public slots:
    void accept() override;

protected:
    void changeEvent(QEvent* event) override;

protected slots:
    void onBrowse();
    void onReplyFinished(QNetworkReply* pNetworkReply);

private:
    void retranslate();

    std::unique_ptr<Ui::DownloadDialog> ui;
    QNetworkAccessManager* manager;
    QNetworkReply* listReply = nullptr;
};
