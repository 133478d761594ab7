#include "Application/VersionCheck.h"

#include "Application/Settings.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QProcess>
#include <QRegularExpression>
#include <QTimer>
#include <QVersionNumber>

namespace {
// A version page holds a few characters; anything longer is some other page.
const qint64 longestReply = 64;

QString applicationVersion()
{
    return QCoreApplication::applicationVersion();
}
} // namespace

QString latestVersion()
{
    QNetworkAccessManager manager;
    QUrl url = websiteUrl();
    url.setPath(QStringLiteral("/repository/version.html"));
    url.setQuery(QString());
    url.setFragment(QString());
    QNetworkReply* reply = manager.get(QNetworkRequest(url));
    QEventLoop loop;
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(versionCheckMilliseconds, &loop, &QEventLoop::quit);
    if (!reply->isFinished())
        loop.exec();
    // The manager deletes the reply, finished or not, as it goes.
    if (!reply->isFinished() || reply->error() != QNetworkReply::NoError
        || reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() != 200
        || reply->bytesAvailable() > longestReply)
        return applicationVersion();
    QByteArray body = reply->readAll();
    body.truncate(body.indexOf('\0') < 0 ? body.size() : body.indexOf('\0'));
    const QString text = QString::fromLatin1(body.simplified());
    static const QRegularExpression versionNumber(QStringLiteral("^\\d{1,9}(\\.\\d{1,9}){0,3}$"));
    if (!versionNumber.match(text).hasMatch())
        return applicationVersion();
    return text;
}

bool newVersionAvailable()
{
    return QVersionNumber::fromString(latestVersion())
        > QVersionNumber::fromString(applicationVersion());
}

bool launchUpdater()
{
    const QString directory = QCoreApplication::applicationDirPath();
    return QProcess::startDetached(directory + QStringLiteral("/maintenancetool"),
                                   {QStringLiteral("--updater")}, directory);
}
