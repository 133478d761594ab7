#include "ExtensionPlugin.h"

namespace {
const QString parentKey = QStringLiteral("qt");
}

ExtensionPlugin::ExtensionPlugin(const QString& extensionKey)
    : extensionKey(extensionKey)
{
}

QStringList ExtensionPlugin::keys() const
{
    return {parentKey, extensionKey};
}

void ExtensionPlugin::initialize(const QString& key, QScriptEngine* engine)
{
    if (key == extensionKey)
        install(engine);
}
