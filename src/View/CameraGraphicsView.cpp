#include "View/CameraGraphicsView.h"

#include "Physics/BodyItem.h"
#include "View/GraphicsView.h"

#include <QEvent>
#include <QGraphicsItem>

CameraGraphicsView::CameraGraphicsView(BodyItem* pItem, QWidget* parent)
    : QGraphicsView(pItem->graphicsItem()->scene(), parent)
    , body(pItem)
{
    if (QWidget* glViewport = GraphicsView::openGLViewport())
        setViewport(glViewport);
    setViewportUpdateMode(QGraphicsView::BoundingRectViewportUpdate);
    setMinimumSize(minimumSide, minimumSide);
    setMaximumSize(maximumSide, maximumSide);
    // No zoom: y up at a fixed scale.
    setTransform(QTransform(pixelsPerMetre, 0.0, 0.0, -pixelsPerMetre, 0.0, 0.0));
    setRenderHint(QPainter::Antialiasing);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // The body fills half of each side at the start.
    const QRectF bounds = pItem->graphicsItem()->boundingRect();
    resize(2 * int(pixelsPerMetre * bounds.width()), 2 * int(pixelsPerMetre * bounds.height()));
    retranslate();
}

void CameraGraphicsView::retranslate()
{
    if (body)
        setWindowTitle(tr("Camera for %1").arg(body->name()));
}

void CameraGraphicsView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QGraphicsView::changeEvent(event);
}

void CameraGraphicsView::paintEvent(QPaintEvent* event)
{
    if (body && body->isActive())
        centerOn(body->graphicsItem());
    else
        close();
    QGraphicsView::paintEvent(event);
}
