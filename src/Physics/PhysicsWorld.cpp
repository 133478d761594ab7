#include "Physics/PhysicsWorld.h"

#include "Application/Application.h"
#include "Application/Settings.h"
#include "Gui/MainWindow.h"
#include "NemuGeometry/Geometry.h"
#include "Physics/BalloonItem.h"
#include "Physics/Box2DLimits.h"
#include "Physics/ContactListener.h"
#include "Physics/DistanceJoint.h"
#include "Physics/ForceItem.h"
#include "Physics/GearItem.h"
#include "Physics/JointSoftness.h"
#include "Physics/PhysicsItem.h"
#include "Physics/PolygonItem.h"
#include "Physics/PrismaticJoint.h"
#include "Physics/PulleyJoint.h"
#include "Physics/RectangleItem.h"
#include "Physics/RevoluteJoint.h"
#include "Physics/SpringForce.h"
#include "Scripting/ScriptRunner.h"
#include "View/GraphicsScene.h"
#include "View/GraphicsView.h"

#include <QDir>
#include <QGraphicsItem>
#include <QScriptEngine>
#include <box2d/box2d.h>
#include <cmath>

PhysicsWorld* PhysicsWorld::worldInstance = nullptr;
b2World* PhysicsWorld::sharedBox2DWorld = nullptr;

class PhysicsWorld::IterationGuard
{
public:
    explicit IterationGuard(PhysicsWorld* world)
        : world(world)
    {
        ++world->iterationDepth;
    }
    ~IterationGuard()
    {
        --world->iterationDepth;
        world->deleteRemovedItems();
    }

private:
    PhysicsWorld* world;
};

PhysicsWorld::ScriptGuard::ScriptGuard()
{
    ++instance()->scriptDepth;
}

PhysicsWorld::ScriptGuard::~ScriptGuard()
{
    PhysicsWorld* world = instance();
    if (--world->scriptDepth == 0 && world->iterationDepth == 0)
        world->scheduleDeletion();
}

PhysicsWorld* PhysicsWorld::instance()
{
    if (!worldInstance)
        worldInstance = new PhysicsWorld();
    return worldInstance;
}

void PhysicsWorld::destroy()
{
    delete worldInstance;
    worldInstance = nullptr;
}

PhysicsWorld::PhysicsWorld()
    : timer(this)
    , world(new b2World(b2Vec2(0.0f, -10.0f)))
{
    sharedBox2DWorld = world;
    const b2BodyDef backgroundDefinition;
    background = world->CreateBody(&backgroundDefinition);
    listener = new ContactListener();
    world->SetContactListener(listener);
    scene = new GraphicsScene(this);
    connect(&timer, &QTimer::timeout, this, [this] {
        // A long script lets timers run inside it; the step waits until it has returned.
        if (!Application::scriptEvaluating())
            step();
    });
}

PhysicsWorld::~PhysicsWorld()
{
    timer.stop();
    // Items delete their graphics items, so they go before the scene, a child of this object.
    removeAllBodies();
    const PhysicsItemList remaining = itemList;
    for (PhysicsItem* item : remaining)
        detachItem(item);
    deleteRemovedItems();
    mouseJointPointer = nullptr;
    delete world;
    if (sharedBox2DWorld == world)
        sharedBox2DWorld = nullptr;
    delete listener;
}

double PhysicsWorld::gravityX() const
{
    return world->GetGravity().x;
}

double PhysicsWorld::gravityY() const
{
    return world->GetGravity().y;
}

int PhysicsWorld::stepFrequency() const
{
    return qRound(1.0 / stepSeconds);
}

int PhysicsWorld::bodyCount() const
{
    return world->GetBodyCount();
}

int PhysicsWorld::jointCount() const
{
    return world->GetJointCount();
}

void PhysicsWorld::setGravityX(double gravityX)
{
    if (Box2DLimits::isMagnitude(gravityX) && setGravity(gravityX, world->GetGravity().y))
        emit gravityXChanged(gravityX);
}

