#include "Commands/RectangleCommand.h"

#include "Physics/RectangleItem.h"

#include <QObject>

RectangleCommand::RectangleCommand(double x, double y, double theta, double w, double h,
                                   const QBrush& brush, QUndoCommand* parent)
    : BodyCommand(new RectangleItem(x, y, theta, w, h), brush, QObject::tr("Rectangle"), parent)
{
}
