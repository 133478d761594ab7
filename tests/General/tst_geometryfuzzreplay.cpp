#include "CorpusReplay.h"
#include "General/fuzz/GeometryInputCheck.h"

#include <QtTest>

// Every input of the geometry fuzz corpus once more, so that the cases the fuzzer found stay
// fixed in each ordinary test run.
class tst_GeometryFuzzReplay : public QObject
{
    Q_OBJECT

private slots:
    void replay_data() { CorpusReplay::addRows(QStringLiteral(GEOMETRY_FUZZ_CORPUS)); }

    void replay()
    {
        QFETCH(QString, path);
        CorpusReplay::replay(path, checkGeometryInput);
    }
};

QTEST_GUILESS_MAIN(tst_GeometryFuzzReplay)
#include "tst_geometryfuzzreplay.moc"