void PhysicsWorld::setGravityY(double gravityY)
{
    if (Box2DLimits::isMagnitude(gravityY) && setGravity(world->GetGravity().x, gravityY))
        emit gravityYChanged(gravityY);
}

bool PhysicsWorld::setGravity(double x, double y)
{
    // Compared with the stored floats widened, so that re-setting a value read back is no
    // change.
    const b2Vec2 gravity = world->GetGravity();
    if (double(gravity.x) == x && double(gravity.y) == y)
        return false;
    world->SetGravity(b2Vec2(float(x), float(y)));
    for (b2Body* body = world->GetBodyList(); body; body = body->GetNext())
        body->SetAwake(true);
    return true;
}

void PhysicsWorld::setStepFrequency(int stepFrequency)
{
    stepFrequency = qBound(30, stepFrequency, 120);
    if (stepFrequency == this->stepFrequency())
        return;
    stepSeconds = 1.0 / stepFrequency;
    emit stepFrequencyChanged(stepFrequency);
}

void PhysicsWorld::setVelocityIterations(int velocityIterations)
{
    velocityIterations = qBound(1, velocityIterations, 99);
    if (velocityIterations == velocityIterationCount)
        return;
    velocityIterationCount = velocityIterations;
    emit velocityIterationsChanged(velocityIterations);
}

void PhysicsWorld::setPositionIterations(int positionIterations)
{
    positionIterations = qBound(1, positionIterations, 99);
    if (positionIterations == positionIterationCount)
        return;
    positionIterationCount = positionIterations;
    emit positionIterationsChanged(positionIterations);
}

void PhysicsWorld::setWarmStarting(bool warmStarting)
{
    if (warmStarting == warmStartingEnabled)
        return;
    warmStartingEnabled = warmStarting;
    emit warmStartingChanged(warmStarting);
}

void PhysicsWorld::setContinuousPhysics(bool continuousPhysics)
{
    if (continuousPhysics == continuousPhysicsEnabled)
        return;
    continuousPhysicsEnabled = continuousPhysics;
    emit continuousPhysicsChanged(continuousPhysics);
}

void PhysicsWorld::setSeconds(double seconds)
{
    if (std::isfinite(seconds))
        simulatedSeconds = seconds;
}

void PhysicsWorld::setRender(bool render)
{
    renderFrames = render;
}

void PhysicsWorld::start()
{
    {
        IterationGuard guard(this);
        const PhysicsItemList snapshot = itemList;
        for (PhysicsItem* item : snapshot) {
            if (!isRemoved(item))
                item->runOnStart();
        }
    }
    timer.start(Settings::instance()->timerInterval);
    emit started();
}

void PhysicsWorld::stop()
{
    {
        IterationGuard guard(this);
        const PhysicsItemList snapshot = itemList;
        for (PhysicsItem* item : snapshot) {
            if (!isRemoved(item))
                item->runOnStop();
        }
    }
    timer.stop();
    emit stopped();
}

bool PhysicsWorld::running() const
{
    return timer.isActive();
}

void PhysicsWorld::toggle()
{
    if (running())
        stop();
    else
        start();
}

int PhysicsWorld::physicsItemInstanceCounter() const
{
    return PhysicsItem::physicsItemInstanceCounter;
}

void PhysicsWorld::setPhysicsItemInstanceCounter(int counter)
{
    // A negative counter would make names that are no script identifiers.
    if (counter >= 0)
        PhysicsItem::physicsItemInstanceCounter = counter;
}

XPropertyList PhysicsWorld::properties()
{
    return XPropertyList::read(this);
}

void PhysicsWorld::getProperties(XPropertyList& list)
{
    list = XPropertyList::read(this);
}

void PhysicsWorld::setProperties(XPropertyList list)
{
    XPropertyList::write(this, list);
}

