#pragma once

#include "Application/Application.h"
#include "Application/Settings.h"

#include <QFile>
#include <QFileInfo>
#include <QTest>

// A main() for tests of the whole program as main() starts it, window included, with no
// settings file before or after, so that the first scene has its ground. `offscreen` false
// needs a real display. `beforeInitialise` gets the application before its window exists.
#define BRIVANE_WINDOW_TEST_MAIN_WITH(TestClass, offscreen, beforeInitialise)                      \
    int main(int argc, char* argv[])                                                               \
    {                                                                                              \
        if (offscreen)                                                                             \
            qputenv("QT_QPA_PLATFORM", "offscreen");                                               \
        const QString ini = QFileInfo(QString::fromLocal8Bit(argv[0])).absolutePath()              \
            + QStringLiteral("/Brivane.ini");                                                      \
        QFile::remove(ini);                                                                        \
        Application application(argc, argv);                                                       \
        /* The tip of the day would wait modally in front of every test. */                        \
        Settings::instance()->showTipsAtStartup = false;                                           \
        beforeInitialise(application);                                                             \
        application.initialise();                                                                  \
        TestClass test;                                                                            \
        const int result = QTest::qExec(&test, argc, argv);                                        \
        QFile::remove(ini);                                                                        \
        return result;                                                                             \
    }

#define BRIVANE_WINDOW_TEST_MAIN(TestClass, offscreen)                                             \
    BRIVANE_WINDOW_TEST_MAIN_WITH(TestClass, offscreen, [](Application&) {})
