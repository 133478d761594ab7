#include "Physics/BodyItem.h"

#include "Application/Settings.h"
#include "General/XPolygonF.h"
#include "NemuToolbox/Toolbox.h"
#include "Physics/Box2DLimits.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/ScenePicture.h"
#include "View/CosmeticPens.h"

#include <QGraphicsEllipseItem>
#include <QGraphicsScene>
#include <QPainter>
#include <cmath>
#include <limits>

double BodyItem::zValueCounter = 0.0;

namespace {
// Box2D searches all fixtures of a body, and all proxies made since its last step, for each
// fixture it makes or destroys: changes of this many fixtures go round it.
const int manyFixtures = 256;

// The float value of pi/180 as a double, and 180/pi as a float: the factors the properties
// have always used, so that scenes read back to the same digits.
const double radiansPerDegree = 0.017453293005625408;
const float degreesPerRadian = 57.295776f;

} // namespace

double BodyItem::degreesToRadians(double degrees)
{
    return degrees * radiansPerDegree;
}

double BodyItem::radiansToDegrees(double radians)
{
    return float(radians) * degreesPerRadian;
}

BodyItem::BodyItem(double x, double y, double theta)
{
    // The factories refuse a pose Box2D cannot take; a body made directly stands at the origin.
    if (!Box2DLimits::isPose(x, y, theta))
        x = y = theta = 0.0;
    Settings* settings = Settings::instance();
    bodyDefinition.position.Set(float(x), float(y));
    bodyDefinition.angle = float(theta);
    bodyDefinition.linearVelocity.SetZero();
    bodyDefinition.angularVelocity = 0.0f;
    bodyDefinition.awake = true;
    bodyDefinition.enabled = true;
    bodyDefinition.fixedRotation = false;
    bodyDefinition.gravityScale = 1.0f;
    bodyDefinition.type = settings->isStaticDefault ? b2_staticBody : b2_dynamicBody;
    bodyDefinition.allowSleep = settings->allowSleepDefault;
    bodyDefinition.bullet = settings->isBulletDefault;
    bodyDefinition.linearDamping = float(settings->linearDampingDefault);
    bodyDefinition.angularDamping = float(settings->angularDampingDefault);
    bodyDefinition.userData.pointer = reinterpret_cast<uintptr_t>(this);
    frictionValue = settings->frictionDefault;
    restitutionValue = settings->restitutionDefault;
    pBody = PhysicsWorld::box2DWorld()->CreateBody(&bodyDefinition);
}

BodyItem::~BodyItem()
{
    // DestroyBody takes the fixtures along without working the mass out for each of them.
    if (b2World* world = PhysicsWorld::box2DWorld()) {
        settleProxies();
        world->DestroyBody(pBody);
    }
    fixtures.clear();
    deleteFixtureDefinitions();
}

bool BodyItem::isActive() const
{
    return pBody->IsEnabled();
}

void BodyItem::setActive(bool active)
{
    if (active == pBody->IsEnabled())
        return;
    if (!active)
        settleProxies();
    pBody->SetEnabled(active);
    pGraphicsItem->setVisible(active);
}

void BodyItem::update()
{
    // Box2D 2.4 never lets a static body be awake, so a static body moved by a setter would
    // not be redrawn: it counts as awake here.
    if (pBody->IsEnabled() && (pBody->IsAwake() || pBody->GetType() == b2_staticBody)) {
        const b2Vec2& position = pBody->GetPosition();
        pGraphicsItem->setPos(position.x, position.y);
        // QGraphicsItem announces a geometry change before it compares angles: compare here,
        // since this runs for every awake body at every step.
        const qreal rotation = pBody->GetAngle() * degreesPerRadian;
        if (rotation != pGraphicsItem->rotation())
            pGraphicsItem->setRotation(rotation);
    }
    runOnUpdate();
}

void BodyItem::restoreDrawnPose()
{
    pBody->SetTransform(b2Vec2(float(pGraphicsItem->x()), float(pGraphicsItem->y())),
                        float(degreesToRadians(pGraphicsItem->rotation())));
}

