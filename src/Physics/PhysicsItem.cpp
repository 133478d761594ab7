#include "Physics/PhysicsItem.h"

#include "Application/Application.h"
#include "Physics/BodyItem.h"
#include "Physics/ForceItem.h"
#include "Physics/JointItem.h"

#include <QAbstractGraphicsShapeItem>
#include <QKeyEvent>
#include <QScriptEngine>
#include <QScriptValueIterator>

int PhysicsItem::physicsItemInstanceCounter = 0;

namespace {
QScriptEngine* scriptEngine()
{
    Application* application = Application::instance();
    return application ? application->scriptEngine : nullptr;
}
} // namespace

PhysicsItem::PhysicsItem()
    : itemName(uniqueName())
{
}

PhysicsItem::~PhysicsItem()
{
    delete pGraphicsItem;
    pGraphicsItem = nullptr;
}

QString PhysicsItem::uniqueName() const
{
    QScriptEngine* engine = scriptEngine();
    QString candidate;
    do {
        ++physicsItemInstanceCounter;
        candidate = QStringLiteral("item%1").arg(physicsItemInstanceCounter);
    } while (engine && engine->globalObject().property(candidate).isValid());
    return candidate;
}

void PhysicsItem::update()
{
    runOnUpdate();
}

QPolygonF PhysicsItem::snapPoints() const
{
    return QPolygonF();
}

QString PhysicsItem::debugInfo() const
{
    return QStringLiteral("Debug Info for %1: ").arg(itemName);
}

double PhysicsItem::zValue() const
{
    return pGraphicsItem ? pGraphicsItem->zValue() : 0.0;
}

double PhysicsItem::opacity() const
{
    return pGraphicsItem ? pGraphicsItem->opacity() : 1.0;
}

void PhysicsItem::setName(QString newName)
{
    if (newName == itemName || newName.isEmpty())
        return;
    QScriptEngine* engine = scriptEngine();
    if (!engine) {
        itemName = newName;
        return;
    }
    QScriptValue global = engine->globalObject();
    // A name taken by anything on the global object, host functions included, is refused.
    QScriptValueIterator iterator(global);
    while (iterator.hasNext()) {
        iterator.next();
        if (iterator.name() == newName)
            return;
    }
    const QScriptValue value = global.property(itemName);
    global.setProperty(itemName, QScriptValue(), QScriptValue::KeepExistingFlags);
    global.setProperty(newName, value, QScriptValue::KeepExistingFlags);
    itemName = newName;
}

void PhysicsItem::setZValue(double zValue)
{
    if (pGraphicsItem)
        pGraphicsItem->setZValue(zValue);
}

void PhysicsItem::setOpacity(double opacity)
{
    if (pGraphicsItem)
        pGraphicsItem->setOpacity(opacity);
}

void PhysicsItem::setOnStart(QString script)
{
    setEventScript(onStartScript, "onStart", QString(), script);
}

void PhysicsItem::setOnStop(QString script)
{
    setEventScript(onStopScript, "onStop", QString(), script);
}

void PhysicsItem::setOnUpdate(QString script)
{
    setEventScript(onUpdateScript, "onUpdate", QString(), script);
}

void PhysicsItem::setOnKeyPress(QString script)
{
    setEventScript(onKeyPressScript, "onKeyPress", QStringLiteral("key"), script);
}

void PhysicsItem::setOnKeyRelease(QString script)
{
    setEventScript(onKeyReleaseScript, "onKeyRelease", QStringLiteral("key"), script);
}

