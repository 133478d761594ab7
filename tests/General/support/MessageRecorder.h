#pragma once

#include <QList>
#include <QPair>
#include <QStringList>
#include <QtGlobal>

// Collects what is written to the framework log while it lives, so that a test can check that
// a message came and equally that none did. Only one recorder may live at a time; it puts
// back the handler it replaced.
class MessageRecorder
{
public:
    MessageRecorder();
    ~MessageRecorder();
    MessageRecorder(const MessageRecorder&) = delete;
    MessageRecorder& operator=(const MessageRecorder&) = delete;

    // The texts of the messages of one type, in the order they came.
    QStringList messages(QtMsgType type) const;

private:
    static void record(QtMsgType type, const QMessageLogContext& context, const QString& text);

    static MessageRecorder* current;
    QtMessageHandler previous;
    QList<QPair<QtMsgType, QString>> recorded;
};
