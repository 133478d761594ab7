#include "RepositoryServer.h"

#include <QBuffer>
#include <QDir>
#include <QEventLoop>
#include <QImage>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPainter>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QtTest>
#include <memory>
#include <quazip5/JlCompress.h>
#include <utility>
#include <vector>

namespace {

const QByteArray boundary = "---------------------------2718281828";
const QByteArray multipartType = "multipart/form-data; boundary=" + boundary;
const QByteArray formType = "application/x-www-form-urlencoded";
const QString anonymousPassword = QStringLiteral("#########");
const QString wrongLogin = QStringLiteral("1*Wrong user name or password.");
constexpr int SharedScenes = 52;

struct Reply
{
    int status = 0;
    QByteArray body;
};

// One request through Qt's network stack, as the program makes it: a GET without content type.
Reply fetch(const QUrl& url, const QByteArray& contentType = {}, const QByteArray& body = {})
{
    QNetworkAccessManager manager;
    QNetworkRequest request(url);
    request.setTransferTimeout(30000);
    if (!contentType.isEmpty())
        request.setHeader(QNetworkRequest::ContentTypeHeader, contentType);
    std::unique_ptr<QNetworkReply> reply(contentType.isEmpty() ? manager.get(request)
                                                               : manager.post(request, body));
    QEventLoop loop;
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    loop.exec();
    return {reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(), reply->readAll()};
}

QUrl at(const RepositoryServer& server, const QString& encodedPath)
{
    return QUrl(server.url().toString() + encodedPath);
}

using Fields = std::vector<std::pair<QByteArray, QByteArray>>;

// Built by hand exactly as the program's form post builds it.
QByteArray multipart(const Fields& fields, const QByteArray& fileName, const QByteArray& archive)
{
    QByteArray body;
    QByteArray separator = "--" + boundary + "\r\n";
    for (const auto& [name, value] : fields) {
        body += separator + "Content-Disposition: form-data; name=\"" + name
            + "\"\r\nContent-Transfer-Encoding: 8bit\r\n\r\n" + value;
        separator = "\r\n--" + boundary + "\r\n";
    }
    body += separator + "Content-Disposition: form-data; name=\"sceneFile\"; filename=\"" + fileName
        + "\"\r\nContent-Type: application/zip\r\n\r\n" + archive;
    return body + "\r\n--" + boundary + "--\r\n";
}

QByteArray thumbnail(const QColor& sky)
{
    QImage image(256, 192, QImage::Format_RGB32);
    image.fill(sky);
    QPainter painter(&image);
    painter.fillRect(0, 150, 256, 42, QColor(70, 90, 60));
    painter.fillRect(40, 110, 176, 14, QColor(150, 70, 50));
    painter.end();
    QByteArray png;
    QBuffer buffer(&png);
    image.save(&buffer, "PNG");
    return png;
}

QByteArray zip(const std::vector<std::pair<QString, QByteArray>>& members)
{
    QTemporaryDir folder;
    QStringList files;
    for (const auto& [name, content] : members) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            return {};
        files << file.fileName();
    }
    const QString path = folder.filePath(QStringLiteral("archive.zip"));
    QFile archive(path);
    if (!JlCompress::compressFiles(path, files) || !archive.open(QIODevice::ReadOnly))
        return {};
    return archive.readAll();
}

const QColor skyBlue(120, 190, 235);

int colourDistance(const QColor& a, const QColor& b)
{
    return qAbs(a.red() - b.red()) + qAbs(a.green() - b.green()) + qAbs(a.blue() - b.blue());
}

QByteArray sceneArchive(const QByteArray& scene = "<scene/>", const QColor& sky = skyBlue)
{
    return zip(
        {{QStringLiteral("scene.xml"), scene}, {QStringLiteral("thumbnail.png"), thumbnail(sky)}});
}

// A scene with incompressible ballast, to exceed a size limit once zipped.
QByteArray largeArchive(int megabytes)
{
    QByteArray ballast(megabytes * 1024 * 1024, Qt::Uninitialized);
    QRandomGenerator(7).fillRange(reinterpret_cast<quint32*>(ballast.data()),
                                  ballast.size() / int(sizeof(quint32)));
    return zip(
        {{QStringLiteral("scene.xml"), "<scene/>"}, {QStringLiteral("ballast.bin"), ballast}});
}

