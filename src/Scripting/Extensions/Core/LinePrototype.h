#pragma once

#include "ValuePrototype.h"

#include <QLineF>

// Methods of QLineF and QLine values in scripts. The program's slots also use a line as a
// vector at a point, from p1 to p2.
class LinePrototype : public ValuePrototype
{
    Q_OBJECT

public:
    using Value = QLineF;
    static constexpr const char* forms = "(x1, y1, x2, y2), (p1, p2)";

    using ValuePrototype::ValuePrototype;

    static bool fromArguments(QScriptContext* context, QLineF* line);

public slots:
    QPointF p1() const;
    QPointF p2() const;
    void setP1(const QScriptValue& point);
    void setP2(const QScriptValue& point);
    qreal x1() const;
    qreal y1() const;
    qreal x2() const;
    qreal y2() const;
    qreal dx() const;
    qreal dy() const;
    qreal length() const;
    qreal angle() const;
    QPointF pointAt(qreal t) const;
    QString toString() const;
};
