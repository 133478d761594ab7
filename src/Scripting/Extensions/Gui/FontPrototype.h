#pragma once

#include "ValuePrototype.h"

#include <QFont>

// Methods of QFont values in scripts: family, point size, bold and italic.
class FontPrototype : public ValuePrototype
{
    Q_OBJECT

public:
    using Value = QFont;
    static constexpr const char* forms = "(family), (family, pointSize)";

    using ValuePrototype::ValuePrototype;

    static bool fromArguments(QScriptContext* context, QFont* font);

public slots:
    QString family() const;
    void setFamily(const QString& family);
    int pointSize() const;
    // A size below 1 is ignored, as QFont ignores it.
    void setPointSize(int pointSize);
    bool bold() const;
    void setBold(bool bold);
    bool italic() const;
    void setItalic(bool italic);
    QString toString() const;
};
