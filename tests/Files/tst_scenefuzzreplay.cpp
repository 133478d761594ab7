#include "ApplicationTestMain.h"
#include "CorpusReplay.h"
#include "Files/fuzz/SceneInputCheck.h"

#include <QtTest>

// Every document of the scene reader's fuzz corpus once more, so that the cases the fuzzer
// found stay fixed in each ordinary test run.
class TestSceneFuzzReplay : public QObject
{
    Q_OBJECT

private slots:
    void replay_data() { CorpusReplay::addRows(QStringLiteral(SCENE_FUZZ_CORPUS)); }

    void replay()
    {
        QFETCH(QString, path);
        CorpusReplay::replay(path, checkSceneInput);
    }
};

BRIVANE_APPLICATION_TEST_MAIN(TestSceneFuzzReplay)
#include "tst_scenefuzzreplay.moc"
