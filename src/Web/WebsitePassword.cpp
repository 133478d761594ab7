#include "Web/WebsitePassword.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <functional>
#include <qt5keychain/keychain.h>

namespace {
const int keyringWait = 3000; // milliseconds

QString service()
{
    return QCoreApplication::applicationName() + QStringLiteral(" website");
}

// Starts a keyring job and waits for its end, or for the time limit; whether it ended
// without an error. The job deletes itself when it ends, also after the wait has given up;
// the connection goes with the loop, so a late end touches nothing of this call.
bool run(QKeychain::Job* job, const std::function<void(QKeychain::Job*)>& onSuccess = {})
{
    QEventLoop loop;
    bool ended = false;
    bool succeeded = false;
    QObject::connect(job, &QKeychain::Job::finished, &loop, [&](QKeychain::Job* endedJob) {
        ended = true;
        succeeded = endedJob->error() == QKeychain::NoError;
        if (succeeded && onSuccess)
            onSuccess(endedJob);
        loop.quit();
    });
    QTimer::singleShot(keyringWait, &loop, &QEventLoop::quit);
    job->start();
    // A job without a keyring may end inside start().
    if (!ended)
        loop.exec();
    return succeeded;
}
} // namespace

QString WebsitePassword::load(const QString& username)
{
    if (username.isEmpty())
        return QString();
    auto* job = new QKeychain::ReadPasswordJob(service());
    job->setKey(username);
    QString password;
    run(job, [&password](QKeychain::Job* ended) {
        password = static_cast<QKeychain::ReadPasswordJob*>(ended)->textData();
    });
    return password;
}

bool WebsitePassword::store(const QString& username, const QString& password)
{
    if (username.isEmpty())
        return false;
    auto* job = new QKeychain::WritePasswordJob(service());
    job->setKey(username);
    job->setTextData(password);
    return run(job);
}
