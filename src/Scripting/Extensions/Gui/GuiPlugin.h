#pragma once

#include "ExtensionPlugin.h"

// The extension "qt.gui": the paint value types QColor, QBrush (with the brush styles as
// constants, QBrush.SolidPattern) and QFont.
class GuiPlugin : public ExtensionPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QScriptExtensionInterface_iid)

public:
    GuiPlugin();

protected:
    void install(QScriptEngine* engine) override;
};