struct Upload
{
    QString user = QStringLiteral("Anonymous");
    QString password = anonymousPassword;
    QString category = QStringLiteral("5");
    QString description = QStringLiteral("A bridge of planks.");
    QString keywords = QStringLiteral("bridge, planks");
    QString fileName = QStringLiteral("bridge.scene");
    QByteArray archive = sceneArchive();
};

QString upload(const RepositoryServer& server, const Upload& scene)
{
    const Fields fields {{"username", scene.user.toUtf8()},
                         {"password", scene.password.toUtf8()},
                         {"category", scene.category.toUtf8()},
                         {"description", scene.description.toUtf8()},
                         {"keywords", scene.keywords.toUtf8()}};
    return QString::fromUtf8(fetch(at(server, "/scenes/upload/"), multipartType,
                                   multipart(fields, scene.fileName.toUtf8(), scene.archive))
                                 .body);
}

QString registerUser(const RepositoryServer& server, const QString& name, const QString& password,
                     const QString& repeated)
{
    const QByteArray form = "username=" + QUrl::toPercentEncoding(name) + "&password="
        + QUrl::toPercentEncoding(password) + "&password2=" + QUrl::toPercentEncoding(repeated);
    return QString::fromUtf8(fetch(at(server, "/component/user/register"), formType, form).body);
}

QStringList filesIn(const RepositoryServer& server, const QString& folder)
{
    return QDir(server.dataDirectory() + '/' + folder).entryList(QDir::Files);
}

// The usual upload with one member changed.
template<typename Member, typename Value> Upload with(Member Upload::*member, const Value& value)
{
    Upload scene;
    scene.*member = value;
    return scene;
}

} // namespace

Q_DECLARE_METATYPE(Upload)

class RepositoryServerTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void upload_data();
    void upload();
    void takenNamesAreNumbered();
    void fileList_data();
    void fileList();
    void pathsOutsideTheFoldersAreNotServed_data();
    void pathsOutsideTheFoldersAreNotServed();
    void latestVersion_data();
    void latestVersion();
    void registration_data();
    void registration();
    void passwordIsStoredOnlyAsHash();
    void malformedUploadsAreRefused_data();
    void malformedUploadsAreRefused();
    void galleryPage();

private:
    // Holds s1.scene to s52.scene, uploaded in that order, and the account Alice.
    std::unique_ptr<RepositoryServer> shared;
};

void RepositoryServerTest::initTestCase()
{
    shared = std::make_unique<RepositoryServer>();
    QVERIFY(shared->url().isValid());
    Upload scene;
    for (int i = 1; i <= SharedScenes; ++i) {
        scene.fileName = QStringLiteral("s%1.scene").arg(i);
        QVERIFY(::upload(*shared, scene).startsWith("0*"));
    }
    QVERIFY(registerUser(*shared, "Alice", "secret1", "secret1").contains("Welcome"));
}

void RepositoryServerTest::cleanupTestCase()
{
    // After everything thrown at it, the server still stops cleanly (and leak-free in ASan).
    QCOMPARE(shared->stop(), 0);
}

void RepositoryServerTest::upload_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<Upload>("scene");
    QTest::addColumn<QString>("reply"); // a whole reply, or just its code

    const auto as = [](const QString& user, const QString& password) {
        Upload scene;
        scene.user = user;
        scene.password = password;
        return scene;
    };
    const QStringList noAnonymous {"--no-anonymous"};
    const QStringList oneMegabyte {"--max-size", "1"};

    QTest::newRow("anonymous") << QStringList() << Upload() << "0*";
    QTest::newRow("anonymous, refused") << noAnonymous << Upload() << "1*";
    QTest::newRow("registered") << noAnonymous << as("Alice", "secret1") << "0*";
    QTest::newRow("registered, name in other case")
        << noAnonymous << as("aLICE", "secret1") << "0*";
    QTest::newRow("wrong password") << QStringList() << as("Alice", "secret2") << wrongLogin;
    QTest::newRow("unknown user") << QStringList() << as("Bob", "secret1") << wrongLogin;
    QTest::newRow("anonymous, other password")
        << QStringList() << as("Anonymous", "secret1") << wrongLogin;
    QTest::newRow("not a zip") << QStringList() << with(&Upload::archive, "<scene/>") << "1*";
    QTest::newRow("zip without scene")
        << QStringList() << with(&Upload::archive, zip({{"other.xml", "<scene/>"}})) << "1*";
    QTest::newRow("over the limit")
        << oneMegabyte << with(&Upload::archive, largeArchive(1)) << "1*";
    QTest::newRow("far over the limit")
        << oneMegabyte << with(&Upload::archive, largeArchive(3)) << "1*";
    QTest::newRow("other suffix") << QStringList() << with(&Upload::fileName, "bridge.zip") << "1*";
    QTest::newRow("suffix only") << QStringList() << with(&Upload::fileName, ".scene") << "1*";
    QTest::newRow("path") << QStringList() << with(&Upload::fileName, "../bridge.scene") << "1*";
    QTest::newRow("windows path") << QStringList() << with(&Upload::fileName, "..\\bridge.scene")
                                  << "1*";
    QTest::newRow("category 6") << QStringList() << with(&Upload::category, "6") << "1*";
    QTest::newRow("category not a number")
        << QStringList() << with(&Upload::category, "Vehicles") << "1*";
}

