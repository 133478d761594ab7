#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QUrl>

// Runs the built scene repository server (bin/brivane-repository of the build) for one test:
// on 127.0.0.1, a free port and a fresh temporary data folder, with any extra arguments such
// as "--no-anonymous". The constructor waits until the server listens; the destructor stops it.
// Test targets that use it depend on the brivane-repository target.
//
//     RepositoryServer server({ "--no-anonymous" });
//     QVERIFY(server.url().isValid());
//     request.setUrl(server.url().resolved(QUrl("scenes/fileList/10/")));
//     ... QFile(server.dataDirectory() + "/files/bridge.scene") ...
class RepositoryServer
{
public:
    explicit RepositoryServer(const QStringList& extraArguments = {})
    {
        // The server writes one log line per request; it is shown only if the server fails.
        process.setStandardErrorFile(logFile());
        process.start(QCoreApplication::applicationDirPath() + "/../../bin/brivane-repository",
                      QStringList {"--port", "0", "--data", dataDirectory()} + extraArguments);
        const QByteArray prefix = "Listening on ";
        QByteArray line;
        while (!line.endsWith('\n') && process.waitForReadyRead(10000))
            line += process.readLine();
        if (line.startsWith(prefix))
            address = QUrl(QString::fromUtf8(line.mid(prefix.size()).trimmed()));
        else
            qWarning("The repository server did not start (%s):\n%s",
                     qUtf8Printable(process.errorString()), readLog().constData());
    }

    ~RepositoryServer() { stop(); }

    RepositoryServer(const RepositoryServer&) = delete;
    RepositoryServer& operator=(const RepositoryServer&) = delete;

    // The server's root, e.g. http://127.0.0.1:41234; invalid when it did not start.
    QUrl url() const { return address; }

    // The folder of its archives (files/), thumbnails (thumbnails/) and SQLite file.
    QString dataDirectory() const { return folder.path(); }

    // Stops the server with SIGTERM and returns its exit code: 0 for a clean exit, -1 if it
    // had to be killed. Its log is shown when the exit was not clean.
    int stop()
    {
        if (process.state() == QProcess::NotRunning)
            return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
        process.terminate();
        if (!process.waitForFinished(10000)) {
            process.kill();
            process.waitForFinished();
        }
        const int code = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
        if (code != 0)
            qWarning("The repository server exited with %d:\n%s", code, readLog().constData());
        return code;
    }

private:
    QString logFile() const { return folder.filePath("server.log"); }
    QByteArray readLog() const
    {
        QFile log(logFile());
        return log.open(QIODevice::ReadOnly) ? log.readAll() : QByteArray();
    }

    QTemporaryDir folder;
    QProcess process;
    QUrl address;
};