QList<QPolygonF> BodyItem::triangles() const
{
    QList<QPolygonF> result;
    for (const XPolygonF& triangle : XPolygonF(worldPolygon()).triangulate())
        result.append(triangle);
    return result;
}

void BodyItem::runOnContact(const QScriptValue& other)
{
    runEventScript(onContactScript, "onContact", QScriptValueList() << other, true);
}

BodyItem::BodyType BodyItem::bodyType() const
{
    return BodyType(pBody->GetType());
}

bool BodyItem::isBullet() const
{
    return pBody->IsBullet();
}

bool BodyItem::allowSleeping() const
{
    return pBody->IsSleepingAllowed();
}

bool BodyItem::fixedRotation() const
{
    return pBody->IsFixedRotation();
}

double BodyItem::positionX() const
{
    return pBody->GetPosition().x;
}

double BodyItem::positionY() const
{
    return pBody->GetPosition().y;
}

double BodyItem::angle() const
{
    return radiansToDegrees(pBody->GetAngle());
}

double BodyItem::linearDamping() const
{
    return pBody->GetLinearDamping();
}

double BodyItem::angularDamping() const
{
    return pBody->GetAngularDamping();
}

double BodyItem::mass() const
{
    return pBody->GetMass();
}

double BodyItem::angularVelocity() const
{
    return pBody->GetAngularVelocity();
}

double BodyItem::linearVelocityX() const
{
    return pBody->GetLinearVelocity().x;
}

double BodyItem::linearVelocityY() const
{
    return pBody->GetLinearVelocity().y;
}

void BodyItem::setOnContact(QString script)
{
    setEventScript(onContactScript, "onContact", QStringLiteral("other"), script);
}

void BodyItem::setBodyType(BodyType type)
{
    if (type == bodyType() || type < StaticBody || type > DynamicBody)
        return;
    pBody->SetType(b2BodyType(type));
    bodyDefinition.type = b2BodyType(type);
    QBrush newBrush = brush();
    if (type == StaticBody) {
        newBrush.setTexture(QPixmap(QStringLiteral(":/images/wall.png")));
    } else {
        newBrush.setStyle(Qt::SolidPattern);
        if (newBrush.color() == Qt::black)
            newBrush.setColor(Nemu::Toolbox::randomColor());
    }
    setBrush(newBrush);
}

void BodyItem::setBullet(bool bullet)
{
    if (bullet == isBullet())
        return;
    pBody->SetBullet(bullet);
    bodyDefinition.bullet = bullet;
}

void BodyItem::setAllowSleeping(bool allow)
{
    if (allow == allowSleeping())
        return;
    pBody->SetSleepingAllowed(allow); // turning it off wakes the body
    bodyDefinition.allowSleep = allow;
}

void BodyItem::setFixedRotation(bool fixed)
{
    if (fixed == fixedRotation())
        return;
    pBody->SetFixedRotation(fixed);
    bodyDefinition.fixedRotation = fixed;
    if (!isStatic())
        pBody->SetAngularVelocity(0.0f);
    update();
    pBody->SetAwake(true);
}

