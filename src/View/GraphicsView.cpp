#include "View/GraphicsView.h"

#include "Application/Application.h"
#include "Application/Settings.h"
#include "Gui/MainWindow.h"
#include "Physics/BodyItem.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/RevoluteJoint.h"
#include "Physics/SpringForce.h"
#include "Tools/GraphicsViewAction.h"
#include "View/GraphicsScene.h"
#include "View/GridGraphicsItem.h"
#include "View/SnapPointGraphicsItem.h"
#include "View/StatusBar.h"

#include <QGLWidget>
#include <QMouseEvent>
#include <QTimerEvent>
#include <QWheelEvent>
#include <cmath>

namespace {
const double minimumScale = 1.0; // pixels per metre
const double maximumScale = 1024.0;
const double zoomStep = 0.2; // a fifth of a doubling per wheel notch
const double gridHalfSize = 200.0; // metres
const int frameCountInterval = 1000; // milliseconds
// A wheel notch of 120 eighths of a degree resizes by this factor or turns by 4 degrees.
const double wheelScaleFactor = 1.1;
const double wheelDeltaPerDegree = 30.0;
const double wheelDeltaPerMotorSpeed = 480.0;
const double wheelDeltaPerMetre = 240.0;

// White, with a texture matrix of 20 texture pixels per metre, y turned over.
QBrush defaultBackground()
{
    QBrush brush(Qt::white, Qt::SolidPattern);
    brush.setTransform(QTransform(0.05, 0, 0, -0.05, 0, 0));
    return brush;
}

// The turn of the wheel in eighths of a degree, along the axis it turned most.
int wheelDelta(const QWheelEvent* event)
{
    const QPoint angle = event->angleDelta();
    return qAbs(angle.x()) > qAbs(angle.y()) ? angle.x() : angle.y();
}

// A round length in metres for the scale bar, some 50 to 250 pixels long.
double scaleBarLength(double pixelsPerMetre)
{
    struct Step
    {
        double above;
        double metres;
    };
    static const Step steps[]
        = {{500, 0.2}, {200, 0.5}, {100, 1}, {50, 2}, {20, 5}, {10, 10}, {4, 20}, {2, 50}};
    for (const Step& step : steps) {
        if (pixelsPerMetre > step.above)
            return step.metres;
    }
    return 100.0;
}

// A rectangle that fitInView can show: finite, not turned over, not empty.
bool isFittable(const QRectF& rect)
{
    return std::isfinite(rect.x()) && std::isfinite(rect.y()) && std::isfinite(rect.width())
        && std::isfinite(rect.height()) && rect.width() >= 0.0 && rect.height() >= 0.0
        && !rect.isNull();
}
} // namespace

GraphicsView::GraphicsView(QWidget* parent)
    : QGraphicsView(parent)
{
    chooseViewport();
    setRenderHint(QPainter::Antialiasing, Settings::instance()->antialiasing);
    setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
    setRenderHint(QPainter::SmoothPixmapTransform, true);
    setTransformationAnchor(QGraphicsView::AnchorUnderMouse);
    setResizeAnchor(QGraphicsView::AnchorUnderMouse);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    GraphicsScene* graphicsScene = PhysicsWorld::instance()->graphicsScene();
    setScene(graphicsScene);
    setScale(initialScale);
    setBackground(defaultBackground());

    grid = new GridGraphicsItem();
    grid->hide();
    graphicsScene->addItem(grid);
    updateGrid();
    snapMarker = new SnapPointGraphicsItem();
    snapMarker->hide();
    graphicsScene->addItem(snapMarker);
    // The scene deletes both items with itself, and the world deletes the scene before the
    // main window deletes this view.
    connect(graphicsScene, &QObject::destroyed, this, [this] {
        grid = nullptr;
        snapMarker = nullptr;
    });

    frameTimer.start(frameCountInterval, this);
}

