#pragma once

#include "ValuePrototype.h"

#include <QBrush>

// Methods of QBrush values in scripts. A colour or a colour name stands for a solid brush,
// both in the constructor and where a slot takes a QBrush. Styles are the numbers
// QBrush.SolidPattern and so on; gradients and textures cannot be made from scripts.
class BrushPrototype : public ValuePrototype
{
    Q_OBJECT

public:
    using Value = QBrush;
    static constexpr const char* forms = "(color), (color, style)";

    using ValuePrototype::ValuePrototype;

    static bool fromLiteral(const QScriptValue& value, QBrush* brush);
    static bool fromArguments(QScriptContext* context, QBrush* brush);

public slots:
    QColor color() const;
    void setColor(const QScriptValue& color);
    int style() const;
    void setStyle(const QScriptValue& style);
    bool isOpaque() const;
    QString toString() const;
};
