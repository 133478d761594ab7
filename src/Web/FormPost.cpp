#include "Web/FormPost.h"

#include <QDateTime>
#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <random>

namespace {
const QByteArray crlf("\r\n");

QString bareFileName(const QString& path)
{
    const int slash = path.lastIndexOf(QLatin1Char('/'));
    if (slash >= 0)
        return path.mid(slash + 1);
    return path.mid(path.lastIndexOf(QLatin1Char('\\')) + 1);
}
} // namespace

FormPost::FormPost(QObject* parent)
    : QObject(parent)
{
}

void FormPost::setEncoding(const QString& encoding)
{
    if (encoding == QLatin1String("utf-8") || encoding == QLatin1String("ascii"))
        textEncoding = encoding;
}

void FormPost::setUserAgent(const QString& userAgent)
{
    agent = userAgent;
}

void FormPost::setReferer(const QString& referer)
{
    refererText = referer;
}

void FormPost::addField(const QString& name, const QString& value)
{
    fieldNames.append(name);
    fieldValues.append(value);
}

void FormPost::addFile(const QString& fieldName, const QString& filePath, const QString& mime)
{
    QFile file(filePath);
    QByteArray content;
    if (file.open(QIODevice::ReadOnly))
        content = file.readAll();
    addFile(fieldName, content, bareFileName(filePath), mime);
}

void FormPost::addFile(const QString& fieldName, const QByteArray& content, const QString& fileName,
                       const QString& mime)
{
    fileFieldNames.append(fieldName);
    fileContents.append(content);
    fileNames.append(fileName);
    fileMimes.append(mime);
}

QByteArray FormPost::body(qint64 seconds, QByteArray* boundary) const
{
    // Three draws of a generator seeded with the time, in decimal, one after the other.
    std::minstd_rand generator(static_cast<std::minstd_rand::result_type>(seconds));
    QByteArray drawn;
    for (int i = 0; i < 3; ++i)
        drawn += QByteArray::number(quint64(generator()));
    const QByteArray mark = QByteArray(27, '-') + drawn;
    if (boundary)
        *boundary = mark;

    const bool utf8 = textEncoding == QLatin1String("utf-8");
    QByteArray separator = "--" + mark + crlf;
    QByteArray result;
    for (int i = 0; i < fieldNames.size(); ++i) {
        result += separator;
        separator = crlf + "--" + mark + crlf;
        result += "Content-Disposition: form-data; name=\"" + fieldNames.at(i).toLatin1() + "\""
            + crlf;
        if (utf8)
            result += "Content-Transfer-Encoding: 8bit" + crlf;
        result += crlf;
        result += utf8 ? fieldValues.at(i).toUtf8() : fieldValues.at(i).toLatin1();
    }
    for (int i = 0; i < fileFieldNames.size(); ++i) {
        result += separator;
        separator = crlf + "--" + mark + crlf;
        result += "Content-Disposition: form-data; name=\"" + fileFieldNames.at(i).toLatin1()
            + "\"; filename=\"" + fileNames.at(i).toLatin1() + "\"" + crlf;
        result += "Content-Type: " + fileMimes.at(i).toLatin1() + crlf + crlf;
        result += fileContents.at(i);
    }
    result += crlf + "--" + mark + "--" + crlf;
    return result;
}

QNetworkReply* FormPost::postData(const QString& url)
{
    const int schemeEnd = url.indexOf(QLatin1String("://"));
    const QString afterScheme = schemeEnd < 0 ? url : url.mid(schemeEnd + 3);
    const QString host = afterScheme.left(afterScheme.indexOf(QLatin1Char('/')));

    QByteArray boundary;
    const QByteArray payload = body(QDateTime::currentSecsSinceEpoch(), &boundary);
    fieldNames.clear();
    fieldValues.clear();
    fileFieldNames.clear();
    fileNames.clear();
    fileMimes.clear();
    fileContents.clear();

    auto* manager = new QNetworkAccessManager(this);
    connect(manager, &QNetworkAccessManager::finished, this, &FormPost::readData);
    QNetworkRequest request(QUrl(url, QUrl::TolerantMode));
    request.setRawHeader("Host", host.toLatin1());
    if (!agent.isEmpty())
        request.setRawHeader("User-Agent", agent.toLatin1());
    if (!refererText.isEmpty())
        request.setRawHeader("Referer", refererText.toLatin1());
    request.setHeader(QNetworkRequest::ContentTypeHeader,
                      QByteArray("multipart/form-data; boundary=") + boundary);
    request.setHeader(QNetworkRequest::ContentLengthHeader, QByteArray::number(payload.size()));
    return manager->post(request, payload);
}

void FormPost::readData(QNetworkReply* reply)
{
    data = reply->readAll();
}