void RepositoryServerTest::upload()
{
    QFETCH(QStringList, arguments);
    QFETCH(Upload, scene);
    QFETCH(QString, reply);

    RepositoryServer server(arguments);
    QVERIFY(server.url().isValid());
    QVERIFY(registerUser(server, "Alice", "secret1", "secret1").contains("Welcome"));

    const QString answer = ::upload(server, scene);
    QVERIFY2(answer.startsWith(reply), qPrintable(answer));
    QCOMPARE(answer.count('*'), 1);
    const bool accepted = reply == "0*";
    QCOMPARE(filesIn(server, "files"), accepted ? QStringList {scene.fileName} : QStringList());
    QCOMPARE(filesIn(server, "thumbnails"), accepted ? QStringList {"bridge.png"} : QStringList());
    QCOMPARE(fetch(at(server, "/scenes/fileList/10/")).body,
             accepted ? "files/" + scene.fileName.toUtf8() : QByteArray());
}

void RepositoryServerTest::takenNamesAreNumbered()
{
    RepositoryServer server;
    QVERIFY(server.url().isValid());
    const QByteArray first = sceneArchive("<scene n='1'/>");
    const QByteArray second = zip({{"scene.xml", "<scene n='2'/>"}});
    const QByteArray third = sceneArchive("<scene n='3'/>");
    for (const QByteArray& archive : {first, second, third}) {
        Upload scene;
        scene.archive = archive;
        QVERIFY(::upload(server, scene).startsWith("0*"));
    }

    QCOMPARE(fetch(at(server, "/scenes/fileList/5/")).body,
             "files/bridge-3.scene*files/bridge-2.scene*files/bridge.scene");
    QCOMPARE(fetch(at(server, "/files/bridge.scene")).body, first);
    QCOMPARE(fetch(at(server, "/files/bridge-2.scene")).body, second);
    QCOMPARE(fetch(at(server, "/files/bridge-3.scene")).body, third);
    // The second archive had no thumbnail.
    QCOMPARE(filesIn(server, "thumbnails"), QStringList({"bridge-3.png", "bridge.png"}));
    QCOMPARE(fetch(at(server, "/thumbnails/bridge-3.png")).body.left(4), "\x89PNG");
}

void RepositoryServerTest::fileList_data()
{
    QTest::addColumn<QString>("count");
    QTest::addColumn<int>("listed"); // how many of the newest

    QTest::newRow("3") << "3" << 3;
    QTest::newRow("0") << "0" << 1;
    QTest::newRow("negative") << "-4" << 1;
    QTest::newRow("51") << "51" << 50;
    QTest::newRow("huge") << "99999999999" << 0;
    QTest::newRow("not a number") << "ten" << 0;
    QTest::newRow("empty") << "" << 0;
}

void RepositoryServerTest::fileList()
{
    QFETCH(QString, count);
    QFETCH(int, listed);

    QStringList newest;
    for (int i = SharedScenes; i > SharedScenes - listed; --i)
        newest << QStringLiteral("files/s%1.scene").arg(i);
    QCOMPARE(fetch(at(*shared, "/scenes/fileList/" + count + '/')).body, newest.join('*').toUtf8());
}

