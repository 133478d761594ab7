#include "Application/Application.h"
#include "Application/Settings.h"
#include "Gui/QuickLoadWidget.h"
#include "MessageBoxAnswerer.h"
#include "Physics/PhysicsWorld.h"
#include "RepositoryServer.h"
#include "Web/DownloadDialog.h"
#include "Web/DownloadProgressDialog.h"
#include "Web/FormPost.h"
#include "Web/UploadDialog.h"
#include "WindowTestMain.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QEventLoop>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrlQuery>
#include <functional>

namespace {
// Runs `work` once the dialog of the given kind is the modal one, then goes on.
template<typename Dialog> void whenModal(const std::function<void(Dialog*)>& work)
{
    auto* poll = new QTimer();
    QObject::connect(poll, &QTimer::timeout, [poll, work] {
        if (auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget())) {
            poll->deleteLater();
            poll->stop();
            work(dialog);
        }
    });
    poll->start(20);
}

QString statusTexts(QTableWidget* table)
{
    QStringList texts;
    for (int row = 0; row < table->rowCount(); ++row)
        texts << table->item(row, 1)->text();
    return texts.join(QLatin1Char('|'));
}
} // namespace

// Sharing scenes: the exact bytes of a form post, the replies of the repository, and the
// upload, download and quick-load panels against a repository server of our own.
class TestSharing : public QObject
{
    Q_OBJECT

    std::unique_ptr<RepositoryServer> server;
    QTemporaryDir saves;

    // A saved scene with one body, as a user saves it.
    QString saveScene(const QString& name)
    {
        Application::instance()->newFile(false);
        PhysicsWorld::instance()->createRectangle(0, 2, 0, 1, 1);
        const QString path = saves.filePath(name);
        Application::instance()->save(path);
        return path;
    }

    // Runs the upload dialog to its end as the user would press Ok; the message boxes' texts.
    QStringList upload(const QString& file, int userType, const QString& username,
                       const QString& password, int* result)
    {
        Settings::instance()->setWebsiteUserType(userType);
        UploadDialog dialog(file);
        dialog.findChild<QLineEdit*>("username")->setText(username);
        dialog.findChild<QLineEdit*>("password")->setText(password);
        MessageBoxAnswerer answerer;
        QTimer::singleShot(0, &dialog, &UploadDialog::accept);
        // A refused upload leaves the dialog open: it is closed once a message has come.
        QTimer closer;
        connect(&closer, &QTimer::timeout, &dialog, [&] {
            if (!answerer.texts.isEmpty() && dialog.isVisible()
                && QApplication::activeModalWidget() == &dialog)
                dialog.reject();
        });
        closer.start(50);
        *result = dialog.exec();
        return answerer.texts;
    }

    // Runs a download of at most `count` scenes into `directory`; the rows' status texts.
    QString download(const QString& directory, int count = 50)
    {
        DownloadDialog dialog(directory);
        dialog.findChild<QSpinBox*>("sceneCount")->setValue(count);
        QString statuses = QStringLiteral("<none>");
        whenModal<DownloadProgressDialog>([&statuses](DownloadProgressDialog* progress) {
            auto* ok = progress->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
            auto* table = progress->findChild<QTableWidget*>();
            // An empty list never enables Ok.
            QTRY_VERIFY(ok->isEnabled() || table->rowCount() == 0);
            statuses = statusTexts(table);
            progress->reject();
        });
        QTimer::singleShot(0, &dialog, &DownloadDialog::accept);
        dialog.exec();
        return statuses;
    }

private slots:
    void initTestCase()
    {
        QVERIFY(saves.isValid());
        server.reset(new RepositoryServer());
        QVERIFY(server->url().isValid());
        qputenv("BRIVANE_REPOSITORY_URL", server->url().toString().toUtf8());
        qputenv("BRIVANE_WEBSITE_URL", server->url().toString().toUtf8());
    }

