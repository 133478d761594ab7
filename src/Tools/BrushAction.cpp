#include "Tools/BrushAction.h"

#include "Application/Settings.h"
#include "Commands/PolygonCommand.h"
#include "NemuToolbox/Toolbox.h"
#include "Tools/BrushContextWidget.h"

#include <QGraphicsPathItem>

BrushAction::BrushAction(QObject* parent, GraphicsView* graphicsView)
    : StrokeAction(QIcon(QStringLiteral(":/icons/brush.png")), tr("Create freehand shape"), parent,
                   graphicsView)
{
    contextWidget = new BrushContextWidget();
}

QPen BrushAction::strokePen()
{
    return QPen(QBrush(Nemu::Toolbox::randomColor(), Qt::SolidPattern),
                Settings::instance()->brushSize, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin);
}

void BrushAction::finish(const QPolygonF& outline)
{
    QBrush fill(preview->pen().color(), Qt::SolidPattern);
    fill.setTransform(QTransform(TextureMatrix));
    push(new PolygonCommand(outline, fill));
}