void GraphicsView::chooseViewport()
{
    if (!Settings::instance()->useOpenGL)
        return;
    if (QWidget* glViewport = openGLViewport()) {
        setViewport(glViewport);
        return;
    }
    if (!Application::canCreateOpenGLContext())
        Application::report(tr("OpenGL is not available here; the view draws without it."),
                            Brivane::Warning);
}

QWidget* GraphicsView::openGLViewport()
{
    if (!Application::canCreateOpenGLContext())
        return nullptr;
    const QString renderer = Application::openGLRenderer();
    if (Application::isSoftwareRenderer(renderer)) {
        static bool reported = false;
        if (!reported)
            Application::report(tr("OpenGL draws in software here (%1); the view draws without "
                                   "it, which is faster.")
                                    .arg(renderer),
                                Brivane::Info);
        reported = true;
        return nullptr;
    }
    auto* glWidget = new QGLWidget(QGLFormat(QGL::SampleBuffers));
    if (glWidget->isValid())
        return glWidget;
    delete glWidget;
    return nullptr;
}

QString GraphicsView::bodyWithCamera() const
{
    return cameraBody ? cameraBody->name() : QString();
}

double GraphicsView::scale() const
{
    return transform().m11();
}

QRectF GraphicsView::visibleSceneRect() const
{
    return mapToScene(viewport()->rect()).boundingRect();
}

void GraphicsView::setBodyWithCamera(BodyItem* pBodyItem)
{
    cameraBody = pBodyItem;
    if (cameraBody)
        centerOn(cameraBody->graphicsItem());
}

void GraphicsView::reset()
{
    setBackground(defaultBackground());
    cameraBody = nullptr;
    zoomExtents();
}

void GraphicsView::updateGrid()
{
    if (grid)
        grid->rebuild(gridHalfSize, Settings::instance()->gridSize);
}

QImage GraphicsView::image() const
{
    QImage result(viewport()->size(), QImage::Format_RGB32);
    result.fill(backgroundBrush().color());
    QPainter painter(&result);
    painter.setRenderHints(renderHints());
    const_cast<GraphicsView*>(this)->render(&painter, QRectF(), QRect(), Qt::KeepAspectRatio);
    return result;
}

