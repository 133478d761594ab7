#include "ApplicationTestMain.h"
#include "Files/fuzz/SceneInputCheck.h"

#include <QDir>
#include <QtTest>

// Every document of the scene reader's fuzz corpus once more, so that the cases the fuzzer
// found stay fixed in each ordinary test run.
class TestSceneFuzzReplay : public QObject
{
    Q_OBJECT

    static QFileInfoList corpus()
    {
        return QDir(QStringLiteral(SCENE_FUZZ_CORPUS)).entryInfoList(QDir::Files, QDir::Name);
    }

private slots:
    void replay_data()
    {
        QTest::addColumn<QString>("path");
        QVERIFY2(corpus().size() >= 10, SCENE_FUZZ_CORPUS);
        for (const QFileInfo& file : corpus())
            QTest::newRow(qPrintable(file.fileName())) << file.filePath();
    }

    void replay()
    {
        QFETCH(QString, path);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString fault = checkSceneInput(file.readAll());
        QVERIFY2(fault.isEmpty(), qPrintable(fault));
    }
};

BRIVANE_APPLICATION_TEST_MAIN(TestSceneFuzzReplay)
#include "tst_scenefuzzreplay.moc"