void RepositoryServerTest::pathsOutsideTheFoldersAreNotServed_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("status");

    QTest::newRow("a scene") << "/files/s1.scene" << 200;
    QTest::newRow("a thumbnail") << "/thumbnails/s1.png" << 200;
    QTest::newRow("unknown scene") << "/files/nothing.scene" << 404;
    QTest::newRow("empty name") << "/files/" << 404;
    QTest::newRow("parent") << "/files/..%2Frepository.sqlite" << 404;
    QTest::newRow("backslash") << "/files/..%5Crepository.sqlite" << 404;
    QTest::newRow("dot dot") << "/files/.." << 404;
    QTest::newRow("thumbnail parent") << "/thumbnails/..%2Ffiles%2Fs1.scene" << 404;
    QTest::newRow("scene as thumbnail") << "/thumbnails/s1.scene" << 404;
}

void RepositoryServerTest::pathsOutsideTheFoldersAreNotServed()
{
    QFETCH(QString, path);
    QFETCH(int, status);

    const Reply reply = fetch(at(*shared, path));
    QCOMPARE(reply.status, status);
    if (status == 404)
        QVERIFY(!reply.body.contains("SQLite") && !reply.body.startsWith("PK"));
}

void RepositoryServerTest::latestVersion_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("version");

    QTest::newRow("the program's") << QStringList() << QByteArray(BRIVANE_VERSION);
    QTest::newRow("given") << QStringList {"--latest-version", "2.10.3"} << QByteArray("2.10.3");
}

void RepositoryServerTest::latestVersion()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, version);

    RepositoryServer server(arguments);
    QCOMPARE(fetch(at(server, "/repository/version.html")).body, version);
}

void RepositoryServerTest::registration_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("repeated");
    QTest::addColumn<QString>("answer");

    QTest::newRow("taken in other case") << "ALICE"
                                         << "secret9"
                                         << "secret9"
                                         << "already taken";
    QTest::newRow("reserved") << "anonymous"
                              << "secret9"
                              << "secret9"
                              << "already taken";
    QTest::newRow("empty name") << ""
                                << "secret9"
                                << "secret9"
                                << "choose a user name";
    QTest::newRow("space") << "Bo b"
                           << "secret9"
                           << "secret9"
                           << "1 to 40";
    QTest::newRow("41 characters") << QString(41, 'b') << "secret9"
                                   << "secret9"
                                   << "1 to 40";
    QTest::newRow("short password") << "Bob"
                                    << "12345"
                                    << "12345"
                                    << "at least 6";
    QTest::newRow("passwords differ") << "Bob"
                                      << "secret9"
                                      << "secret8"
                                      << "differ";
    QTest::newRow("40 characters, all kinds") << "B_o-b.9" + QString(33, 'c') << "secret9"
                                              << "secret9"
                                              << "Welcome";
}

void RepositoryServerTest::registration()
{
    QFETCH(QString, name);
    QFETCH(QString, password);
    QFETCH(QString, repeated);
    QFETCH(QString, answer);

    const QString page = registerUser(*shared, name, password, repeated);
    QVERIFY2(page.contains(answer), qPrintable(page));
    Upload scene;
    scene.user = name;
    scene.password = password;
    scene.archive = "not even a zip"; // checked only after the login, so nothing is stored
    QCOMPARE(::upload(*shared, scene) != wrongLogin, answer == "Welcome");
}

void RepositoryServerTest::passwordIsStoredOnlyAsHash()
{
    const QString password = QStringLiteral("Plain-Sesame-0815");
    QVERIFY(registerUser(*shared, "Carol", password, password).contains("Welcome"));
    QFile database(shared->dataDirectory() + "/repository.sqlite");
    QVERIFY(database.open(QIODevice::ReadOnly));
    const QByteArray content = database.readAll();
    QVERIFY(content.contains("Carol"));
    QVERIFY(!content.contains(password.toUtf8()));
}

