#pragma once

#include "ValuePrototype.h"

#include <QSizePolicy>

// Methods of QSizePolicy values in scripts. Policies are the numbers QSizePolicy.Fixed and so
// on; stretch factors are clamped to [0, 255] as QSizePolicy clamps them.
class SizePolicyPrototype : public ValuePrototype
{
    Q_OBJECT

public:
    using Value = QSizePolicy;
    static constexpr const char* forms = "(horizontalPolicy, verticalPolicy)";

    using ValuePrototype::ValuePrototype;

    static bool fromArguments(QScriptContext* context, QSizePolicy* sizePolicy);

public slots:
    int horizontalPolicy() const;
    int verticalPolicy() const;
    void setHorizontalPolicy(const QScriptValue& policy);
    void setVerticalPolicy(const QScriptValue& policy);
    int horizontalStretch() const;
    int verticalStretch() const;
    void setHorizontalStretch(int stretch);
    void setVerticalStretch(int stretch);
    QString toString() const;
};
