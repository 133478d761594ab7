#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QStringList>

class QNetworkReply;

// Sends an HTTP POST with a multipart/form-data body built here byte for byte, so that a
// server written for this program sees exactly these bytes, and keeps the body of the reply.
// Text fields always come before files. The fields and files are cleared at each post, so one
// object serves one post after another.
class FormPost : public QObject
{
    Q_OBJECT

public:
    explicit FormPost(QObject* parent = nullptr);

    // Exactly "utf-8" or "ascii"; any other text leaves the encoding as it is.
    void setEncoding(const QString& encoding);
    void setUserAgent(const QString& userAgent);
    void setReferer(const QString& referer);
    QString encoding() const { return textEncoding; }
    QString userAgent() const { return agent; }
    QString referer() const { return refererText; }

    void addField(const QString& name, const QString& value);
    // Reads the file now; an unreadable file goes out as an empty part. On the wire the file
    // is named by the part of `filePath` behind its last slash, or else its last backslash.
    void addFile(const QString& fieldName, const QString& filePath, const QString& mime);
    void addFile(const QString& fieldName, const QByteArray& content, const QString& fileName,
                 const QString& mime);

    // Builds the body and sends it; the caller connects to the reply's signals. The body of
    // the reply is in response() by the time the reply's own finished() reaches the caller.
    QNetworkReply* postData(const QString& url);
    QByteArray response() const { return data; }

    // The body and its boundary for the fields and files given so far, as postData sends
    // them; `seconds` since 1970 seeds the boundary, so two posts in one second share it.
    QByteArray body(qint64 seconds, QByteArray* boundary = nullptr) const;

private slots:
    void readData(QNetworkReply* reply);

private:
    QByteArray data;
    QString textEncoding = QStringLiteral("utf-8");
    QString agent;
    QString refererText;
    QStringList fieldNames;
    QStringList fieldValues;
    QStringList fileFieldNames;
    QStringList fileNames;
    QStringList fileMimes;
    QList<QByteArray> fileContents;
};
