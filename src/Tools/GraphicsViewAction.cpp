#include "Tools/GraphicsViewAction.h"

#include "Application/Settings.h"
#include "NemuToolbox/Toolbox.h"
#include "View/GraphicsScene.h"
#include "View/GraphicsView.h"
#include "View/GridGraphicsItem.h"
#include "View/SnapPointGraphicsItem.h"

#include <QKeyEvent>
#include <QPainter>

GraphicsViewAction::GraphicsViewAction(const QIcon& icon, const QString& text, QObject* parent,
                                       GraphicsView* graphicsView)
    : Action(icon, text, parent)
    , graphicsView(graphicsView)
{
    brush.setTransform(QTransform(TextureMatrix));
}

QPointF GraphicsViewAction::snappedScenePos(const QPoint& pos) const
{
    const QPointF point = graphicsView->mapToScene(pos);
    const Settings* settings = Settings::instance();
    QPointF snapped;
    if (settings->snapToGrid) {
        snapped = graphicsView->gridItem()->snapToGrid(point);
    } else if (settings->snapToObjects) {
        auto* scene = static_cast<GraphicsScene*>(graphicsView->scene());
        if (!scene->snapPoint(point, settings->maxObjectSnapDistance, snapped))
            return point;
    } else {
        return point;
    }
    graphicsView->snapPointItem()->setPos(snapped);
    graphicsView->snapPointItem()->show();
    return snapped;
}

void GraphicsViewAction::cancel()
{
    reset();
}

void GraphicsViewAction::reset() {}

void GraphicsViewAction::mousePressEvent(QMouseEvent*) {}

void GraphicsViewAction::mouseMoveEvent(QMouseEvent*) {}

void GraphicsViewAction::mouseReleaseEvent(QMouseEvent*) {}

void GraphicsViewAction::wheelEvent(QWheelEvent*) {}

void GraphicsViewAction::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        reset();
}

void GraphicsViewAction::onTriggered()
{
    const QPixmap pixmap = cursorPixmap();
    graphicsView->setCursor(pixmap.isNull() ? QCursor() : QCursor(pixmap, 0, 0));
}

QPixmap GraphicsViewAction::cursorPixmap()
{
    const QImage pointer = QImage(QStringLiteral(":/icons/mousePointer.png"))
                               .scaled(20, 20, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    const QImage toolIcon = icon().pixmap(20, 20).toImage();
    QImage cursor(32, 32, QImage::Format_ARGB32_Premultiplied);
    cursor.fill(Qt::transparent);
    QPainter painter(&cursor);
    painter.drawImage(0, 0, pointer);
    painter.drawImage(12, 0, toolIcon);
    painter.end();
    return QPixmap::fromImage(cursor);
}

void GraphicsViewAction::pickBrush()
{
    brush.setColor(Nemu::Toolbox::randomColor());
    brush.setStyle(Qt::SolidPattern);
    if (Settings::instance()->isStaticDefault)
        brush.setTexture(QPixmap(QStringLiteral(":/images/wall.png")));
}