void RepositoryServerTest::malformedUploadsAreRefused_data()
{
    QTest::addColumn<QByteArray>("contentType");
    QTest::addColumn<QByteArray>("body");

    const Fields fields {{"username", "Anonymous"},
                         {"password", "#########"},
                         {"category", "1"},
                         {"description", "d"},
                         {"keywords", "k"}};
    const QByteArray good = multipart(fields, "bad.scene", sceneArchive());
    QByteArray withoutFile = good;
    withoutFile.replace("name=\"sceneFile\"", "name=\"otherFile\"");
    QByteArray withoutDisposition = good;
    withoutDisposition.replace("Content-Disposition: form-data; name=\"sceneFile\"; "
                               "filename=\"bad.scene\"\r\n",
                               "");

    QTest::newRow("no boundary") << QByteArray("multipart/form-data") << good;
    QTest::newRow("other boundary") << QByteArray("multipart/form-data; boundary=xyz") << good;
    QTest::newRow("no closing boundary") << multipartType << good.chopped(boundary.size() + 6);
    QTest::newRow("cut in the archive") << multipartType << good.left(good.size() / 2);
    QTest::newRow("no file") << multipartType << withoutFile;
    QTest::newRow("part without disposition") << multipartType << withoutDisposition;
    QTest::newRow("endless header")
        << multipartType << "--" + boundary + "\r\nContent-Disposition: " + QByteArray(300000, 'x');
    QTest::newRow("empty") << multipartType << QByteArray();
    QTest::newRow("garbage") << multipartType << QByteArray(5000, '\x97');
    QTest::newRow("url-encoded form")
        << formType << QByteArray("username=Anonymous&password=%23%23%23");
}

void RepositoryServerTest::malformedUploadsAreRefused()
{
    QFETCH(QByteArray, contentType);
    QFETCH(QByteArray, body);

    const QByteArray reply = fetch(at(*shared, "/scenes/upload/"), contentType, body).body;
    QVERIFY2(reply.startsWith("1*") && reply.count('*') == 1, reply.constData());
    QVERIFY(!filesIn(*shared, "files").contains("bad.scene"));
    QCOMPARE(fetch(at(*shared, "/repository/version.html")).status, 200);
}

void RepositoryServerTest::galleryPage()
{
    RepositoryServer server;
    QVERIFY(server.url().isValid());
    Upload bridge;
    bridge.description = QStringLiteral("Planks on ropes <script>alert(1)</script> & a \"test\"");
    QVERIFY(::upload(server, bridge).startsWith("0*"));
    Upload cart;
    cart.fileName = QStringLiteral("Hill cart.scene");
    cart.category = QStringLiteral("4");
    cart.description = QStringLiteral("A cart with two wheels rolls down a hill.");
    cart.keywords = QStringLiteral("cart, wheels, slope");
    cart.archive = sceneArchive("<scene/>", QColor(250, 205, 160));
    QVERIFY(::upload(server, cart).startsWith("0*"));

    const QString html = QString::fromUtf8(fetch(at(server, "/scenes")).body);
    QVERIFY(!html.contains("<script>"));
    QVERIFY(html.contains("Planks on ropes &lt;script&gt;alert(1)&lt;/script&gt; &amp; a "
                          "&quot;test&quot;"));
    // Newest first, each with its links and category.
    const int cartAt = html.indexOf("href=\"/files/Hill%20cart.scene\"");
    const int bridgeAt = html.indexOf("href=\"/files/bridge.scene\"");
    QVERIFY(cartAt >= 0 && bridgeAt > cartAt);
    QVERIFY(html.contains("src=\"/thumbnails/Hill%20cart.png\""));
    QVERIFY(html.contains("Vehicles"));

    const QString chromium = QStandardPaths::findExecutable("chromium");
    if (chromium.isEmpty())
        QSKIP("Chromium is not installed.");
    QVERIFY(QDir().mkpath("artifacts"));
    const QString screenshot = QDir("artifacts").absoluteFilePath("gallery.png");
    QFile::remove(screenshot);
    QProcess browser;
    browser.setProcessChannelMode(QProcess::MergedChannels);
    browser.start(chromium,
                  {"--headless", "--no-sandbox", "--disable-gpu", "--window-size=1280,900",
                   "--screenshot=" + screenshot, at(server, "/scenes").toString()});
    QVERIFY2(browser.waitForFinished(120000), browser.readAll().constData());
    const QImage image(screenshot);
    QCOMPARE(image.size(), QSize(1280, 900));
    // Not a blank page: the sky of a thumbnail shows in it.
    int sky = 0;
    for (int y = 0; y < image.height(); y += 4) {
        for (int x = 0; x < image.width(); x += 4)
            sky += colourDistance(image.pixelColor(x, y), skyBlue) < 24 ? 1 : 0;
    }
    QVERIFY2(sky > 200, qPrintable(QString::number(sky)));
}

QTEST_GUILESS_MAIN(RepositoryServerTest)
#include "tst_repositoryserver.moc"
