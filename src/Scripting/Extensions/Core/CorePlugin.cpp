#include "CorePlugin.h"

#include "LinePrototype.h"
#include "PointPrototype.h"
#include "PolygonPrototype.h"
#include "RectPrototype.h"
#include "SizePrototype.h"

CorePlugin::CorePlugin()
    : ExtensionPlugin(QStringLiteral("qt.core"))
{
}

void CorePlugin::install(QScriptEngine* engine)
{
    ValueTypes::install<QPointF, PointPrototype>(engine);
    ValueTypes::install<QPoint, PointPrototype>(engine);
    ValueTypes::install<QSizeF, SizePrototype>(engine);
    ValueTypes::install<QSize, SizePrototype>(engine);
    ValueTypes::install<QLineF, LinePrototype>(engine);
    ValueTypes::install<QLine, LinePrototype>(engine);
    ValueTypes::install<QRectF, RectPrototype>(engine);
    ValueTypes::install<QRect, RectPrototype>(engine);
    ValueTypes::install<QPolygonF, PolygonPrototype>(engine);
    // Bodies hand out their triangles and gears their teeth as lists of polygons.
    qScriptRegisterSequenceMetaType<QList<QPolygonF>>(engine);

    // Key scripts receive the Qt::Key code of the event.
    QScriptValue qt = engine->newObject();
    ValueTypes::addEnum(qt, QMetaEnum::fromType<Qt::Key>());
    engine->globalObject().setProperty(QStringLiteral("Qt"), qt);
}