QImage GraphicsView::image(const QSize& size) const
{
    const QImage scaled
        = image().scaled(size, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    return scaled.copy((scaled.width() - size.width()) / 2, (scaled.height() - size.height()) / 2,
                       size.width(), size.height());
}

void GraphicsView::setBackground(QBrush background)
{
    // QBrush equality includes the transform, so a moved texture counts as a change.
    if (background == backgroundBrush())
        return;
    setBackgroundBrush(background);
    emit backgroundChanged(background);
}

void GraphicsView::setBodyWithCamera(QString bodyItemName)
{
    PhysicsItem* item = PhysicsWorld::instance()->physicsItemFromName(bodyItemName);
    BodyItem* body = item ? item->toBodyItem() : nullptr;
    // Naming the followed body again switches the camera off, as an unknown name does.
    if (body && body != cameraBody) {
        setBodyWithCamera(body);
        emit bodyWithCameraChanged(bodyItemName);
        return;
    }
    cameraBody = nullptr;
    emit bodyWithCameraChanged(QString());
}

void GraphicsView::setScale(double scale)
{
    if (std::isnan(scale))
        return;
    scale = qBound(minimumScale, scale, maximumScale);
    if (scale == this->scale())
        return;
    setTransform(QTransform::fromScale(scale, -scale));
    emit scaleChanged(scale);
}

void GraphicsView::setVisibleSceneRect(QRectF visibleSceneRect)
{
    if (!isFittable(visibleSceneRect))
        return;
    const QRectF current = this->visibleSceneRect();
    if (qFuzzyCompare(visibleSceneRect.x(), current.x())
        && qFuzzyCompare(visibleSceneRect.y(), current.y())
        && qFuzzyCompare(visibleSceneRect.width(), current.width())
        && qFuzzyCompare(visibleSceneRect.height(), current.height()))
        return;
    fitInView(visibleSceneRect, Qt::KeepAspectRatio);
}

void GraphicsView::zoomExtents()
{
    QRectF rect = PhysicsWorld::instance()->itemsBoundingRect();
    if (rect.width() == 0.0 && rect.height() == 0.0)
        rect = QRectF(-10, -8, 20, 16);
    // Unlike setScale, the fit is not held to the scale limits: a scene larger than the view
    // at 1 pixel per metre is still shown whole.
    if (isFittable(rect))
        fitInView(rect, Qt::KeepAspectRatio);
    emit scaleChanged(scale());
}

void GraphicsView::zoomIn()
{
    zoomBy(zoomStep);
}

void GraphicsView::zoomOut()
{
    zoomBy(-zoomStep);
}

void GraphicsView::zoomBy(double exponent)
{
    setScale(std::pow(2.0, std::log2(scale()) + exponent));
}

void GraphicsView::timerEvent(QTimerEvent* event)
{
    QGraphicsView::timerEvent(event);
    if (event->timerId() != frameTimer.timerId())
        return;
    lastFramesPerSecond = paintCount;
    if (StatusBar* bar = mainStatusBar())
        bar->setFramesPerSecond(paintCount);
    paintCount = 0;
}

StatusBar* GraphicsView::mainStatusBar() const
{
    // Only once start-up has finished: before that the window is still being built.
    Application* application = Application::instance();
    if (!application || !application->initialised || !application->mainWindow)
        return nullptr;
    return qobject_cast<StatusBar*>(application->mainWindow->statusBar());
}

void GraphicsView::mousePressEvent(QMouseEvent* event)
{
    QGraphicsView::mousePressEvent(event);
    if (event->button() == Qt::RightButton || event->button() == Qt::MiddleButton) {
        // The view pans by hand only with the left button, so the pan starts with a left
        // press of its own. The tool still gets the press as it came.
        setDragMode(QGraphicsView::ScrollHandDrag);
        QMouseEvent leftPress(event->type(), event->pos(), event->windowPos(), event->screenPos(),
                              Qt::LeftButton, Qt::LeftButton, event->modifiers());
        QGraphicsView::mousePressEvent(&leftPress);
    }
    if (currentAction)
        currentAction->mousePressEvent(event);
}

void GraphicsView::passMousePressEvent(QMouseEvent* event)
{
    QGraphicsView::mousePressEvent(event);
}

void GraphicsView::mouseReleaseEvent(QMouseEvent* event)
{
    QGraphicsView::mouseReleaseEvent(event);
    if (event->button() == Qt::RightButton || event->button() == Qt::MiddleButton)
        setDragMode(QGraphicsView::NoDrag);
    if (currentAction)
        currentAction->mouseReleaseEvent(event);
}

void GraphicsView::mouseMoveEvent(QMouseEvent* event)
{
    QGraphicsView::mouseMoveEvent(event);
    // A tool that snaps shows the marker again while it maps the new position.
    if (snapMarker)
        snapMarker->hide();
    if (currentAction)
        currentAction->mouseMoveEvent(event);
    if (StatusBar* bar = mainStatusBar())
        bar->setScenePosition(mapToScene(event->pos()));
}

void GraphicsView::wheelEvent(QWheelEvent* event)
{
    if (currentAction)
        currentAction->wheelEvent(event);
    const int delta = wheelDelta(event);
    const Qt::KeyboardModifiers modifiers = event->modifiers();
    if (modifiers == Qt::NoModifier) {
        if (delta > 0)
            zoomIn();
        else
            zoomOut();
    } else if (modifiers == Qt::ControlModifier) {
        adjustSelectedItems(delta);
    } else if (modifiers == Qt::ShiftModifier) {
        rotateSelectedBodies(delta);
    }
}

void GraphicsView::adjustSelectedItems(int delta)
{
    const double factor = delta > 0 ? wheelScaleFactor : 1.0 / wheelScaleFactor;
    for (PhysicsItem* item : PhysicsItemList(static_cast<GraphicsScene*>(scene()))) {
        if (BodyItem* body = item->toBodyItem()) {
            body->scale(factor);
        } else if (item->type() == PhysicsItem::RevoluteJointType) {
            // A notch of 120 adds a quarter of a radian per second to the motor.
            auto* joint = static_cast<RevoluteJoint*>(item);
            joint->setMotorSpeed(delta / wheelDeltaPerMotorSpeed + joint->motorSpeed());
            joint->setMotorEnabled(joint->motorSpeed() != 0.0);
        } else if (item->type() == PhysicsItem::SpringForceType) {
            // A notch of 120 lengthens the spring by half a metre.
            auto* spring = static_cast<SpringForce*>(item);
            spring->setDesiredDistance(delta / wheelDeltaPerMetre + spring->desiredDistance());
        }
    }
}

void GraphicsView::rotateSelectedBodies(int delta)
{
    for (BodyItem* body : selectedBodies()) {
        const double degrees = body->angle() + delta / wheelDeltaPerDegree;
        body->setXForm(body->positionX(), body->positionY(), BodyItem::degreesToRadians(degrees));
    }
}

QList<BodyItem*> GraphicsView::selectedBodies() const
{
    return PhysicsItemList(static_cast<GraphicsScene*>(scene())).bodyItems();
}

void GraphicsView::keyPressEvent(QKeyEvent* event)
{
    // The base class is left out on purpose: arrow keys belong to scripts, not to scrolling.
    if (currentAction)
        currentAction->keyPressEvent(event);
    runKeyScripts(&PhysicsItem::runOnKeyPress, event);
}

void GraphicsView::keyReleaseEvent(QKeyEvent* event)
{
    QGraphicsView::keyReleaseEvent(event);
    runKeyScripts(&PhysicsItem::runOnKeyRelease, event);
}

void GraphicsView::runKeyScripts(void (PhysicsItem::*run)(QKeyEvent*), QKeyEvent* event)
{
    // A script may remove items, its own included, and the world deletes them at once outside
    // its own loops. The guarded copy catches deleted items; contains() catches those that the
    // world has taken out but not yet deleted.
    PhysicsWorld* world = PhysicsWorld::instance();
    QList<QPointer<PhysicsItem>> items;
    for (PhysicsItem* item : world->items())
        items.append(item);
    for (const QPointer<PhysicsItem>& item : qAsConst(items)) {
        if (item && world->contains(item))
            (item->*run)(event);
    }
}

void GraphicsView::paintEvent(QPaintEvent* event)
{
    // The camera follows its body at paint rate, not at step rate.
    if (cameraBody)
        centerOn(cameraBody->graphicsItem());
    QGraphicsView::paintEvent(event);
    ++paintCount;
}

void GraphicsView::drawForeground(QPainter* painter, const QRectF& rect)
{
    QGraphicsView::drawForeground(painter, rect);
    if (!Settings::instance()->showScaleIndicator)
        return;
    // All lengths in metres; divided by the scale they are pixels on the screen.
    const double s = scale();
    const double length = scaleBarLength(s);
    const double margin = 8.0 / s;
    const QLineF tick(margin, margin + 4.0 / s, margin, margin - 4.0 / s);
    painter->save();
    painter->setPen(QPen(QBrush(Qt::black), 2.0 / s, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    // The corner of lowest scene coordinates is the bottom left of the view.
    painter->translate(rect.x(), rect.y());
    painter->drawLine(QLineF(margin, margin, length + margin, margin));
    painter->drawLine(tick);
    painter->translate(length, 0.0);
    painter->drawLine(tick);
    // Text is drawn in pixels and upright.
    painter->translate(12.0 / s - length, 12.0 / s);
    painter->scale(1.0 / s, -1.0 / s);
    painter->drawText(QPointF(0.0, 0.0), tr("%1 m").arg(length, 0, 'g', -1));
    painter->restore();
}
