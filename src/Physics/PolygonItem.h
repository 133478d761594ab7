#pragma once

#include "Physics/BodyItem.h"

#include <QList>
#include <QPolygonF>

class QGraphicsPathItem;

// A body of any outline. Box2D takes only small convex shapes, so the outline is held as one
// triangle fixture for each triangle of its triangulation; the fixtures are derived from the
// outline and rebuilt whenever it changes. The graphics item is a path of the outline in body
// coordinates, with a path of the triangles as a child that shows them as a wireframe.
class PolygonItem : public BodyItem
{
    Q_OBJECT
    Q_CLASSINFO("PolygonItem", "Polygon")
    Q_PROPERTY(bool ShowWireframe READ showWireframe WRITE setShowWireframe USER true)
    Q_PROPERTY(QString GeometryString READ geometryString WRITE setGeometryString USER true)

public:
    // The outline in world coordinates; the body stands at the centre of its bounding
    // rectangle, unrotated.
    explicit PolygonItem(const QPolygonF& polygon);

    int type() const override { return PolygonItemType; }
    QPolygonF snapPoints() const override;
    // Appends a script that rebuilds the outline in world coordinates.
    QString debugInfo() const override;
    QPolygonF worldPolygon() const override;
    // Scales the drawing by a transform and rebuilds the fixtures from the scaled outline; the
    // outline itself, and so GeometryString, stays as it was.
    void scale(double factor) override;

    bool showWireframe() const { return wireframeShown; }
    QString geometryString() const;

    // Replaces the outline, given in world coordinates of an unrotated body. It is centred on
    // the body, which does not move.
    void setPolygon(const QPolygonF& polygon);

    // A Box2D polygon of the vertices, which must be in body coordinates, or null where Box2D
    // would assert on them: fewer than 3 or more than 8 vertices, a coordinate that is no
    // finite float, two vertices that Box2D would weld, or an area too small or too thin for
    // single precision.
    static b2PolygonShape* polygonShape(const QPolygonF& vertices);

public slots:
    void setShowWireframe(bool show);
    void setGeometryString(QString geometry);

private:
    // Replaces all fixtures with one for each triangle, in body coordinates.
    void setTriangleFixtures(const QList<QPolygonF>& triangles);

    QGraphicsPathItem* pathItem;
    // One path of all triangles: outlines of thousands of triangles are common, and as many
    // graphics items would cost far more to make, to draw and to remove.
    QGraphicsPathItem* wireframe;
    bool wireframeShown = false;
};
Q_DECLARE_METATYPE(PolygonItem*)
