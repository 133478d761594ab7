#pragma once

#include "ValuePrototype.h"

#include <QPolygonF>

// Methods of QPolygonF values in scripts. An array of points stands for a polygon, both in the
// constructor and where a slot takes a QPolygonF.
class PolygonPrototype : public ValuePrototype
{
    Q_OBJECT

public:
    using Value = QPolygonF;
    static constexpr const char* forms = "(array of points)";

    using ValuePrototype::ValuePrototype;

    static bool fromLiteral(const QScriptValue& value, QPolygonF* polygon);

public slots:
    void append(const QScriptValue& point);
    int size() const;
    QPointF at(int index) const;
    bool isEmpty() const;
    void clear();
    QRectF boundingRect() const;
    bool containsPoint(const QScriptValue& point) const;
    QString toString() const;
};
