#include "WidgetsPlugin.h"

#include "SizePolicyPrototype.h"

WidgetsPlugin::WidgetsPlugin()
    : ExtensionPlugin(QStringLiteral("qt.widgets"))
{
}

void WidgetsPlugin::install(QScriptEngine* engine)
{
    ValueTypes::addEnum(ValueTypes::install<QSizePolicy, SizePolicyPrototype>(engine),
                        QMetaEnum::fromType<QSizePolicy::Policy>());
}
