#include "Commands/GearCommand.h"

#include "Physics/GearItem.h"

#include <QObject>

GearCommand::GearCommand(double x, double y, double theta, double r, double toothSize,
                         double toothCountDivisor, const QBrush& brush, QUndoCommand* parent)
    : BodyCommand(new GearItem(x, y, theta, r, toothSize, toothCountDivisor), brush,
                  QObject::tr("Gear"), parent)
{
}