    // Two fields and a file, byte for byte; the boundary depends on the second only.
    void formPostBody_data()
    {
        QTest::addColumn<QString>("encoding");
        QTest::addColumn<QByteArray>("fieldPart");
        QTest::newRow("utf-8") << "utf-8"
                               << QByteArray("Content-Transfer-Encoding: 8bit\r\n\r\nK\xc3\xa4se");
        QTest::newRow("ascii") << "ascii" << QByteArray("\r\nK\xe4se");
        QTest::newRow("other text keeps utf-8")
            << "UTF-8" << QByteArray("Content-Transfer-Encoding: 8bit\r\n\r\nK\xc3\xa4se");
    }
    void formPostBody()
    {
        QFETCH(QString, encoding);
        QFETCH(QByteArray, fieldPart);
        FormPost post;
        post.setEncoding(encoding);
        post.addField("a", QStringLiteral("K\u00e4se"));
        post.addField("b", "2");
        // A path of another system, with backslashes: bare name on the wire, and, unreadable
        // here, an empty part.
        post.addFile("sceneFile", "C:\\scenes\\x.scene", "application/zip");
        QByteArray boundary;
        const QByteArray body = post.body(1000, &boundary);
        QVERIFY(boundary.startsWith(QByteArray(27, '-')) && boundary.size() > 27);
        QByteArray other;
        FormPost().body(1000, &other);
        QCOMPARE(other, boundary);
        const QByteArray separator = "\r\n--" + boundary + "\r\n";
        const QByteArray expected = "--" + boundary
            + "\r\nContent-Disposition: form-data; name=\"a\"\r\n" + fieldPart + separator
            + "Content-Disposition: form-data; name=\"b\"\r\n"
            + (encoding == "ascii" ? "" : "Content-Transfer-Encoding: 8bit\r\n") + "\r\n2"
            + separator
            + "Content-Disposition: form-data; name=\"sceneFile\"; filename=\"x.scene\"\r\n"
              "Content-Type: application/zip\r\n\r\n"
            + "\r\n--" + boundary + "--\r\n";
        QCOMPARE(body, expected);
    }

    void uploadReply_data()
    {
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("message");
        QTest::newRow("success") << QByteArray(" 0*Thanks\n") << true << 0 << "Thanks";
        QTest::newRow("refusal") << QByteArray("1*No") << true << 1 << "No";
        QTest::newRow("no asterisk") << QByteArray("0") << false << 0 << "";
        QTest::newRow("two asterisks") << QByteArray("0*a*b") << false << 0 << "";
        QTest::newRow("no number") << QByteArray("x*text") << true << 0 << "text";
        QTest::newRow("empty") << QByteArray() << false << 0 << "";
    }
    void uploadReply()
    {
        QFETCH(QByteArray, reply);
        QFETCH(bool, valid);
        QFETCH(int, code);
        QFETCH(QString, message);
        int readCode = -1;
        QString readMessage;
        QCOMPARE(UploadDialog::parseReply(reply, &readCode, &readMessage), valid);
        if (valid) {
            QCOMPARE(readCode, code);
            QCOMPARE(readMessage, message);
        }
    }

