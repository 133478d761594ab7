#include "Scripting/CommandLineEdit.h"

#include <QKeyEvent>

CommandLineEdit::CommandLineEdit(QWidget* parent)
    : QLineEdit(parent)
{
    connect(this, &QLineEdit::returnPressed, this, &CommandLineEdit::onReturnPressed);
}

void CommandLineEdit::onReturnPressed()
{
    const QString input = text();
    history.append(input);
    historyIndex = history.size();
    emit gotInput(input);
    clear();
}

void CommandLineEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Up) {
        if (historyIndex > 0)
            setText(history.at(--historyIndex));
    } else if (event->key() == Qt::Key_Down) {
        if (historyIndex < history.size() && ++historyIndex < history.size()) {
            setText(history.at(historyIndex));
        } else if (!text().isEmpty()) {
            // Past the newest entry: what is in the field is filed, so a half-typed line
            // stays within reach of Up.
            history.append(text());
            historyIndex = history.size();
            clear();
        }
    }
    QLineEdit::keyPressEvent(event);
}