bool PhysicsWorld::setSelectionSetProperty(QString propertyName, QVariant value)
{
    return PhysicsItemList(scene).setProperty(propertyName, value);
}

void PhysicsWorld::getState(PhysicsWorldState& state)
{
    state.worldProperties = XPropertyList::read(this);
    state.itemProperties.clear();
    for (PhysicsItem* item : qAsConst(itemList)) {
        if (item->isActive())
            state.itemProperties.append(item->snapshot());
    }
}

void PhysicsWorld::setState(PhysicsWorldState state)
{
    IterationGuard guard(this);
    XPropertyList::write(this, state.worldProperties);
    // A list whose item a script has deleted since the snapshot is skipped.
    for (const XPropertyList& list : qAsConst(state.itemProperties)) {
        auto* item = qobject_cast<PhysicsItem*>(list.object.data());
        if (item && !isRemoved(item))
            item->restore(list);
    }
    const PhysicsItemList snapshot = itemList;
    for (PhysicsItem* item : snapshot) {
        if (!isRemoved(item))
            item->update();
    }
}

void PhysicsWorld::createMouseJoint(BodyItem* pBodyItem, double x, double y)
{
    // A body that is not in the world, or not active in it, may be gone at any moment, and
    // Box2D would free the joint with it behind the world's back.
    if (!isInWorld(pBodyItem) || !pBodyItem->isActive() || !Box2DLimits::isPoint(QPointF(x, y)))
        return;
    b2Body* body = pBodyItem->body();
    const float mass = body->GetMass();
    if (mass == 0.0f)
        return;
    destroyMouseJoint();
    b2MouseJointDef definition;
    definition.bodyA = background;
    definition.bodyB = body;
    definition.collideConnected = false;
    definition.target.Set(float(x), float(y));
    definition.maxForce = mass * 3000.0f;
    JointSoftness::apply(definition, 5.0, 0.7);
    mouseJointPointer = static_cast<b2MouseJoint*>(world->CreateJoint(&definition));
    body->SetAwake(true);
}

void PhysicsWorld::destroyMouseJoint()
{
    if (!mouseJointPointer)
        return;
    world->DestroyJoint(mouseJointPointer);
    mouseJointPointer = nullptr;
}

void PhysicsWorld::setMouseJointTarget(double x, double y)
{
    if (mouseJointPointer && Box2DLimits::isPoint(QPointF(x, y)))
        mouseJointPointer->SetTarget(b2Vec2(float(x), float(y)));
}

void PhysicsWorld::step()
{
    IterationGuard guard(this);
    world->SetWarmStarting(warmStartingEnabled);
    world->SetContinuousPhysics(continuousPhysicsEnabled);
    listener->contactCount = 0;
    world->Step(float(stepSeconds), velocityIterationCount, positionIterationCount);
    // Forces applied from here on, by springs, balloons and scripts, act in the next step.
    world->ClearForces();
    repairNonFiniteBodies();
    simulatedSeconds += stepSeconds;
    dispatchContacts();

    // Items added by a script during the loop wait for the next step.
    const PhysicsItemList snapshot = itemList;
    for (PhysicsItem* item : snapshot) {
        if (!isRemoved(item))
            item->update();
    }
    if (renderFrames)
        saveFrame();
    emit stepFinished();
}

void PhysicsWorld::dispatchContacts()
{
    // The count is read anew for each point: a script may not add points, but this keeps the
    // loop honest if one ever does. A body removed by a script meanwhile yields null.
    for (int i = 0; i < listener->contactCount; ++i) {
        const ContactPoint& point = listener->contacts[i];
        if (point.state != b2_addState)
            continue;
        BodyItem* first = bodyItemFromBody(point.fixtureA->GetBody());
        BodyItem* second = bodyItemFromBody(point.fixtureB->GetBody());
        if (!first || !second)
            continue;
        first->runOnContact(second->toScriptValue());
        if (!isRemoved(first) && !isRemoved(second))
            second->runOnContact(first->toScriptValue());
    }
}

