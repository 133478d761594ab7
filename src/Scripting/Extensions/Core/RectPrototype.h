#pragma once

#include "ValuePrototype.h"

#include <QRectF>

// Methods of QRectF and QRect values in scripts. Results are computed in floating point also
// for a QRect, so right() is x() + width(), not one less as QRect::right() gives.
class RectPrototype : public ValuePrototype
{
    Q_OBJECT

public:
    using Value = QRectF;
    static constexpr const char* forms = "(x, y, width, height), (topLeft, size), "
                                         "(topLeft, bottomRight)";

    using ValuePrototype::ValuePrototype;

    static bool fromArguments(QScriptContext* context, QRectF* rect);

public slots:
    qreal x() const;
    qreal y() const;
    qreal width() const;
    qreal height() const;
    qreal right() const;
    qreal bottom() const;
    QPointF center() const;
    QPointF topLeft() const;
    QPointF bottomRight() const;
    QSizeF size() const;
    bool isEmpty() const;
    bool contains(const QScriptValue& point) const;
    void setWidth(qreal width);
    void setHeight(qreal height);
    void moveTo(qreal x, qreal y);
    void moveCenter(const QScriptValue& point);
    QString toString() const;
};
