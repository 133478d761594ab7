#include "Commands/BalloonCommand.h"

#include "Physics/BalloonItem.h"

#include <QObject>

BalloonCommand::BalloonCommand(double x, double y, double theta, double r, const QBrush& brush,
                               QUndoCommand* parent)
    : BodyCommand(new BalloonItem(x, y, theta, r), brush, QObject::tr("Balloon"), parent)
{
}
