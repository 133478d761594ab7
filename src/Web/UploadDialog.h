#pragma once

#include <QDialog>
#include <QNetworkReply>
#include <memory>

class FormPost;

namespace Ui {
class UploadDialog;
}

// Sends a saved scene file to the scene repository, anonymously or as a registered user, with
// a category, a description and keywords. The server answers "CODE*MESSAGE", 0 for success;
// the dialog closes on success and stays open otherwise, so the user can try again. The user
// name is kept in the settings and the password in the system keyring.
class UploadDialog : public QDialog
{
    Q_OBJECT

public:
    UploadDialog(const QString& filename, QWidget* parent = nullptr);
    ~UploadDialog() override;

    // Reads a reply of the form "CODE*MESSAGE", trimmed; false when it does not split into
    // exactly two parts. A code that is no number reads as 0.
    static bool parseReply(const QByteArray& reply, int* code, QString* message);

public slots:
    void accept() override;

protected:
    void changeEvent(QEvent* event) override;

protected slots:
    void onUploadAsChanged(int index);
    void onError(QNetworkReply::NetworkError code);
    void onUploadProgress(qlonglong bytesSent, qlonglong bytesTotal);
    void onFinished();

private:
    void retranslate();

    std::unique_ptr<Ui::UploadDialog> ui;
    FormPost* formPost;
    QString uploadUrl;
    QString filename;
    // What went wrong on the network, to say so instead of only "Bad reply from server".
    QString networkError;
};
