#pragma once

#include "ValuePrototype.h"

#include <QPointF>

// Methods of QPointF and QPoint values in scripts.
class PointPrototype : public ValuePrototype
{
    Q_OBJECT

public:
    using Value = QPointF;
    static constexpr const char* forms = "(x, y)";

    using ValuePrototype::ValuePrototype;

    static bool fromArguments(QScriptContext* context, QPointF* point);

public slots:
    qreal x() const;
    qreal y() const;
    void setX(qreal x);
    void setY(qreal y);
    bool isNull() const;
    qreal manhattanLength() const;
    QString toString() const;
};
