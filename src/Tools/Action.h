#pragma once

#include <QAction>

// A QAction whose triggering calls a virtual operation, so that tools and commands of the
// main window can react in their own class.
class Action : public QAction
{
    Q_OBJECT

public:
    Action(const QIcon& icon, const QString& text, QObject* parent);

protected slots:
    virtual void onTriggered();
};
