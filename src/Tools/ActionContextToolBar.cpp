#include "Tools/ActionContextToolBar.h"

ActionContextToolBar::ActionContextToolBar(const QString& title, QWidget* parent)
    : QToolBar(title, parent)
{
    setStyleSheet(QStringLiteral("font-size: 10px"));
    // The height of the bar before any strip or layout, so that strips of different heights
    // do not make the line jump at a tool switch.
    setFixedHeight(height());
}

// No tool has a strip yet, so a switch leaves the bar empty.
void ActionContextToolBar::setAction(GraphicsViewAction*)
{
    for (QAction* entry : actions())
        entry->setVisible(false);
}
