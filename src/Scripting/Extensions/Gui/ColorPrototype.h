#pragma once

#include "ValuePrototype.h"

#include <QColor>

// Methods of QColor values in scripts. A colour name ("red", "#ff0000") stands for a colour,
// both in the constructor and where a slot takes a QColor.
class ColorPrototype : public ValuePrototype
{
    Q_OBJECT

public:
    using Value = QColor;
    static constexpr const char* forms = "(name), (red, green, blue), (red, green, blue, alpha) "
                                         "with components from 0 to 255";

    using ValuePrototype::ValuePrototype;

    static bool fromLiteral(const QScriptValue& value, QColor* color);
    static bool fromArguments(QScriptContext* context, QColor* color);
    // "#rrggbb", or "#aarrggbb" for a colour that is not opaque.
    static QString nameOf(const QColor& color);

public slots:
    int red() const;
    int green() const;
    int blue() const;
    int alpha() const;
    // The setters clamp to [0, 255].
    void setRed(int red);
    void setGreen(int green);
    void setBlue(int blue);
    void setAlpha(int alpha);
    QString name() const;
    bool isValid() const;
    QColor lighter(int factor = 150) const;
    QColor darker(int factor = 200) const;
    QString toString() const;
};
