#include "Application/Settings.h"
#include "ApplicationTestMain.h"
#include "Gui/AboutDialog.h"
#include "Gui/HelpWidget.h"
#include "Gui/SocialWidget.h"
#include "Gui/TipDialog.h"

#include <QCheckBox>
#include <QDirIterator>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QTextBrowser>
#include <QToolButton>

// The about box, the tip of the day, the sharing links and the help pages with every link
// between them.
class TestHelpDialogs : public QObject
{
    Q_OBJECT

    static QString tipText(TipDialog& dialog)
    {
        return dialog.findChild<QLabel*>(QStringLiteral("textLabel"))->text();
    }
    static QStringList links(const QString& html)
    {
        static const QRegularExpression link(
            QStringLiteral("(?:href|src)\\s*=\\s*[\"']([^\"']*)[\"']"),
            QRegularExpression::CaseInsensitiveOption);
        QStringList found;
        for (auto match = link.globalMatch(html); match.hasNext();)
            found.append(match.next().captured(1));
        return found;
    }

private slots:
    void tipsGoRoundBothWays()
    {
        TipDialog dialog;
        QPushButton* next = dialog.findChild<QPushButton*>(QStringLiteral("nextButton"));
        QPushButton* previous = dialog.findChild<QPushButton*>(QStringLiteral("previousButton"));
        QStringList seen {tipText(dialog)};
        for (int i = 0; i < 6; ++i) {
            next->click();
            seen.append(tipText(dialog));
        }
        QCOMPARE(seen.last(), seen.first());
        QCOMPARE(QSet<QString>(seen.cbegin(), seen.cend()).size(), 6);
        previous->click();
        QCOMPARE(tipText(dialog), seen.at(5));
        QCOMPARE(seen.mid(1).filter(websiteUrl().toString()).size(), 1);
    }

    void showTipAtStartupIsStoredAtOnce()
    {
        TipDialog dialog;
        QCheckBox* box = dialog.findChild<QCheckBox*>(QStringLiteral("showTipsAtStartup"));
        QVERIFY(box->isChecked());
        box->setChecked(false);
        QSettings file(Settings::settingsFileName(), QSettings::IniFormat);
        QCOMPARE(file.value(QStringLiteral("General/ShowTipsAtStartup")).toBool(), false);
        box->setChecked(true);
    }

    void aboutNamesVersionAndAddresses()
    {
        AboutDialog dialog;
        const QString about
            = dialog.findChild<QTextBrowser*>(QStringLiteral("aboutTextBrowser"))->toHtml();
        QVERIFY(!QCoreApplication::applicationVersion().isEmpty());
        QVERIFY(about.contains(QCoreApplication::applicationVersion()));
        QVERIFY(about.contains(websiteUrl().toString()));
        QVERIFY(about.contains(QLatin1Char('@')));
        QVERIFY(!about.contains(QLatin1String("{{")));
        for (const char* page : {"creditsTextBrowser", "changelogTextBrowser"})
            QVERIFY(!dialog.findChild<QTextBrowser*>(QLatin1String(page))->toPlainText().isEmpty());
    }

    void sharingLinksCarryAddressAndTitle()
    {
        SocialWidget widget(QStringLiteral("https://example.org/x"), QStringLiteral("A title"));
        const QStringList found = links(widget.text());
        const QStringList pages = found.filter(QStringLiteral("example.org"));
        QCOMPARE(pages.size(), 10);
        QCOMPARE(pages.filter(QStringLiteral("A title")).size(), 9);
        QVERIFY(pages.contains(
            QStringLiteral("http://technorati.com/faves?add=https://example.org/x")));
        for (const QString& icon : found.filter(QStringLiteral(":/icons/social/")))
            QVERIFY2(!QPixmap(icon).isNull(), qPrintable(icon));
    }

    // Every page beside the program, its links to other pages, anchors and pictures.
    void helpPagesLinkOnlyToWhatExists()
    {
        const QString root = QCoreApplication::applicationDirPath() + QStringLiteral("/doc/en");
        QDirIterator pages(root, {QStringLiteral("*.html")}, QDir::Files,
                           QDirIterator::Subdirectories);
        int count = 0;
        while (pages.hasNext()) {
            const QFileInfo page(pages.next());
            QFile file(page.filePath());
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QString html = QString::fromUtf8(file.readAll());
            ++count;
            for (const QString& link : links(html)) {
                if (link.contains(QLatin1String("://"))
                    || link.startsWith(QLatin1String("mailto:")))
                    continue;
                const QString path = link.section(QLatin1Char('#'), 0, 0);
                const QString anchor = link.section(QLatin1Char('#'), 1);
                const QString target = path.isEmpty() ? page.filePath() : page.dir().filePath(path);
                QVERIFY2(QFile::exists(target), qPrintable(page.fileName() + ": " + link));
                if (anchor.isEmpty())
                    continue;
                QFile targetFile(target);
                QVERIFY(targetFile.open(QIODevice::ReadOnly));
                const QString targetHtml = QString::fromUtf8(targetFile.readAll());
                QVERIFY2(targetHtml.contains(QStringLiteral("name=\"%1\"").arg(anchor))
                             || targetHtml.contains(QStringLiteral("id=\"%1\"").arg(anchor)),
                         qPrintable(page.fileName() + ": " + link));
            }
        }
        QVERIFY(count > 1);
    }

    void helpOpensTheIndexAndGoesBack()
    {
        HelpWidget help;
        auto* browser = help.findChild<QTextBrowser*>(QStringLiteral("textBrowser"));
        auto* backward = help.findChild<QToolButton*>(QStringLiteral("backwardToolButton"));
        QCOMPARE(browser->source().fileName(), QStringLiteral("index.html"));
        QVERIFY(!browser->toPlainText().isEmpty());
        QVERIFY(!backward->isEnabled());
        const QStringList pages = links(browser->toHtml()).filter(QStringLiteral(".html"));
        QVERIFY(!pages.isEmpty());
        browser->setSource(browser->source().resolved(QUrl(pages.first())));
        QVERIFY(backward->isEnabled());
        backward->click();
        QCOMPARE(browser->source().fileName(), QStringLiteral("index.html"));
    }
};

BRIVANE_APPLICATION_TEST_MAIN(TestHelpDialogs)
#include "tst_helpdialogs.moc"
