#pragma once

#include <QDir>
#include <QTest>

// The replay of a fuzz corpus: one row per input file, each handed to the area's input check,
// which names what went wrong or returns an empty text.
namespace CorpusReplay {

inline void addRows(const QString& directory)
{
    QTest::addColumn<QString>("path");
    const QFileInfoList files = QDir(directory).entryInfoList(QDir::Files, QDir::Name);
    // A missing or emptied corpus would pass every time.
    QVERIFY2(files.size() >= 10, qPrintable(directory));
    for (const QFileInfo& file : files)
        QTest::newRow(qPrintable(file.fileName())) << file.filePath();
}

template<typename Check> void replay(const QString& path, Check check)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString fault = check(file.readAll());
    QVERIFY2(fault.isEmpty(), qPrintable(fault));
}

} // namespace CorpusReplay
