#include "Tools/Action.h"

Action::Action(const QIcon& icon, const QString& text, QObject* parent)
    : QAction(icon, text, parent)
{
    connect(this, &QAction::triggered, this, &Action::onTriggered);
}

void Action::onTriggered() { }