void PhysicsWorld::saveFrame()
{
    const int frame = frameCount++;
    Application* application = Application::instance();
    if (!application || !application->mainWindow)
        return;
    const QString path = Application::temporaryDirectory() + QDir::separator()
        + QStringLiteral("frame%1.png").arg(frame, 5, 10, QLatin1Char('0'));
    application->mainWindow->graphicsView()->image().save(path);
}

void PhysicsWorld::clear()
{
    stop();
    removeAllDynamicBodies();
    removeAllStaticBodies();
    // Items that hang on no body of the world go as well.
    const PhysicsItemList remaining = itemList;
    for (PhysicsItem* item : remaining)
        removePhysicsItem(item);
    destroyMouseJoint();
    repairBody(background);
    PhysicsItem::physicsItemInstanceCounter = 0;
    setStepFrequency(60);
    setVelocityIterations(8);
    setPositionIterations(8);
    setWarmStarting(true);
    setContinuousPhysics(true);
    renderFrames = false;
    frameCount = 0;
    simulatedSeconds = 0.0;
}

PhysicsItemList PhysicsWorld::activeItems() const
{
    return itemList.activeItems();
}

QList<BodyItem*> PhysicsWorld::bodyItems() const
{
    return itemList.bodyItems();
}

QList<JointItem*> PhysicsWorld::jointItems() const
{
    return itemList.jointItems();
}

QList<JointItem*> PhysicsWorld::jointList(BodyItem* pBodyItem) const
{
    return itemList.jointList(pBodyItem);
}

QList<ForceItem*> PhysicsWorld::forceItems() const
{
    return itemList.forceItems();
}

QList<ForceItem*> PhysicsWorld::forceList(BodyItem* pBodyItem) const
{
    return itemList.forceList(pBodyItem);
}

ForceItem* PhysicsWorld::forceItemFromGraphicsItem(QGraphicsItem* graphicsItem) const
{
    return itemList.forceItemFromGraphicsItem(graphicsItem);
}

PhysicsItemList PhysicsWorld::dependentPhysicsItems(BodyItem* pBodyItem) const
{
    return itemList.dependentPhysicsItems(pBodyItem);
}

JointItem* PhysicsWorld::jointItemFromGraphicsItem(QGraphicsItem* graphicsItem) const
{
    return itemList.jointItemFromGraphicsItem(graphicsItem);
}

BodyItem* PhysicsWorld::bodyItemFromGraphicsItem(QGraphicsItem* graphicsItem) const
{
    return itemList.bodyItemFromGraphicsItem(graphicsItem);
}

BodyItem* PhysicsWorld::bodyItemFromBody(b2Body* body) const
{
    if (!body)
        return nullptr;
    auto* item = reinterpret_cast<BodyItem*>(body->GetUserData().pointer);
    return item && !isRemoved(item) ? item : nullptr;
}

PhysicsItem* PhysicsWorld::physicsItemFromName(QString name) const
{
    return namedItems.value(name);
}

void PhysicsWorld::itemRenamed(PhysicsItem* item, const QString& oldName)
{
    if (namedItems.value(oldName) != item)
        return;
    namedItems.remove(oldName);
    namedItems.insert(item->name(), item);
}

PhysicsItem* PhysicsWorld::physicsItemFromGraphicsItem(QGraphicsItem* graphicsItem) const
{
    return itemList.physicsItemFromGraphicsItem(graphicsItem);
}

QRectF PhysicsWorld::itemsBoundingRect() const
{
    return itemList.boundingRect();
}

bool PhysicsWorld::contains(PhysicsItem* item) const
{
    return itemList.contains(item);
}

bool PhysicsWorld::isInWorld(PhysicsItem* item) const
{
    // Names are unique in the world, so the index answers at once, for an item that exists.
    return item && namedItems.value(item->name()) == item;
}