void PhysicsItem::setEventScript(QString& field, const char* functionName, const QString& parameter,
                                 const QString& script)
{
    if (script == field)
        return;
    const QString definition = QStringLiteral("%1.%2 = function(%3) { %4 }")
                                   .arg(itemName, QLatin1String(functionName), parameter, script);
    if (QScriptEngine::checkSyntax(definition).state() != QScriptSyntaxCheckResult::Valid)
        return;
    QScriptEngine* engine = scriptEngine();
    if (!engine) {
        field = script;
        return;
    }
    // The Function constructor parses the body on its own and must yield exactly one function,
    // so a body that closes the definition early is a syntax error here, and nothing runs.
    QScriptValueList arguments;
    if (!parameter.isEmpty())
        arguments << parameter;
    arguments << script;
    Application* application = Application::instance();
    const QScriptValue function = application->scriptFunctionConstructor.construct(arguments);
    if (engine->hasUncaughtException() || !function.isFunction()) {
        engine->clearExceptions();
        return;
    }
    field = script;
    QScriptValue itemValue = engine->globalObject().property(itemName);
    if (itemValue.isObject())
        itemValue.setProperty(QLatin1String(functionName), function);
}

void PhysicsItem::runEventScript(const QString& field, const char* functionName,
                                 const QScriptValueList& arguments, bool evenIfInactive)
{
    if (!evenIfInactive && !isActive())
        return;
    if (field.isEmpty())
        return;
    QScriptEngine* engine = scriptEngine();
    if (!engine)
        return;
    const QScriptValue itemValue
        = engine->globalObject().property(itemName, QScriptValue::ResolvePrototype);
    QScriptValue function
        = itemValue.property(QLatin1String(functionName), QScriptValue::ResolvePrototype);
    // An error thrown by the script stays in the engine; the step goes on.
    function.call(itemValue, arguments);
}

void PhysicsItem::runOnStart()
{
    runEventScript(onStartScript, "onStart", QScriptValueList());
}

void PhysicsItem::runOnStop()
{
    runEventScript(onStopScript, "onStop", QScriptValueList());
}

void PhysicsItem::runOnUpdate()
{
    runEventScript(onUpdateScript, "onUpdate", QScriptValueList());
}

void PhysicsItem::runOnKeyPress(QKeyEvent* event)
{
    runEventScript(onKeyPressScript, "onKeyPress", QScriptValueList() << event->key());
}

void PhysicsItem::runOnKeyRelease(QKeyEvent* event)
{
    runEventScript(onKeyReleaseScript, "onKeyRelease", QScriptValueList() << event->key());
}

BodyItem* PhysicsItem::toBodyItem()
{
    switch (type()) {
    case RectangleItemType:
    case CircleItemType:
    case PolygonItemType:
    case BalloonItemType:
    case GearItemType:
        return static_cast<BodyItem*>(this);
    default:
        return nullptr;
    }
}

JointItem* PhysicsItem::toJointItem()
{
    // 11 belongs to no class today but counts among the joints.
    switch (type()) {
    case DistanceJointType:
    case RevoluteJointType:
    case PrismaticJointType:
    case PulleyJointType:
    case 11:
        return static_cast<JointItem*>(this);
    default:
        return nullptr;
    }
}

ForceItem* PhysicsItem::toForceItem()
{
    return type() == SpringForceType ? static_cast<ForceItem*>(this) : nullptr;
}

QScriptValue PhysicsItem::toScriptValue() const
{
    QScriptEngine* engine = scriptEngine();
    if (!engine)
        return QScriptValue();
    return engine->newQObject(const_cast<PhysicsItem*>(this), QScriptEngine::QtOwnership);
}

void PhysicsItem::setBrush(QBrush brush)
{
    // Joints draw with line items, which have no brush: for them this does nothing.
    auto* shape = dynamic_cast<QAbstractGraphicsShapeItem*>(pGraphicsItem);
    if (shape && shape->brush() != brush)
        shape->setBrush(brush);
}

QBrush PhysicsItem::brush() const
{
    if (auto* shape = dynamic_cast<QAbstractGraphicsShapeItem*>(pGraphicsItem))
        return shape->brush();
    return QBrush();
}

XPropertyList PhysicsItem::properties()
{
    return XPropertyList::read(this);
}

void PhysicsItem::getProperties(XPropertyList& list)
{
    list = XPropertyList::read(this);
}

void PhysicsItem::setProperties(XPropertyList list)
{
    XPropertyList::write(this, list);
}
