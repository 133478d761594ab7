#pragma once

#include "ValuePrototype.h"

#include <QSizeF>

// Methods of QSizeF and QSize values in scripts.
class SizePrototype : public ValuePrototype
{
    Q_OBJECT

public:
    using Value = QSizeF;
    static constexpr const char* forms = "(width, height)";

    using ValuePrototype::ValuePrototype;

    static bool fromArguments(QScriptContext* context, QSizeF* size);

public slots:
    qreal width() const;
    qreal height() const;
    void setWidth(qreal width);
    void setHeight(qreal height);
    bool isEmpty() const;
    QString toString() const;
};
