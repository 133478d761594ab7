#pragma once

#include <QToolBar>

class GraphicsViewAction;

// The toolbar on a line of its own that shows the parameter strip of the current tool and no
// other. A strip enters the bar when its tool is first chosen and stays there, hidden while
// another tool is current; the bar then owns it.
class ActionContextToolBar : public QToolBar
{
    Q_OBJECT

public:
    explicit ActionContextToolBar(const QString& title, QWidget* parent = nullptr);

    // Called at each tool switch: hides every strip, then shows the one of `action`.
    void setAction(GraphicsViewAction* action);
};
