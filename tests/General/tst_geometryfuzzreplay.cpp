#include "General/fuzz/GeometryInputCheck.h"

#include <QDir>
#include <QtTest>

// Every input of the geometry fuzz corpus once more, so that the cases the fuzzer found stay
// fixed in each ordinary test run.
class tst_GeometryFuzzReplay : public QObject
{
    Q_OBJECT

private slots:
    void corpusIsPresent();
    void replay_data();
    void replay();

private:
    static QFileInfoList corpus();
};

QFileInfoList tst_GeometryFuzzReplay::corpus()
{
    return QDir(QStringLiteral(GEOMETRY_FUZZ_CORPUS)).entryInfoList(QDir::Files, QDir::Name);
}

void tst_GeometryFuzzReplay::corpusIsPresent()
{
    QVERIFY2(corpus().size() >= 10, GEOMETRY_FUZZ_CORPUS);
}

void tst_GeometryFuzzReplay::replay_data()
{
    QTest::addColumn<QString>("path");
    for (const QFileInfo& file : corpus())
        QTest::newRow(qPrintable(file.fileName())) << file.filePath();
}

void tst_GeometryFuzzReplay::replay()
{
    QFETCH(QString, path);

    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString fault = checkGeometryInput(file.readAll());
    QVERIFY2(fault.isEmpty(), qPrintable(fault));
}

QTEST_GUILESS_MAIN(tst_GeometryFuzzReplay)
#include "tst_geometryfuzzreplay.moc"
