#include "Tools/RopeAction.h"

#include "Application/Settings.h"
#include "Commands/RopeCommand.h"
#include "Tools/RopeContextWidget.h"

#include <QGraphicsRectItem>
#include <QLineF>

RopeAction::RopeAction(QObject* parent, GraphicsView* graphicsView)
    : LinkAction(QIcon(QStringLiteral(":/icons/rope.png")), tr("Create Rope"), parent, graphicsView)
{
    contextWidget = new RopeContextWidget();
}

double RopeAction::linkLength() const
{
    return Settings::instance()->ropeRectangleWidth;
}

void RopeAction::showLink()
{
    if (points.size() < 2)
        return;
    const double width = linkLength();
    const QLineF segment(points.at(points.size() - 2), points.last());
    auto* link = new QGraphicsRectItem(-width / 2, -width / 6, width, width / 3);
    link->setPos(segment.center());
    link->setRotation(-segment.angle());
    link->setBrush(QBrush(QColor(Settings::instance()->ropeColor), Qt::SolidPattern));
    addToPreview(link);
}

QUndoCommand* RopeAction::command() const
{
    const Settings* settings = Settings::instance();
    return new RopeCommand(points, settings->ropeAttachPoint,
                           QBrush(QColor(settings->ropeColor), Qt::SolidPattern));
}