    void downloadEntries_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("file") << "files/a.scene" << true;
        QTest::newRow("climbing") << "files/../../a.scene" << false;
        QTest::newRow("absolute") << "/etc/a.scene" << false;
        QTest::newRow("backslash") << "files\\a.scene" << false;
        QTest::newRow("empty last part") << "files/" << false;
        QTest::newRow("dot") << "files/." << false;
    }
    void downloadEntries()
    {
        QFETCH(QString, entry);
        QFETCH(bool, accepted);
        QCOMPARE(DownloadDialog::acceptedEntry(entry), accepted);
    }

    void emptyRepositoryListsNothing() { QCOMPARE(download(saves.filePath("none")), QString()); }

    // Anonymous and registered uploads; a wrong password is refused with the server's words
    // and leaves the dialog open.
    void uploads()
    {
        QNetworkAccessManager manager;
        QUrlQuery form;
        form.addQueryItem("username", "alice");
        form.addQueryItem("password", "secret1");
        form.addQueryItem("password2", "secret1");
        QNetworkRequest request(server->url().resolved(QUrl("/component/user/register")));
        request.setHeader(QNetworkRequest::ContentTypeHeader, "application/x-www-form-urlencoded");
        QNetworkReply* registered = manager.post(request, form.query().toUtf8());
        QSignalSpy done(registered, &QNetworkReply::finished);
        QVERIFY(done.wait(10000));
        QCOMPARE(registered->error(), QNetworkReply::NoError);

        int result = 0;
        QStringList texts = upload(saveScene("bridge.scene"), 0, "", "", &result);
        QCOMPARE(result, int(QDialog::Accepted));
        QVERIFY2(texts.value(0).contains("successfully uploaded"), qPrintable(texts.join('|')));
        QVERIFY(Settings::instance()->websiteUsername.isEmpty());

        texts = upload(saveScene("cart.scene"), 1, "alice", "wrong12", &result);
        QCOMPARE(result, int(QDialog::Rejected));
        QVERIFY2(texts.value(0).contains("Wrong user name or password."),
                 qPrintable(texts.join('|')));

        texts = upload(saveScene("cart.scene"), 1, "alice", "secret1", &result);
        QCOMPARE(result, int(QDialog::Accepted));
        QCOMPARE(Settings::instance()->websiteUsername, QStringLiteral("alice"));
        // The password never goes into the settings file.
        QFile ini(Settings::settingsFileName());
        Settings::instance()->sync();
        QVERIFY(ini.open(QIODevice::ReadOnly));
        QVERIFY(!ini.readAll().contains("secret1"));
        QVERIFY(QFile::exists(server->dataDirectory() + "/files/bridge.scene"));
        QVERIFY(QFile::exists(server->dataDirectory() + "/files/cart.scene"));
    }

    // The newest scenes come into the folder; a second run leaves them alone; a folder that
    // cannot be written says so on every row; the quick-load panel shows the new files.
    void downloadsAndQuickLoad()
    {
        QTemporaryDir target;
        QuickLoadWidget panel(target.path());
        auto* list = panel.findChild<QListWidget*>();
        QCOMPARE(list->count(), 0);
        QCOMPARE(download(target.path()),
                 QStringLiteral("Successfully downloaded.|"
                                "Successfully downloaded."));
        QVERIFY(QFile::exists(target.filePath("cart.scene")));
        QTRY_COMPARE(list->count(), 2);
        QCOMPARE(download(target.path(), 1), QStringLiteral("Already downloaded."));
        QCOMPARE(download(target.filePath("missing")),
                 QStringLiteral("Failed to open file for writing.|"
                                "Failed to open file for writing."));
    }

    // Newest first, only scene archives, names up to the first dot; a save into the folder
    // comes to the top.
    void quickLoadFollowsItsFolder()
    {
        QTemporaryDir folder;
        QFile::copy(saveScene("first.scene"), folder.filePath("first.scene"));
        QFile::copy(saveScene("two.dots.scene"), folder.filePath("two.dots.scene"));
        QFile other(folder.filePath("notes.txt"));
        QVERIFY(other.open(QIODevice::WriteOnly));
        other.close();
        QFile older(folder.filePath("first.scene"));
        QVERIFY(older.open(QIODevice::ReadWrite));
        QVERIFY(older.setFileTime(QDateTime::currentDateTime().addSecs(-60),
                                  QFileDevice::FileModificationTime));
        older.close();
        QuickLoadWidget panel(folder.path());
        auto* list = panel.findChild<QListWidget*>();
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->item(0)->text(), QStringLiteral("two"));
        QVERIFY(!list->item(0)->icon().isNull());
        // Past the burst limit of the panel's first fill.
        QTest::qWait(300);
        saveScene("newest.scene");
        QFile::copy(saves.filePath("newest.scene"), folder.filePath("newest.scene"));
        QTRY_COMPARE(list->count(), 3);
        QCOMPARE(list->item(0)->text(), QStringLiteral("newest"));
    }

    // With the server gone the list fails: the dialog says so and stays open for another try.
    void listFailureKeepsTheDialog()
    {
        QCOMPARE(server->stop(), 0);
        DownloadDialog dialog(saves.path());
        MessageBoxAnswerer answerer;
        QTimer::singleShot(0, &dialog, &DownloadDialog::accept);
        auto* ok = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        QTimer closer;
        connect(&closer, &QTimer::timeout, &dialog, [&] {
            if (!answerer.texts.isEmpty() && ok->isEnabled())
                dialog.reject();
        });
        closer.start(50);
        QCOMPARE(dialog.exec(), int(QDialog::Rejected));
        QVERIFY(answerer.texts.value(0).contains("Failed to retrieve file list from server."));
    }
};

BRIVANE_WINDOW_TEST_MAIN(TestSharing, true)
#include "tst_sharing.moc"
