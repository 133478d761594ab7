#include "RepositoryService.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QRegularExpression>
#include <csignal>
#include <cstdio>
#include <pthread.h>
#include <thread>
#include <unistd.h>

namespace {

constexpr int UsageError = 2;

int fail(const QString& message, int code = 1)
{
    std::fprintf(stderr, "brivane-repository: %s\n", qUtf8Printable(message));
    return code;
}

} // namespace

int main(int argc, char* argv[])
{
    // Blocked before any thread starts, so every thread inherits it and the signals wait for
    // sigwait() below instead of interrupting a request.
    sigset_t stopSignals;
    sigemptyset(&stopSignals);
    sigaddset(&stopSignals, SIGINT);
    sigaddset(&stopSignals, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &stopSignals, nullptr);

    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("brivane-repository"));
    QCoreApplication::setApplicationVersion(QStringLiteral(BRIVANE_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Scene repository and website for Brivane. Runs until SIGINT or SIGTERM."));
    parser.addHelpOption();
    const QCommandLineOption portOption(QStringLiteral("port"),
                                        QStringLiteral("Port to listen on; 0 picks a free one."),
                                        QStringLiteral("PORT"), QStringLiteral("8080"));
    const QCommandLineOption hostOption(QStringLiteral("host"),
                                        QStringLiteral("Address to listen on."),
                                        QStringLiteral("ADDRESS"), QStringLiteral("127.0.0.1"));
    const QCommandLineOption dataOption(QStringLiteral("data"),
                                        QStringLiteral("Folder of the scenes and accounts."),
                                        QStringLiteral("DIR"));
    const QCommandLineOption noAnonymousOption(QStringLiteral("no-anonymous"),
                                               QStringLiteral("Refuse anonymous uploads."));
    const QCommandLineOption maxSizeOption(QStringLiteral("max-size"),
                                           QStringLiteral("Largest scene accepted, in MB."),
                                           QStringLiteral("MEGABYTES"), QStringLiteral("20"));
    const QCommandLineOption versionOption(
        QStringLiteral("latest-version"), QStringLiteral("Version announced as the latest."),
        QStringLiteral("X.Y.Z"), QStringLiteral(BRIVANE_VERSION));
    parser.addOptions(
        {portOption, hostOption, dataOption, noAnonymousOption, maxSizeOption, versionOption});
    parser.process(application);

    bool portIsNumber = false;
    const int port = parser.value(portOption).toInt(&portIsNumber);
    if (!portIsNumber || port < 0 || port > 65535)
        return fail(QStringLiteral("--port needs a number from 0 to 65535."), UsageError);
    bool sizeIsNumber = false;
    const int maxMegabytes = parser.value(maxSizeOption).toInt(&sizeIsNumber);
    if (!sizeIsNumber || maxMegabytes < 1 || maxMegabytes > 1024)
        return fail(QStringLiteral("--max-size needs a number of megabytes from 1 to 1024."),
                    UsageError);
    if (parser.value(dataOption).isEmpty())
        return fail(QStringLiteral("--data DIR is required."), UsageError);
    const QString latestVersion = parser.value(versionOption);
    if (!QRegularExpression(QStringLiteral("^\\d+\\.\\d+\\.\\d+$")).match(latestVersion).hasMatch())
        return fail(QStringLiteral("--latest-version needs the form X.Y.Z."), UsageError);

    RepositoryService::Options options;
    options.dataDirectory = parser.value(dataOption);
    options.anonymousUploads = !parser.isSet(noAnonymousOption);
    options.maxArchiveBytes = qint64(maxMegabytes) * 1024 * 1024;
    options.latestVersion = latestVersion;
    RepositoryService service(options);
    if (!service.open())
        return fail(QStringLiteral("cannot use the data folder %1.").arg(options.dataDirectory));
    const QString host = parser.value(hostOption);
    const int boundPort = service.bind(host, port);
    if (boundPort < 0)
        return fail(QStringLiteral("cannot listen on %1 port %2.").arg(host).arg(port));

    // Connections queue from here on; tests and scripts read the port from this line.
    const QString shownHost = host.contains(':') ? '[' + host + ']' : host;
    std::printf("Listening on http://%s:%d\n", qUtf8Printable(shownHost), boundPort);
    std::fflush(stdout);

    bool listening = true;
    std::thread listener([&] {
        listening = service.run();
        // Wakes the wait below when listening ends by itself.
        if (!listening)
            kill(getpid(), SIGTERM);
    });
    int signal = 0;
    sigwait(&stopSignals, &signal);
    service.stop();
    listener.join();
    return listening ? 0 : fail(QStringLiteral("listening failed."));
}