void PhysicsWorld::selectAll()
{
    itemList.setSelected(true);
}

void PhysicsWorld::deselectAll()
{
    itemList.setSelected(false);
}

RectangleItem* PhysicsWorld::createRectangle(double x, double y, double theta, double w, double h)
{
    if (!Box2DLimits::isPose(x, y, theta) || !Box2DLimits::isSize(w) || !Box2DLimits::isSize(h))
        return nullptr;
    auto* item = new RectangleItem(x, y, theta, w, h);
    addPhysicsItem(item);
    return item;
}

CircleItem* PhysicsWorld::createCircle(double x, double y, double theta, double r)
{
    if (!Box2DLimits::isPose(x, y, theta) || !Box2DLimits::isSize(r))
        return nullptr;
    auto* item = new CircleItem(x, y, theta, r);
    addPhysicsItem(item);
    return item;
}

BalloonItem* PhysicsWorld::createBalloon(double x, double y, double theta, double r)
{
    if (!Box2DLimits::isPose(x, y, theta) || !Box2DLimits::isSize(r))
        return nullptr;
    auto* item = new BalloonItem(x, y, theta, r);
    addPhysicsItem(item);
    return item;
}

PolygonItem* PhysicsWorld::createPolygon(QPolygonF polygon)
{
    if (!Box2DLimits::isPolygon(polygon))
        return nullptr;
    auto* item = new PolygonItem(polygon);
    addPhysicsItem(item);
    return item;
}

GearItem* PhysicsWorld::createGear(double x, double y, double theta, double r)
{
    if (!Box2DLimits::isPose(x, y, theta) || !Box2DLimits::isSize(r))
        return nullptr;
    auto* item = new GearItem(x, y, theta, r, 0.4, 0.6);
    addPhysicsItem(item);
    return item;
}

SpringForce* PhysicsWorld::createSpringForce(BodyItem* pItem1, BodyItem* pItem2, QPointF p1,
                                             QPointF p2, double k, double damping)
{
    // A null or removed body is refused: a spring needs two bodies to act between.
    if (!isInWorld(pItem1) || !isInWorld(pItem2) || !Box2DLimits::isLine(QLineF(p1, p2))
        || !Box2DLimits::isMagnitude(k) || !Box2DLimits::isMagnitude(damping))
        return nullptr;
    auto* item = new SpringForce(pItem1, pItem2, p1, p2, k, damping);
    addPhysicsItem(item);
    return item;
}

PhysicsItem* PhysicsWorld::createPhysicsItem(QString className)
{
    PhysicsItem* item = nullptr;
    if (className == QLatin1String("RectangleItem"))
        item = new RectangleItem(0, 0, 0, 1.0, 1.0);
    else if (className == QLatin1String("CircleItem"))
        item = new CircleItem(0, 0, 0, 0.5);
    else if (className == QLatin1String("PolygonItem"))
        item = new PolygonItem(QPolygonF());
    else if (className == QLatin1String("BalloonItem"))
        item = new BalloonItem(0, 0, 0, 2.0);
    else if (className == QLatin1String("GearItem"))
        item = new GearItem(0, 0, 0, 0.5, 0.4, 0.6);
    addPhysicsItem(item);
    return item;
}

DistanceJoint* PhysicsWorld::createDistanceJoint(BodyItem* pItem1, BodyItem* pItem2, QPointF p1,
                                                 QPointF p2)
{
    if (!areJointBodies(pItem1, pItem2) || !Box2DLimits::isLine(QLineF(p1, p2)))
        return nullptr;
    auto* joint = new DistanceJoint(pItem1, pItem2, QLineF(p1, p2));
    addPhysicsItem(joint);
    return joint;
}

