#include "Tools/EraseAction.h"

#include "Application/Settings.h"
#include "Commands/EraseCommand.h"
#include "Tools/EraseContextWidget.h"

EraseAction::EraseAction(QObject* parent, GraphicsView* graphicsView)
    : StrokeAction(QIcon(QStringLiteral(":/icons/eraser.png")), tr("Erase Item"), parent,
                   graphicsView)
{
    contextWidget = new EraseContextWidget();
}

QPen EraseAction::strokePen()
{
    return QPen(QBrush(Qt::black), Settings::instance()->eraseSize, Qt::DashLine, Qt::FlatCap,
                Qt::MiterJoin);
}

void EraseAction::finish(const QPolygonF& outline)
{
    push(new EraseCommand(outline));
}
