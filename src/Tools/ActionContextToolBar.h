#pragma once

#include <QHash>
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

    // Called at each tool switch: hides every strip, then shows the one of `action`, adding
    // it at the tool's first turn. A tool without a strip leaves the bar empty.
    void setAction(GraphicsViewAction* action);

private:
    void hideAll();

    // For each tool that has been current, the bar's entry that holds its strip.
    QHash<GraphicsViewAction*, QAction*> entries;
};