RevoluteJoint* PhysicsWorld::createRevoluteJoint(BodyItem* pItem1, BodyItem* pItem2, QPointF p)
{
    if (!areJointBodies(pItem1, pItem2) || !Box2DLimits::isPoint(p))
        return nullptr;
    auto* joint = new RevoluteJoint(pItem1, pItem2, p, Settings::instance()->revoluteJointRadius);
    addPhysicsItem(joint);
    return joint;
}

PrismaticJoint* PhysicsWorld::createPrismaticJoint(BodyItem* pItem1, BodyItem* pItem2, QLineF line1,
                                                   QLineF line2)
{
    if (!areJointBodies(pItem1, pItem2) || !Box2DLimits::isLine(line1)
        || !Box2DLimits::isLine(line2))
        return nullptr;
    auto* joint = new PrismaticJoint(pItem1, pItem2, line1, line2);
    addPhysicsItem(joint);
    return joint;
}

PulleyJoint* PhysicsWorld::createPulleyJoint(BodyItem* pItem1, BodyItem* pItem2, QPolygonF polygon)
{
    if (!areJointBodies(pItem1, pItem2) || !Box2DLimits::isPolygon(polygon))
        return nullptr;
    auto* joint = new PulleyJoint(pItem1, pItem2, polygon);
    addPhysicsItem(joint);
    return joint;
}

BodyItem* PhysicsWorld::clone(BodyItem* pBodyItem)
{
    if (!isInWorld(pBodyItem))
        return nullptr;
    PhysicsItem* copy = createPhysicsItem(QLatin1String(pBodyItem->metaObject()->className()));
    if (!copy)
        return nullptr;
    // The name is refused, since the source holds it; the event scripts are compiled anew
    // under the copy's own name.
    copy->setProperties(pBodyItem->properties());
    return copy->toBodyItem();
}

PhysicsItemList PhysicsWorld::cloneSelectedItems()
{
    const PhysicsItemList selection(scene);
    const double dx = selection.boundingRect().width() + 0.5;
    // The background body stands for itself, so that a joint to it counts as inside.
    QHash<BodyItem*, BodyItem*> copies {{nullptr, nullptr}};
    PhysicsItemList result;
    for (BodyItem* body : selection.bodyItems()) {
        BodyItem* copy = clone(body);
        if (!copy)
            continue;
        copies.insert(body, copy);
        copy->setPositionX(copy->positionX() + dx);
        result.append(copy);
    }
    for (JointItem* joint : selection.jointItems()) {
        if (!copies.contains(joint->bodyItem1()) || !copies.contains(joint->bodyItem2()))
            continue;
        if (JointItem* copy = copyJoint(joint, copies.value(joint->bodyItem1()),
                                        copies.value(joint->bodyItem2()), dx)) {
            copy->setProperties(joint->properties());
            result.append(copy);
        }
    }
    const QPointF shift(dx, 0.0);
    for (ForceItem* force : selection.forceItems()) {
        auto* spring = qobject_cast<SpringForce*>(force);
        const QList<BodyItem*> bodies = force->bodyItems();
        if (!spring || bodies.size() != 2 || !copies.contains(bodies.first())
            || !copies.contains(bodies.last()))
            continue;
        SpringForce* copy
            = createSpringForce(copies.value(bodies.first()), copies.value(bodies.last()),
                                Nemu::Geometry::pointFromString(spring->anchor1()) + shift,
                                Nemu::Geometry::pointFromString(spring->anchor2()) + shift,
                                spring->k(), spring->damping());
        if (copy) {
            copy->setProperties(spring->properties());
            result.append(copy);
        }
    }
    for (PhysicsItem* copy : qAsConst(result)) {
        if (copy->graphicsItem())
            copy->graphicsItem()->setSelected(true);
    }
    return result;
}

