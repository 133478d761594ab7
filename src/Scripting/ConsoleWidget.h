#pragma once

#include "Application/Brivane.h"
#include "Scripting/ConsoleMessageStyle.h"

#include <QHash>
#include <QWidget>
#include <memory>

class QAction;

namespace Ui {
class ConsoleWidget;
}

// The program's message log and its script prompt in one. Messages arrive through debug(),
// each on a line of its own with the colour and icon of its kind; the oldest go once there
// are more than maximumMessages, so a script that prints at every step cannot grow the log
// without end. A line typed below is echoed, checked and evaluated in the global scope of
// the program's script engine, and its result or error is printed. Owns its form.
class ConsoleWidget : public QWidget
{
    Q_OBJECT

public:
    static const int maximumMessages = 2000;

    explicit ConsoleWidget(QWidget* parent = nullptr);
    ~ConsoleWidget() override;

    void debug(const QString& text, Brivane::ConsoleMessageType type);
    // The action behind the button beside the input line.
    void setStopAction(QAction* action);

public slots:
    void onGotInput(QString s);

private:
    // The style of a kind; a kind without one gets, and keeps, an empty style.
    ConsoleMessageStyle style(Brivane::ConsoleMessageType type);
    // Drops the oldest messages in one piece, a tenth of the log at a time, so that dropping
    // costs little per message.
    void trimLog();

    std::unique_ptr<Ui::ConsoleWidget> ui;
    QHash<int, ConsoleMessageStyle> styles;
};
