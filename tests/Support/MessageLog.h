#pragma once

#include <QStringList>
#include <QtGlobal>

// Collects what the program writes to the framework log (console messages before a console
// exists go there) while an instance is alive.
class MessageLog
{
public:
    MessageLog()
    {
        lines().clear();
        previous = qInstallMessageHandler(&MessageLog::collect);
    }
    ~MessageLog() { qInstallMessageHandler(previous); }

    static QStringList& lines()
    {
        static QStringList collected;
        return collected;
    }

private:
    static void collect(QtMsgType, const QMessageLogContext&, const QString& message)
    {
        lines().append(message);
    }

    QtMessageHandler previous;
};