void BodyItem::setShowLocalCenter(bool show)
{
    localCenterShown = show;
    // Made at the first showing: a hidden child per body slows every paint of a large scene.
    if (show && !centreMarker) {
        centreMarker = new QGraphicsEllipseItem(-0.1, -0.1, 0.2, 0.2, pGraphicsItem);
        centreMarker->setPen(
            QPen(QBrush(Qt::black), 0.1, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    }
    if (centreMarker) {
        const b2Vec2 centre = pBody->GetLocalCenter();
        centreMarker->setPos(centre.x, centre.y);
        centreMarker->setVisible(show);
    }
}

void BodyItem::setPositionX(double x)
{
    if (!Box2DLimits::isCoordinate(x))
        return;
    setXForm(x, positionY(), pBody->GetAngle());
    update();
}

void BodyItem::setPositionY(double y)
{
    if (!Box2DLimits::isCoordinate(y))
        return;
    setXForm(positionX(), y, pBody->GetAngle());
    update();
}

void BodyItem::setAngle(double angle)
{
    if (!Box2DLimits::isMagnitude(angle))
        return;
    setXForm(positionX(), positionY(), degreesToRadians(angle));
    update();
}

void BodyItem::setDensity(double density)
{
    if (density == densityValue || !Box2DLimits::isDensity(density))
        return;
    densityValue = density;
    for (b2FixtureDef* definition : qAsConst(fixtureDefinitions))
        definition->density = float(density);
    for (b2Fixture* fixture : qAsConst(fixtures))
        fixture->SetDensity(float(density));
    pBody->ResetMassData();
    pBody->SetAwake(true);
}

void BodyItem::setFriction(double friction)
{
    if (friction == frictionValue || !Box2DLimits::isCoefficient(friction))
        return;
    frictionValue = friction;
    for (b2FixtureDef* definition : qAsConst(fixtureDefinitions))
        definition->friction = float(friction);
    recreateFixtures();
}

void BodyItem::setRestitution(double restitution)
{
    if (restitution == restitutionValue || !Box2DLimits::isCoefficient(restitution))
        return;
    restitutionValue = restitution;
    for (b2FixtureDef* definition : qAsConst(fixtureDefinitions))
        definition->restitution = float(restitution);
    recreateFixtures();
}

void BodyItem::setLinearDamping(double damping)
{
    if (damping == linearDamping() || !Box2DLimits::isCoefficient(damping))
        return;
    bodyDefinition.linearDamping = float(damping);
    pBody->SetLinearDamping(float(damping));
}

void BodyItem::setAngularDamping(double damping)
{
    if (damping == angularDamping() || !Box2DLimits::isCoefficient(damping))
        return;
    bodyDefinition.angularDamping = float(damping);
    pBody->SetAngularDamping(float(damping));
}

void BodyItem::setAngularVelocity(double velocity)
{
    if (isStatic() || !Box2DLimits::isMagnitude(velocity))
        return;
    if (velocity != 0.0)
        pBody->SetAwake(true);
    pBody->SetAngularVelocity(float(velocity));
    update();
}

void BodyItem::setLinearVelocityX(double x)
{
    if (isStatic() || !Box2DLimits::isMagnitude(x))
        return;
    const b2Vec2 velocity(float(x), pBody->GetLinearVelocity().y);
    if (velocity.LengthSquared() > 0.0f)
        pBody->SetAwake(true);
    pBody->SetLinearVelocity(velocity);
}

void BodyItem::setLinearVelocityY(double y)
{
    if (isStatic() || !Box2DLimits::isMagnitude(y))
        return;
    const b2Vec2 velocity(pBody->GetLinearVelocity().x, float(y));
    if (velocity.LengthSquared() > 0.0f)
        pBody->SetAwake(true);
    pBody->SetLinearVelocity(velocity);
}

void BodyItem::setFilterGroupIndex(int index)
{
    // Box2D keeps the group in 16 bits.
    if (index == groupIndex || index < std::numeric_limits<int16>::min()
        || index > std::numeric_limits<int16>::max())
        return;
    groupIndex = index;
    writeFilter();
}

void BodyItem::setFilterCategories(QString categories)
{
    const FlagsString flags(categories);
    if (flags.text() == this->categories.text())
        return;
    this->categories = flags;
    writeFilter();
}

void BodyItem::setFilterMasks(QString masks)
{
    const FlagsString flags(masks);
    if (flags.text() == this->masks.text())
        return;
    this->masks = flags;
    writeFilter();
}

void BodyItem::writeFilter()
{
    b2Filter filter;
    filter.groupIndex = int16(groupIndex);
    filter.categoryBits = categories.number();
    filter.maskBits = masks.number();
    for (b2FixtureDef* definition : qAsConst(fixtureDefinitions))
        definition->filter = filter;
    for (b2Fixture* fixture : qAsConst(fixtures))
        fixture->SetFilterData(filter);
}

bool BodyItem::isStatic() const
{
    return pBody->GetType() == b2_staticBody;
}

void BodyItem::autoAdjustTexture()
{
    QBrush newBrush = brush();
    const QPixmap texture = newBrush.texture();
    if (texture.isNull())
        return;
    const QRectF bounds = pGraphicsItem->boundingRect();
    const double w = bounds.width();
    const double h = bounds.height();
    newBrush.setTransform(
        QTransform(w / texture.width(), 0, 0, -(h / texture.height()), w * 0.5, h * 0.5));
    setBrush(newBrush);
}

void BodyItem::setBasicPropertiesFrom(BodyItem* pBodyItem, const ScenePicture* picture)
{
    if (!pBodyItem)
        return;
    QBrush newBrush = pBodyItem->brush();
    // A textured brush becomes a picture of what the scene shows under this piece.
    if (ScenePicture::isNeeded(pBodyItem)) {
        const QRectF rect = worldPolygon().boundingRect();
        const QBrush cut
            = picture ? picture->brush(rect) : ScenePicture(pBodyItem, rect).brush(rect);
        if (cut.style() == Qt::TexturePattern)
            newBrush = cut;
    }
    setZValue(pBodyItem->zValue());
    setBodyType(pBodyItem->bodyType());
    setAllowSleeping(pBodyItem->allowSleeping());
    setDensity(pBodyItem->density());
    setFriction(pBodyItem->friction());
    setRestitution(pBodyItem->restitution());
    setFilterGroupIndex(pBodyItem->filterGroupIndex());
    setLinearVelocity(pBodyItem->linearVelocityX(), pBodyItem->linearVelocityY());
    const float spin = pBodyItem->body()->GetAngularVelocity();
    if (spin != 0.0f)
        pBody->SetAwake(true);
    pBody->SetAngularVelocity(spin);
    update();
    setBrush(newBrush);
}

void BodyItem::setLinearVelocity(double x, double y)
{
    if (!Box2DLimits::isMagnitude(x) || !Box2DLimits::isMagnitude(y))
        return;
    pBody->SetLinearVelocity(b2Vec2(float(x), float(y)));
    pBody->SetAwake(true);
}

void BodyItem::setXForm(double x, double y, double theta)
{
    if (!Box2DLimits::isPose(x, y, theta))
        return;
    pBody->SetTransform(b2Vec2(float(x), float(y)), float(theta));
    pBody->SetAwake(true);
    update();
}

void BodyItem::applyForce(QLineF line)
{
    if (pBody->GetType() != b2_dynamicBody || !isVectorAtPoint(line))
        return;
    pBody->ApplyForce(b2Vec2(float(line.dx()), float(line.dy())),
                      b2Vec2(float(line.x1()), float(line.y1())), true);
}

void BodyItem::applyTorque(double torque)
{
    if (pBody->GetType() == b2_dynamicBody && Box2DLimits::isMagnitude(torque))
        pBody->ApplyTorque(float(torque), true);
}

void BodyItem::applyLinearImpulse(QLineF line)
{
    if (pBody->GetType() != b2_dynamicBody || !isVectorAtPoint(line))
        return;
    pBody->ApplyLinearImpulse(b2Vec2(float(line.dx()), float(line.dy())),
                              b2Vec2(float(line.x1()), float(line.y1())), true);
}

void BodyItem::applyAngularImpulse(double impulse)
{
    if (pBody->GetType() == b2_dynamicBody && Box2DLimits::isMagnitude(impulse))
        pBody->ApplyAngularImpulse(float(impulse), true);
}

QPointF BodyItem::position() const
{
    const b2Vec2& position = pBody->GetPosition();
    return QPointF(position.x, position.y);
}

BodyItem::FixtureBatch::FixtureBatch(BodyItem* item, int fixtureCount)
    : body(item->pBody)
    , batched(fixtureCount >= manyFixtures)
    , type(body->GetType())
    , enabled(body->IsEnabled())
    , linearVelocity(body->GetLinearVelocity())
    , angularVelocity(body->GetAngularVelocity())
{
    if (!batched)
        return;
    // Off first: a change of type touches every proxy the body has.
    item->settleProxies();
    body->SetEnabled(false);
    if (type == b2_dynamicBody)
        body->SetType(b2_kinematicBody);
}

BodyItem::FixtureBatch::~FixtureBatch()
{
    if (!batched)
        return;
    if (type == b2_dynamicBody) {
        body->SetType(b2_dynamicBody);
        body->SetLinearVelocity(linearVelocity);
        body->SetAngularVelocity(angularVelocity);
    }
    body->SetEnabled(enabled);
}

void BodyItem::settleProxies()
{
    // Pairing the new proxies empties Box2D's list of them; the contacts this makes touch only
    // at the next step, which then reports them as new.
    if (pBody->IsEnabled() && fixtures.size() >= manyFixtures)
        const_cast<b2ContactManager&>(pBody->GetWorld()->GetContactManager()).FindNewContacts();
}

void BodyItem::setShapes(const QList<b2Shape*>& shapes)
{
    FixtureBatch batch(this, fixtures.size() + shapes.size());
    destroyFixtures();
    deleteFixtureDefinitions();
    for (b2Shape* shape : shapes)
        createFixture(shape);
}

void BodyItem::createFixture(b2Shape* shape)
{
    auto* definition = new b2FixtureDef();
    definition->shape = shape;
    definition->density = float(densityValue);
    definition->friction = float(frictionValue);
    definition->restitution = float(restitutionValue);
    definition->isSensor = false;
    definition->filter.groupIndex = int16(groupIndex);
    definition->filter.categoryBits = categories.number();
    definition->filter.maskBits = masks.number();
    fixtureDefinitions.append(definition);
    fixtures.append(pBody->CreateFixture(definition));
}

void BodyItem::destroyFixtures()
{
    // Box2D looks a fixture up from the newest on: the newest goes first.
    FixtureBatch batch(this, fixtures.size());
    for (auto fixture = fixtures.crbegin(); fixture != fixtures.crend(); ++fixture)
        pBody->DestroyFixture(*fixture);
    fixtures.clear();
}

void BodyItem::deleteFixtureDefinitions()
{
    for (b2FixtureDef* definition : qAsConst(fixtureDefinitions))
        delete definition->shape;
    qDeleteAll(fixtureDefinitions);
    fixtureDefinitions.clear();
}

void BodyItem::recreateFixtures()
{
    FixtureBatch batch(this, 2 * fixtures.size());
    destroyFixtures();
    for (b2FixtureDef* definition : qAsConst(fixtureDefinitions))
        fixtures.append(pBody->CreateFixture(definition));
}

void BodyItem::initialiseGraphics(double x, double y, double theta)
{
    pGraphicsItem->setPos(x, y);
    pGraphicsItem->setRotation(theta * 57.29577791868205);
    QBrush newBrush = isStatic() ? QBrush(QPixmap(QStringLiteral(":/images/wall.png")))
                                 : Nemu::Toolbox::randomBrush();
    newBrush.setTransform(QTransform(TextureMatrix));
    setBrush(newBrush);
    CosmeticPens::apply(pGraphicsItem);
    pGraphicsItem->setFlag(QGraphicsItem::ItemIsSelectable);
    zValueCounter += 1.0;
    pGraphicsItem->setZValue(zValueCounter);
}

bool BodyItem::isVectorAtPoint(const QLineF& line)
{
    return Box2DLimits::isPoint(line.p1()) && Box2DLimits::isMagnitude(line.dx())
        && Box2DLimits::isMagnitude(line.dy());
}

QTransform BodyItem::itemTransform() const
{
    QTransform transform;
    const b2Vec2& position = pBody->GetPosition();
    transform.translate(position.x, position.y);
    transform.rotate(pGraphicsItem->rotation());
    transform.scale(pGraphicsItem->transform().m11(), pGraphicsItem->transform().m22());
    return transform;
}
