#include "Tools/BalloonAction.h"

#include "Commands/BalloonCommand.h"
#include "NemuToolbox/Toolbox.h"

#include <QAbstractGraphicsShapeItem>
#include <QRadialGradient>

BalloonAction::BalloonAction(QObject* parent, GraphicsView* graphicsView)
    : CircleAction(QIcon(QStringLiteral(":/icons/balloon.png")), tr("Create Balloon"), parent,
                   graphicsView)
{
}

void BalloonAction::mouseMoveEvent(QMouseEvent* event)
{
    CircleAction::mouseMoveEvent(event);
    if (!preview()->isVisible())
        return;
    const QRectF circle = box();
    QRadialGradient gradient(circle.center(), circle.width() / 2.0);
    gradient.setColorAt(0.0, color);
    gradient.setColorAt(1.0, Qt::white);
    preview()->setBrush(gradient);
}

QBrush BalloonAction::gestureBrush()
{
    color = Nemu::Toolbox::randomColor();
    return QBrush(color, Qt::SolidPattern);
}

QUndoCommand* BalloonAction::createCommand(const QRectF& box) const
{
    const QPointF centre = box.center();
    return new BalloonCommand(centre.x(), centre.y(), 0.0, box.width() / 2.0,
                              QBrush(color, Qt::SolidPattern));
}
