#include "Tools/CameraAction.h"

#include "Application/Application.h"
#include "Application/Settings.h"
#include "Tools/CameraContextWidget.h"
#include "View/GraphicsScene.h"

#include <QMouseEvent>

CameraAction::CameraAction(QObject* parent, GraphicsView* graphicsView)
    : GraphicsViewAction(QIcon(QStringLiteral(":/icons/camera.png")), tr("Create Camera"), parent,
                         graphicsView)
{
    contextWidget = new CameraContextWidget();
}

void CameraAction::mouseReleaseEvent(QMouseEvent* event)
{
    if (BodyItem* body = graphicsScene()->bodyItemAt(snappedScenePos(event->pos())))
        Application::instance()->createCamera(
            body, Brivane::CameraMode(Settings::instance()->cameraMode));
}
