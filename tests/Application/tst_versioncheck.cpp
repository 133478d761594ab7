#include "Application/VersionCheck.h"

#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

// The start-up check for a newer release against a website on the loopback interface: only a
// version page naming a newer version is an update, and a silent website holds the start no
// longer than the limit.
class TestVersionCheck : public QObject
{
    Q_OBJECT

    QTcpServer website;
    QByteArray reply;
    QByteArray requestLine;

private slots:
    void initTestCase()
    {
        QCoreApplication::setApplicationVersion(QStringLiteral("1.2.0"));
        QVERIFY(website.listen(QHostAddress::LocalHost));
        qputenv("BRIVANE_WEBSITE_URL",
                QStringLiteral("http://127.0.0.1:%1/some/page").arg(website.serverPort()).toUtf8());
        connect(&website, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* socket = website.nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                // Answers once the whole request is in; an empty reply stands for a website
                // that never answers.
                const QByteArray request
                    = socket->property("request").toByteArray() + socket->readAll();
                socket->setProperty("request", request);
                if (!request.contains("\r\n\r\n") || reply.isEmpty())
                    return;
                requestLine = request.left(request.indexOf("\r\n"));
                socket->write(reply);
                socket->disconnectFromHost();
            });
        });
    }

    void onlyANewerVersionIsAnUpdate_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("latest");
        QTest::addColumn<bool>("update");
        QTest::newRow("same with line feed") << 200 << QByteArray("1.2.0\n") << "1.2.0" << false;
        QTest::newRow("newer") << 200 << QByteArray(" 1.3.0 ") << "1.3.0" << true;
        QTest::newRow("newer patch") << 200 << QByteArray("1.2.1") << "1.2.1" << true;
        QTest::newRow("older") << 200 << QByteArray("1.1.9") << "1.1.9" << false;
        QTest::newRow("empty") << 200 << QByteArray() << "1.2.0" << false;
        QTest::newRow("error page") << 404 << QByteArray("9.0.0") << "1.2.0" << false;
        QTest::newRow("not a version") << 200 << QByteArray("<html>9.0</html>") << "1.2.0" << false;
        QTest::newRow("version and more") << 200 << QByteArray("9.0.0 beta") << "1.2.0" << false;
        QTest::newRow("nul inside") << 200 << QByteArray("2.0.0\0junk", 10) << "2.0.0" << true;
        QTest::newRow("long page") << 200 << QByteArray(100, '9') << "1.2.0" << false;
    }
    void onlyANewerVersionIsAnUpdate()
    {
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        QFETCH(QString, latest);
        QFETCH(bool, update);
        reply = QByteArray("HTTP/1.1 ") + QByteArray::number(status)
            + " X\r\nContent-Type: text/plain\r\nConnection: close\r\nContent-Length: "
            + QByteArray::number(body.size()) + "\r\n\r\n" + body;
        QCOMPARE(latestVersion(), latest);
        QCOMPARE(requestLine, QByteArray("GET /repository/version.html HTTP/1.1"));
        QCOMPARE(newVersionAvailable(), update);
    }

    void silentOrMissingWebsiteIsNoUpdate()
    {
        reply.clear();
        QElapsedTimer waited;
        waited.start();
        QCOMPARE(latestVersion(), QStringLiteral("1.2.0"));
        QVERIFY(waited.elapsed() >= versionCheckMilliseconds * 9 / 10);
        QVERIFY2(waited.elapsed() < 4 * versionCheckMilliseconds, "the limit is not kept");

        website.close();
        QVERIFY(!newVersionAvailable());
    }

    // With no updater beside the program the launch fails, and the start tells the user.
    void missingUpdaterIsReported() { QVERIFY(!launchUpdater()); }
};

QTEST_GUILESS_MAIN(TestVersionCheck)
#include "tst_versioncheck.moc"
