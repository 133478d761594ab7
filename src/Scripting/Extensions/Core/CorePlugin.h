#pragma once

#include "ExtensionPlugin.h"

// The extension "qt.core": the geometry value types QPointF, QPoint, QSizeF, QSize, QLineF,
// QLine, QRectF, QRect and QPolygonF, arrays for QList<QPolygonF>, and the object Qt with the
// key codes (Qt.Key_Up, Qt.Key_A, ...) for the scripts that items run on key events.
class CorePlugin : public ExtensionPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QScriptExtensionInterface_iid)

public:
    CorePlugin();

protected:
    void install(QScriptEngine* engine) override;
};
