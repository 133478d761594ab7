#include "Tools/GraphicsViewAction.h"

#include "Application/Application.h"
#include "Application/Settings.h"
#include "NemuToolbox/Toolbox.h"
#include "Tools/ActionContextWidget.h"
#include "View/CosmeticPens.h"
#include "View/GraphicsScene.h"
#include "View/GraphicsView.h"
#include "View/GridGraphicsItem.h"
#include "View/SnapPointGraphicsItem.h"

#include <QGraphicsItem>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>
#include <QUndoStack>

namespace {
// Previews lie above every item; bodies and joints count their z values up from 0.
const double previewZValue = 100000.0;
} // namespace

GraphicsViewAction::GraphicsViewAction(const QIcon& icon, const QString& text, QObject* parent,
                                       GraphicsView* graphicsView)
    : Action(icon, text, parent)
    , graphicsView(graphicsView)
{
    brush.setTransform(QTransform(TextureMatrix));
}

GraphicsViewAction::~GraphicsViewAction()
{
    if (contextWidget && !contextWidget->parent())
        delete contextWidget;
}

QPointF GraphicsViewAction::snappedScenePos(const QPoint& pos) const
{
    const QPointF point = graphicsView->mapToScene(pos);
    const Settings* settings = Settings::instance();
    QPointF snapped;
    if (settings->snapToGrid) {
        snapped = graphicsView->gridItem()->snapToGrid(point);
    } else if (settings->snapToObjects) {
        if (!graphicsScene()->snapPoint(point, settings->maxObjectSnapDistance, snapped))
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

void GraphicsViewAction::reset() { }

void GraphicsViewAction::mousePressEvent(QMouseEvent*) { }

void GraphicsViewAction::mouseMoveEvent(QMouseEvent*) { }

void GraphicsViewAction::mouseReleaseEvent(QMouseEvent*) { }

void GraphicsViewAction::wheelEvent(QWheelEvent*) { }

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

void GraphicsViewAction::addPreview(QGraphicsItem* preview, PreviewPen pen, double opacity) const
{
    if (pen == PreviewPen::Cosmetic)
        CosmeticPens::apply(preview);
    preview->setOpacity(opacity);
    preview->setZValue(previewZValue);
    preview->hide();
    graphicsScene()->addItem(preview);
}

void GraphicsViewAction::showSizeToolTip(const QPoint& pos, const QString& text) const
{
    QToolTip::showText(graphicsView->viewport()->mapToGlobal(pos), text, graphicsView);
}

void GraphicsViewAction::hideSizeToolTip() const
{
    QToolTip::showText(QPoint(), QString(), graphicsView);
}

QString GraphicsViewAction::lengthText(double metres)
{
    return QString::number(metres, 'f', 3);
}

GraphicsScene* GraphicsViewAction::graphicsScene() const
{
    return static_cast<GraphicsScene*>(graphicsView->scene());
}

void GraphicsViewAction::push(QUndoCommand* command)
{
    Application::instance()->undoStack->push(command);
}
