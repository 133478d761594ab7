#include "Tools/PlotAction.h"

#include "Application/Application.h"
#include "View/GraphicsScene.h"
#include "View/GraphicsView.h"

#include <QMouseEvent>

PlotAction::PlotAction(QObject* parent, GraphicsView* graphicsView)
    : GraphicsViewAction(QIcon(QStringLiteral(":/icons/graph.png")), tr("Create Plot"), parent,
                         graphicsView)
{
}

void PlotAction::mouseReleaseEvent(QMouseEvent* event)
{
    if (BodyItem* body = graphicsScene()->bodyItemAt(graphicsView->mapToScene(event->pos())))
        Application::instance()->createPlot(body);
}
