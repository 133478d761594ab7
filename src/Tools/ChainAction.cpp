#include "Tools/ChainAction.h"

#include "Application/Settings.h"
#include "Commands/ChainCommand.h"
#include "Tools/ChainContextWidget.h"

#include <QGraphicsEllipseItem>

ChainAction::ChainAction(QObject* parent, GraphicsView* graphicsView)
    : LinkAction(QIcon(QStringLiteral(":/icons/chain.png")), tr("Create Chain"), parent,
                 graphicsView)
{
    contextWidget = new ChainContextWidget();
}

double ChainAction::linkLength() const
{
    return 2.0 * Settings::instance()->chainCircleRadius;
}

void ChainAction::showLink()
{
    const double radius = Settings::instance()->chainCircleRadius;
    auto* circle = new QGraphicsEllipseItem(points.last().x() - radius, points.last().y() - radius,
                                            2 * radius, 2 * radius);
    circle->setBrush(QBrush(QColor(Settings::instance()->chainColor), Qt::SolidPattern));
    addToPreview(circle);
}

QUndoCommand* ChainAction::command() const
{
    const Settings* settings = Settings::instance();
    return new ChainCommand(points, settings->chainAttachPoint,
                            QBrush(QColor(settings->chainColor), Qt::SolidPattern));
}
