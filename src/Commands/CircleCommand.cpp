#include "Commands/CircleCommand.h"

#include "Physics/CircleItem.h"

#include <QObject>

CircleCommand::CircleCommand(double x, double y, double theta, double r, const QBrush& brush,
                             QUndoCommand* parent)
    : BodyCommand(new CircleItem(x, y, theta, r), brush, QObject::tr("Circle"), parent)
{
}
