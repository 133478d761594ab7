#pragma once

#include "Application/Application.h"
#include "Application/Settings.h"

#include <QFile>
#include <QFileInfo>
#include <QTest>

// A main() for tests that need the whole application object with its script engine but no
// window: offscreen, with no settings file before or after.
#define BRIVANE_APPLICATION_TEST_MAIN(TestClass)                                                   \
    int main(int argc, char* argv[])                                                               \
    {                                                                                              \
        qputenv("QT_QPA_PLATFORM", "offscreen");                                                   \
        const QString ini = QFileInfo(QString::fromLocal8Bit(argv[0])).absolutePath()              \
            + QStringLiteral("/Brivane.ini");                                                      \
        QFile::remove(ini);                                                                        \
        Application application(argc, argv);                                                       \
        application.setupScriptEngine();                                                           \
        TestClass test;                                                                            \
        const int result = QTest::qExec(&test, argc, argv);                                        \
        QFile::remove(ini);                                                                        \
        return result;                                                                             \
    }
