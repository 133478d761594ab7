#include "GuiPlugin.h"

#include "BrushPrototype.h"
#include "ColorPrototype.h"
#include "FontPrototype.h"

GuiPlugin::GuiPlugin()
    : ExtensionPlugin(QStringLiteral("qt.gui"))
{
}

void GuiPlugin::install(QScriptEngine* engine)
{
    ValueTypes::install<QColor, ColorPrototype>(engine);
    ValueTypes::addEnum(ValueTypes::install<QBrush, BrushPrototype>(engine),
                        QMetaEnum::fromType<Qt::BrushStyle>());
    ValueTypes::install<QFont, FontPrototype>(engine);
}