JointItem* PhysicsWorld::copyJoint(JointItem* joint, BodyItem* first, BodyItem* second, double dx)
{
    // Through the anchors' text, as a script would copy them: six significant digits.
    const QPointF shift(dx, 0.0);
    const QPointF a1 = Nemu::Geometry::pointFromString(joint->anchor1()) + shift;
    const QPointF a2 = Nemu::Geometry::pointFromString(joint->anchor2()) + shift;
    switch (joint->type()) {
    case PhysicsItem::DistanceJointType:
        return createDistanceJoint(first, second, a1, a2);
    case PhysicsItem::RevoluteJointType:
        return createRevoluteJoint(first, second, a1);
    case PhysicsItem::PrismaticJointType: {
        auto* prismatic = static_cast<PrismaticJoint*>(joint);
        return createPrismaticJoint(first, second, QLineF(prismatic->trackEnd1() + shift, a1),
                                    QLineF(prismatic->trackEnd2() + shift, a2));
    }
    case PhysicsItem::PulleyJointType: {
        auto* pulley = static_cast<PulleyJoint*>(joint);
        return createPulleyJoint(
            first, second,
            QPolygonF({a1, QPointF(pulley->groundAnchorAX(), pulley->groundAnchorAY()) + shift,
                       QPointF(pulley->groundAnchorBX(), pulley->groundAnchorBY()) + shift, a2}));
    }
    default:
        return nullptr;
    }
}

void PhysicsWorld::createGround()
{
    createRectangle(0, -0.5, 0, 22, 1)->setBodyType(BodyItem::StaticBody);
    createRectangle(-10.5, 8, 0, 1, 16)->setBodyType(BodyItem::StaticBody);
    createRectangle(10.5, 8, 0, 1, 16)->setBodyType(BodyItem::StaticBody);
}

bool PhysicsWorld::areJointBodies(BodyItem* first, BodyItem* second) const
{
    return isInWorld(first) && first != second && (!second || isInWorld(second));
}

void PhysicsWorld::addPhysicsItem(PhysicsItem* item)
{
    // A removed item waits for its deletion, inactive, and has lost its joints.
    if (!item || itemList.contains(item) || isRemoved(item))
        return;
    itemList.append(item);
    namedItems.insert(item->name(), item);
    if (item->graphicsItem())
        scene->addItem(item->graphicsItem());
    if (Application* application = Application::instance()) {
        if (application->scriptEngine)
            application->scriptEngine->globalObject().setProperty(
                item->name(), item->toScriptValue(), QScriptValue::KeepExistingFlags);
    }
}

void PhysicsWorld::removePhysicsItem(PhysicsItem* item)
{
    if (!item || !itemList.contains(item))
        return;
    if (BodyItem* body = item->toBodyItem())
        removeBody(body);
    else if (JointItem* joint = item->toJointItem())
        removeJoint(joint);
    else if (ForceItem* force = item->toForceItem())
        removeForce(force);
    else
        detachItem(item);
}

void PhysicsWorld::removeBody(BodyItem* pBodyItem)
{
    if (!pBodyItem || !itemList.contains(pBodyItem))
        return;
    // Joints first: each destroys its own b2Joint, which Box2D would otherwise free with
    // the body behind the joint's back.
    for (JointItem* joint : jointList(pBodyItem))
        removeJoint(joint);
    for (ForceItem* force : forceList(pBodyItem))
        removeForce(force);
    detachItem(pBodyItem);
}

void PhysicsWorld::removeForce(ForceItem* pForceItem)
{
    if (!pForceItem || !itemList.contains(pForceItem))
        return;
    detachItem(pForceItem);
}

void PhysicsWorld::removeJoint(JointItem* joint)
{
    if (!joint || !itemList.contains(joint))
        return;
    detachItem(joint);
}

void PhysicsWorld::removeAllDynamicBodies()
{
    for (BodyItem* body : bodyItems()) {
        if (body->mass() != 0.0)
            removeBody(body);
    }
}

