#include "General/support/MessageRecorder.h"

MessageRecorder* MessageRecorder::current = nullptr;

MessageRecorder::MessageRecorder()
{
    Q_ASSERT(!current);
    current = this;
    previous = qInstallMessageHandler(&MessageRecorder::record);
}

MessageRecorder::~MessageRecorder()
{
    qInstallMessageHandler(previous);
    current = nullptr;
}

QStringList MessageRecorder::messages(QtMsgType type) const
{
    QStringList texts;
    for (const auto& message : recorded) {
        if (message.first == type)
            texts << message.second;
    }
    return texts;
}

void MessageRecorder::record(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    current->recorded.append(qMakePair(type, text));
}
