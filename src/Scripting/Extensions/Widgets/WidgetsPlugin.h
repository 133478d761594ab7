#pragma once

#include "ExtensionPlugin.h"

// The extension "qt.widgets": QSizePolicy, the one value type of the widget module, which the
// sizePolicy property of every widget that scripts reach (mainWindow, graphicsView) carries.
// Its policies are constants of the constructor, QSizePolicy.Expanding and so on.
class WidgetsPlugin : public ExtensionPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QScriptExtensionInterface_iid)

public:
    WidgetsPlugin();

protected:
    void install(QScriptEngine* engine) override;
};