void PhysicsWorld::removeAllStaticBodies()
{
    for (BodyItem* body : bodyItems()) {
        if (body->mass() == 0.0)
            removeBody(body);
    }
}

void PhysicsWorld::removeAllBodies()
{
    removeAllDynamicBodies();
    removeAllStaticBodies();
}

void PhysicsWorld::detachItem(PhysicsItem* item)
{
    if (mouseJointPointer && item->toBodyItem()
        && mouseJointPointer->GetBodyB() == item->toBodyItem()->body())
        destroyMouseJoint();
    if (item->graphicsItem())
        scene->removeItem(item->graphicsItem());
    itemList.removeAll(item);
    if (namedItems.value(item->name()) == item)
        namedItems.remove(item->name());
    if (Application* application = Application::instance()) {
        if (application->scriptEngine)
            application->scriptEngine->globalObject().setProperty(item->name(), QScriptValue(),
                                                                  QScriptValue::KeepExistingFlags);
    }
    if (iterationDepth > 0 || scriptDepth > 0) {
        item->setActive(false);
        removedItems.insert(item);
    } else {
        delete item;
    }
}

bool PhysicsWorld::isRemoved(PhysicsItem* item) const
{
    return !removedItems.isEmpty() && removedItems.contains(item);
}

void PhysicsWorld::deleteRemovedItems()
{
    if (iterationDepth > 0 || scriptDepth > 0)
        return;
    const QSet<PhysicsItem*> doomed = removedItems;
    removedItems.clear();
    qDeleteAll(doomed);
}

void PhysicsWorld::scheduleDeletion(int delayMilliseconds)
{
    if (removedItems.isEmpty() || deletionScheduled)
        return;
    deletionScheduled = true;
    QTimer::singleShot(delayMilliseconds, this, [this] {
        deletionScheduled = false;
        // A long script lets timers run inside it, and the code below it may hold any item.
        if (Application::scriptEvaluating())
            scheduleDeletion(ScriptRunner::processEventsInterval);
        else
            deleteRemovedItems();
    });
}

void PhysicsWorld::repairNonFiniteBodies()
{
    QList<b2Body*> broken;
    for (b2Body* body = world->GetBodyList(); body; body = body->GetNext()) {
        const b2Vec2& position = body->GetPosition();
        const b2Vec2& velocity = body->GetLinearVelocity();
        if (!std::isfinite(position.x + position.y + body->GetAngle() + velocity.x + velocity.y
                           + body->GetAngularVelocity()))
            broken.append(body);
    }
    if (broken.isEmpty())
        return;
    QSet<b2Joint*> joints;
    for (b2Body* body : qAsConst(broken)) {
        repairBody(body);
        for (b2JointEdge* edge = body->GetJointList(); edge; edge = edge->next)
            joints.insert(edge->joint);
    }
    // Joints warm-start from the impulses they kept, which are NaN now.
    for (b2Joint* joint : qAsConst(joints)) {
        if (joint == mouseJointPointer)
            destroyMouseJoint();
        else if (auto* item = reinterpret_cast<JointItem*>(joint->GetUserData().pointer))
            item->rebuildJoint();
    }
}

void PhysicsWorld::repairBody(b2Body* body)
{
    if (auto* item = reinterpret_cast<BodyItem*>(body->GetUserData().pointer))
        item->restoreDrawnPose();
    else
        body->SetTransform(b2Vec2_zero, 0.0f);
    // Box2D sets a static body's velocities to zero only as the body becomes static.
    if (body->GetType() == b2_staticBody) {
        body->SetType(b2_kinematicBody);
        body->SetType(b2_staticBody);
    } else {
        body->SetLinearVelocity(b2Vec2_zero);
        body->SetAngularVelocity(0.0f);
    }
    // Its contacts warm-start from NaN impulses as well: switching the body off and on again
    // drops them.
    if (body->IsEnabled()) {
        body->SetEnabled(false);
        body->SetEnabled(true);
    }
}
