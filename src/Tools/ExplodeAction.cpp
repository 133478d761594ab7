#include "Tools/ExplodeAction.h"

#include "Application/Settings.h"
#include "Commands/ExplodeCommand.h"
#include "Tools/ExplodeContextWidget.h"
#include "View/GraphicsScene.h"
#include "View/GraphicsView.h"

#include <QMouseEvent>

ExplodeAction::ExplodeAction(QObject* parent, GraphicsView* graphicsView)
    : GraphicsViewAction(QIcon(QStringLiteral(":/icons/bomb.png")), tr("Explode Item"), parent,
                         graphicsView)
{
    contextWidget = new ExplodeContextWidget();
}

void ExplodeAction::mouseReleaseEvent(QMouseEvent* event)
{
    BodyItem* body = graphicsScene()->bodyItemAt(graphicsView->mapToScene(event->pos()));
    if (!body)
        return;
    const Settings* settings = Settings::instance();
    // Null for an unknown method, or for too many pieces, which the console then names.
    if (ExplodeCommand* command
        = ExplodeCommand::create(body, settings->explodeMethod, settings->explodeSize))
        push(command);
}
