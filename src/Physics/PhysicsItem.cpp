#include "Physics/PhysicsItem.h"

#include "Application/Application.h"
#include "Physics/BodyItem.h"
#include "Physics/ForceItem.h"
#include "Physics/JointItem.h"
#include "Physics/PhysicsWorld.h"
#include "Scripting/ScriptRunner.h"

#include <QAbstractGraphicsShapeItem>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QScriptEngine>
#include <climits>
#include <cmath>

int PhysicsItem::physicsItemInstanceCounter = 0;
int PhysicsItem::eventScriptBlockers = 0;

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
        // The counter starts again at 1 rather than overflow.
        physicsItemInstanceCounter
            = physicsItemInstanceCounter < INT_MAX ? physicsItemInstanceCounter + 1 : 1;
        candidate = QStringLiteral("item%1").arg(physicsItemInstanceCounter);
    } while ((engine && engine->globalObject().property(candidate).isValid())
             || PhysicsWorld::instance()->physicsItemFromName(candidate));
    return candidate;
}

bool PhysicsItem::isFreeName(const QString& name)
{
    // An identifier that the engine reads as one, which rules out its reserved words.
    static const QRegularExpression identifier(
        QStringLiteral("^[\\p{L}\\p{Nl}_$][\\p{L}\\p{Nl}\\p{Mn}\\p{Mc}\\p{Nd}\\p{Pc}_$]*$"));
    if (!identifier.match(name).hasMatch()
        || QScriptEngine::checkSyntax(QStringLiteral("var %1;").arg(name)).state()
            != QScriptSyntaxCheckResult::Valid)
        return false;
    // Not held by another item, even one whose global a script has deleted; nor by anything
    // the global object has or inherits, such as `print` or `__proto__`.
    if (PhysicsWorld::instance()->physicsItemFromName(name))
        return false;
    QScriptEngine* engine = scriptEngine();
    return !engine || !engine->globalObject().property(name).isValid();
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
    if (newName == itemName || !isFreeName(newName))
        return;
    if (QScriptEngine* engine = scriptEngine()) {
        QScriptValue global = engine->globalObject();
        const QScriptValue value = global.property(itemName);
        global.setProperty(itemName, QScriptValue(), QScriptValue::KeepExistingFlags);
        global.setProperty(newName, value, QScriptValue::KeepExistingFlags);
    }
    const QString oldName = itemName;
    itemName = newName;
    PhysicsWorld::instance()->itemRenamed(this, oldName);
}

void PhysicsItem::setZValue(double zValue)
{
    // The scene sorts its items by this value, which NaN would leave without an order.
    if (pGraphicsItem && std::isfinite(zValue))
        pGraphicsItem->setZValue(zValue);
}

void PhysicsItem::setOpacity(double opacity)
{
    if (pGraphicsItem && std::isfinite(opacity))
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
    // An event does not start again inside itself: an OnUpdate that moves its body runs
    // update() from the setter, and that would run the OnUpdate again, and so on.
    if (field.isEmpty() || runningScripts.contains(&field) || eventScriptBlockers > 0)
        return;
    QScriptEngine* engine = scriptEngine();
    if (!engine)
        return;
    const QScriptValue itemValue
        = engine->globalObject().property(itemName, QScriptValue::ResolvePrototype);
    QScriptValue function
        = itemValue.property(QLatin1String(functionName), QScriptValue::ResolvePrototype);
    PhysicsWorld::ScriptGuard guard;
    runningScripts.append(&field);
    Application::instance()->scriptRunner->call(function, itemValue, arguments);
    runningScripts.removeOne(&field);
    // An error of the script is dropped, so that it does not escape into a script that only
    // set a property or started the world; the step, or that script, goes on.
    engine->clearExceptions();
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
    return engine->newQObject(const_cast<PhysicsItem*>(this), QScriptEngine::QtOwnership,
                              Application::scriptWrapOptions);
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

XPropertyList PhysicsItem::snapshot()
{
    if (!lastSnapshot.describes(this))
        lastSnapshot = XPropertyList::read(this);
    return lastSnapshot;
}

void PhysicsItem::restore(const XPropertyList& list)
{
    if (list.describes(this))
        lastSnapshot = list;
    else
        XPropertyList::write(this, list);
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
