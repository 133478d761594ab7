#include "Physics/PolygonItem.h"

#include "General/XPolygonF.h"
#include "NemuGeometry/Geometry.h"
#include "Physics/Box2DLimits.h"

#include <QGraphicsPathItem>
#include <QPainterPath>

namespace {
// The outline as a body can take it: one with a point Box2D cannot take, which the factory
// refuses and only a direct construction can hand in, is taken as empty.
QPolygonF placeableOutline(const QPolygonF& polygon)
{
    return Box2DLimits::isPolygon(polygon) ? polygon : QPolygonF();
}

// Where the body of an outline stands: the centre of its bounding rectangle.
QPointF outlineCentre(const QPolygonF& polygon)
{
    return placeableOutline(polygon).boundingRect().center();
}

// A shape whose area is below this fraction of the square of its size is so thin that the
// rounding of Box2D's single-precision area can take it to zero, on which Box2D asserts.
const double minimumAreaPerSquaredSize = 1e-5;

// Box2D welds vertices closer than half its linear slop into one.
const float weldDistance = 0.5f * b2_linearSlop;

} // namespace

PolygonItem::PolygonItem(const QPolygonF& polygon)
    : BodyItem(outlineCentre(polygon).x(), outlineCentre(polygon).y(), 0.0)
{
    pathItem = new QGraphicsPathItem();
    pGraphicsItem = pathItem;
    wireframe = new QGraphicsPathItem(pathItem);
    const QPointF centre = outlineCentre(polygon);
    initialiseGraphics(centre.x(), centre.y(), 0.0);
    wireframe->setVisible(false);
    setPolygon(polygon);
}

QString PolygonItem::geometryString() const
{
    return Nemu::Geometry::polygonToString(pathItem->path().toFillPolygon());
}

void PolygonItem::setPolygon(const QPolygonF& polygon)
{
    const QPolygonF placeable = placeableOutline(polygon);
    const XPolygonF outline(placeable.translated(-placeable.boundingRect().center()));
    QList<QPolygonF> triangles;
    for (const XPolygonF& triangle : outline.triangulate())
        triangles.append(triangle);
    setTriangleFixtures(triangles);

    // Drawn by the even-odd rule as it was triangulated, without the bridges to cut-in holes.
    // Simplifying an outline that crosses itself all over would take longer than everything
    // else together.
    QPainterPath path;
    for (const QPolygonF& ring : outline.boundary()) {
        path.addPolygon(ring);
        path.closeSubpath();
    }
    pathItem->setPath(path);

    QPainterPath triangleOutlines;
    for (const QPolygonF& triangle : qAsConst(triangles)) {
        triangleOutlines.addPolygon(triangle);
        triangleOutlines.closeSubpath();
    }
    wireframe->setPath(triangleOutlines);
}

void PolygonItem::setGeometryString(QString geometry)
{
    if (geometry == geometryString())
        return;
    bool ok = false;
    const QPolygonF polygon
        = Nemu::Geometry::polygonFromString(geometry, &ok).translated(position());
    if (ok && Box2DLimits::isPolygon(polygon))
        setPolygon(polygon);
}

void PolygonItem::setShowWireframe(bool show)
{
    wireframeShown = show;
    wireframe->setVisible(show);
}

QPolygonF PolygonItem::worldPolygon() const
{
    const QPolygonF outline = pathItem->path().toFillPolygon();
    if (outline.size() < 3)
        return QPolygonF();
    return XPolygonF(itemTransform().map(outline));
}

QPolygonF PolygonItem::snapPoints() const
{
    const b2Vec2 centre = body()->GetLocalCenter();
    QPolygonF outline = pathItem->path().toFillPolygon();
    if (outline.isClosed())
        outline.removeLast();
    return QPolygonF() << QPointF(centre.x, centre.y) << outline;
}

QString PolygonItem::debugInfo() const
{
    QString text = BodyItem::debugInfo() + QStringLiteral("\nvar polygon = new QPolygonF();");
    for (const QPointF& point : worldPolygon())
        text += QStringLiteral("polygon.append(new QPointF(%1, %2));\n")
                    .arg(point.x(), 0, 'g')
                    .arg(point.y(), 0, 'g');
    return text;
}

void PolygonItem::scale(double factor)
{
    // A factor of 0 would leave a transform that cannot be undone by scaling again.
    if (!(factor > 0.0) || !Box2DLimits::isMagnitude(factor))
        return;
    const QTransform previous = pGraphicsItem->transform();
    pGraphicsItem->setTransform(QTransform::fromScale(factor, factor), true);
    const QPolygonF scaled = worldPolygon();
    if (!Box2DLimits::isPolygon(scaled)) {
        pGraphicsItem->setTransform(previous);
        return;
    }

    const QList<XPolygonF> worldTriangles = XPolygonF(scaled).triangulate();

    // Back to body coordinates through the body's own pose, without the drawing's scale.
    const b2Transform& pose = body()->GetTransform();
    const QTransform worldToBody
        = QTransform().translate(pose.p.x, pose.p.y).rotateRadians(pose.q.GetAngle()).inverted();
    QList<QPolygonF> triangles;
    for (const XPolygonF& triangle : qAsConst(worldTriangles))
        triangles.append(worldToBody.map(triangle));
    setTriangleFixtures(triangles);
}

void PolygonItem::setTriangleFixtures(const QList<QPolygonF>& triangles)
{
    QList<b2Shape*> shapes;
    for (const QPolygonF& triangle : triangles) {
        // Slivers that the triangulation lets through but Box2D would assert on are left out.
        if (b2PolygonShape* shape = polygonShape(triangle))
            shapes.append(shape);
    }
    setShapes(shapes);
}

b2PolygonShape* PolygonItem::polygonShape(const QPolygonF& vertices)
{
    const int count = vertices.size();
    if (count < 3 || count > b2_maxPolygonVertices)
        return nullptr;
    b2Vec2 points[b2_maxPolygonVertices];
    for (int i = 0; i < count; ++i) {
        points[i].Set(float(vertices[i].x()), float(vertices[i].y()));
        if (!points[i].IsValid())
            return nullptr;
    }
    // Area and size from the float vertices, as Box2D sees them, in double precision.
    double area = 0.0;
    double size = 0.0;
    for (int i = 0; i < count; ++i) {
        for (int j = i + 1; j < count; ++j) {
            if (b2DistanceSquared(points[i], points[j]) < weldDistance * weldDistance)
                return nullptr;
            size = qMax(size, double(b2Distance(points[i], points[j])));
        }
        const b2Vec2& next = points[(i + 1) % count];
        area += 0.5 * (double(points[i].x) * next.y - double(next.x) * points[i].y);
    }
    if (qAbs(area) <= b2_epsilon + minimumAreaPerSquaredSize * size * size)
        return nullptr;
    auto* shape = new b2PolygonShape();
    shape->Set(points, count);
    return shape;
}
