#include "Tools/ActionContextToolBar.h"

#include "Tools/ActionContextWidget.h"
#include "Tools/GraphicsViewAction.h"

ActionContextToolBar::ActionContextToolBar(const QString& title, QWidget* parent)
    : QToolBar(title, parent)
{
    setStyleSheet(QStringLiteral("font-size: 10px"));
    // The height of the bar before any strip or layout, so that strips of different heights
    // do not make the line jump at a tool switch.
    setFixedHeight(height());
}

void ActionContextToolBar::hideAll()
{
    for (QAction* entry : qAsConst(entries))
        entry->setVisible(false);
}

void ActionContextToolBar::setAction(GraphicsViewAction* action)
{
    hideAll();
    if (!action || !action->contextWidget)
        return;
    QAction* entry = entries.value(action);
    if (!entry) {
        entry = addWidget(action->contextWidget);
        entries.insert(action, entry);
        // The entry owns the strip; a tool that goes takes its strip along, and no later tool
        // at the same address finds a stale entry.
        connect(action, &QObject::destroyed, this, [this, action] { delete entries.take(action); });
    }
    entry->setVisible(true);
}
