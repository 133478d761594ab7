#pragma once

#include "Application/Settings.h"

#include <QApplication>
#include <QFile>

// The application object of a timing program: offscreen, with default settings, and no
// settings file left behind.
class BenchmarkApplication
{
public:
    BenchmarkApplication(int& argc, char** argv)
        : application(offscreen(argc), argv)
    {
        QCoreApplication::setApplicationName(QStringLiteral("BrivaneBench"));
        Settings::instance();
    }
    ~BenchmarkApplication()
    {
        Settings::destroy();
        QFile::remove(Settings::settingsFileName());
    }

private:
    // The platform has to be chosen before the application object exists.
    static int& offscreen(int& argc)
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return argc;
    }

    QApplication application;
};
