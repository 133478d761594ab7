#pragma once

#include "General/XPropertyList.h"
#include "Physics/PhysicsItemList.h"
#include "Physics/PhysicsWorldState.h"

#include <QHash>
#include <QLineF>
#include <QObject>
#include <QPointF>
#include <QPolygonF>
#include <QSet>
#include <QTimer>

class BodyItem;
class DistanceJoint;
class ForceItem;
class GearItem;
class JointItem;
class PolygonItem;
class PrismaticJoint;
class PulleyJoint;
class RevoluteJoint;
class SpringForce;
class BalloonItem;
class CircleItem;
class RectangleItem;
class b2Body;
class b2MouseJoint;
class b2World;
class ContactListener;
class GraphicsScene;

// The model of the scene and the driver of the simulation, one for the whole process. It owns
// the Box2D world with its background body, the contact listener, the graphics scene and every
// item, and its timer's ticks are the simulation. Units are metres, kilograms and seconds with
// y up; Box2D's floats and radians stay behind this class and the items.
class PhysicsWorld : public QObject
{
    Q_OBJECT
    Q_PROPERTY(double GravityX READ gravityX WRITE setGravityX NOTIFY gravityXChanged USER true)
    Q_PROPERTY(double GravityY READ gravityY WRITE setGravityY NOTIFY gravityYChanged USER true)
    Q_PROPERTY(int StepFrequency READ stepFrequency WRITE setStepFrequency NOTIFY
                   stepFrequencyChanged USER true)
    Q_PROPERTY(int VelocityIterations READ velocityIterations WRITE setVelocityIterations NOTIFY
                   velocityIterationsChanged USER true)
    Q_PROPERTY(int PositionIterations READ positionIterations WRITE setPositionIterations NOTIFY
                   positionIterationsChanged USER true)
    Q_PROPERTY(bool WarmStarting READ warmStarting WRITE setWarmStarting NOTIFY warmStartingChanged
                   USER true)
    Q_PROPERTY(bool ContinuousPhysics READ continuousPhysics WRITE setContinuousPhysics NOTIFY
                   continuousPhysicsChanged USER true)
    Q_PROPERTY(double Seconds READ seconds WRITE setSeconds USER true)
    Q_PROPERTY(bool Render READ render WRITE setRender USER true)
    Q_PROPERTY(int BodyCount READ bodyCount USER true)
    Q_PROPERTY(int JointCount READ jointCount USER true)

public:
    // Marks the run of a script. The code that started the script may still hold any item, so
    // an item that the script removes leaves the world at once but is deleted only when
    // control is back in the event loop.
    class ScriptGuard
    {
    public:
        ScriptGuard();
        ~ScriptGuard();
        ScriptGuard(const ScriptGuard&) = delete;
        ScriptGuard& operator=(const ScriptGuard&) = delete;
    };

    static PhysicsWorld* instance();
    // Deletes the world and every item in it; instance() then makes a fresh one.
    static void destroy();
    // The Box2D world of the instance, for the items that build bodies and joints in it.
    static b2World* box2DWorld() { return sharedBox2DWorld; }

    ~PhysicsWorld() override;

    double gravityX() const;
    double gravityY() const;
    int stepFrequency() const;
    int velocityIterations() const { return velocityIterationCount; }
    int positionIterations() const { return positionIterationCount; }
    bool warmStarting() const { return warmStartingEnabled; }
    bool continuousPhysics() const { return continuousPhysicsEnabled; }
    double seconds() const { return simulatedSeconds; }
    bool render() const { return renderFrames; }
    int bodyCount() const;
    int jointCount() const;
    double timeStep() const { return stepSeconds; }
    // Whether a script is running now: what it can reach must not be deleted under it.
    bool scriptRunning() const { return scriptDepth > 0; }
    // Keeps the index of names true when an item of the world takes a new name.
    void itemRenamed(PhysicsItem* item, const QString& oldName);

    // The reset of a new scene: stops, removes every item, restores the stepping defaults.
    // Gravity stays as it was.
    void clear();
    // The open box of a new scene: a floor and two walls, 20 m wide and 16 m high on y = 0.
    void createGround();

    GraphicsScene* graphicsScene() const { return scene; }
    b2World* box2D() const { return world; }
    b2Body* backgroundBody() const { return background; }
    b2MouseJoint* mouseJoint() const { return mouseJointPointer; }
    ContactListener* contactListener() const { return listener; }

signals:
    void gravityXChanged(double gravityX);
    void gravityYChanged(double gravityY);
    void stepFrequencyChanged(int stepFrequency);
    void velocityIterationsChanged(int velocityIterations);
    void positionIterationsChanged(int positionIterations);
    void warmStartingChanged(bool warmStarting);
    void continuousPhysicsChanged(bool continuousPhysics);
    void started();
    void stopped();
    void stepFinished();

public slots:
    void setGravityX(double gravityX);
    void setGravityY(double gravityY);
    void setStepFrequency(int stepFrequency);
    void setVelocityIterations(int velocityIterations);
    void setPositionIterations(int positionIterations);
    void setWarmStarting(bool warmStarting);
    void setContinuousPhysics(bool continuousPhysics);
    void setSeconds(double seconds);
    void setRender(bool render);
    void start();
    void stop();
    bool running() const;
    void toggle();
    int physicsItemInstanceCounter() const;
    void setPhysicsItemInstanceCounter(int counter);
    XPropertyList properties();
    void getProperties(XPropertyList& list);
    void setProperties(XPropertyList list);
    bool setSelectionSetProperty(QString propertyName, QVariant value);
    void getState(PhysicsWorldState& state);
    void setState(PhysicsWorldState state);
    // Drags an active body of the world by the point (x, y) in metres with a soft joint
    // anchored to the background, in place of any earlier one; bodies without mass are not
    // dragged. The tool moves the joint's target.
    void createMouseJoint(BodyItem* pBodyItem, double x, double y);
    void destroyMouseJoint();
    // Moves the point the mouse joint pulls towards, in metres.
    void setMouseJointTarget(double x, double y);
    void step();

    PhysicsItemList items() const { return itemList; }
    PhysicsItemList activeItems() const;
    QList<BodyItem*> bodyItems() const;
    QList<JointItem*> jointItems() const;
    QList<JointItem*> jointList(BodyItem* pBodyItem) const;
    QList<ForceItem*> forceItems() const;
    QList<ForceItem*> forceList(BodyItem* pBodyItem) const;
    // The joints and then the forces that hang on a body.
    PhysicsItemList dependentPhysicsItems(BodyItem* pBodyItem) const;
    PhysicsItem* physicsItemFromName(QString name) const;
    PhysicsItem* physicsItemFromGraphicsItem(QGraphicsItem* graphicsItem) const;
    BodyItem* bodyItemFromGraphicsItem(QGraphicsItem* graphicsItem) const;
    // Constant time through Box2D's user data; null for the background body and for a body
    // whose item has been removed.
    BodyItem* bodyItemFromBody(b2Body* body) const;
    JointItem* jointItemFromGraphicsItem(QGraphicsItem* graphicsItem) const;
    ForceItem* forceItemFromGraphicsItem(QGraphicsItem* graphicsItem) const;
    QRectF itemsBoundingRect() const;
    bool contains(PhysicsItem* item) const;
    void selectAll();
    void deselectAll();

    // Factories: theta in radians, sizes in metres. The item stands active in the scene.
    RectangleItem* createRectangle(double x, double y, double theta, double w, double h);
    CircleItem* createCircle(double x, double y, double theta, double r);
    BalloonItem* createBalloon(double x, double y, double theta, double r);
    // The outline in world coordinates; the body stands at the centre of its bounding box.
    PolygonItem* createPolygon(QPolygonF polygon);
    // Tooth size 0.4 and divisor 0.6, not the gear tool's settings.
    GearItem* createGear(double x, double y, double theta, double r);
    // Points in world coordinates; both bodies must be in the world, else nothing is made
    // and the result is null. The factories make nothing of values Box2D cannot take.
    SpringForce* createSpringForce(BodyItem* pItem1, BodyItem* pItem2, QPointF p1, QPointF p2,
                                   double k = 500.0, double damping = 5.0);
    // A body of default geometry at the origin by its exact class name, else null.
    PhysicsItem* createPhysicsItem(QString className);
    // Joint factories: points in world coordinates; a null second body item joins the first
    // to the background body. The first body must be in the world, and the second, if any,
    // another one of the world.
    DistanceJoint* createDistanceJoint(BodyItem* pItem1, BodyItem* pItem2, QPointF p1, QPointF p2);
    RevoluteJoint* createRevoluteJoint(BodyItem* pItem1, BodyItem* pItem2, QPointF p);
    PrismaticJoint* createPrismaticJoint(BodyItem* pItem1, BodyItem* pItem2, QLineF line1,
                                         QLineF line2);
    PulleyJoint* createPulleyJoint(BodyItem* pItem1, BodyItem* pItem2, QPolygonF polygon);

    // A copy of a body of the world: an item of the same class and default geometry with the
    // body's properties laid on it, so it stands exactly on the body, moving as it moves, under
    // a fresh name. Joints and forces on the body are not copied. Null for any other argument.
    // Neither this nor the next is undoable.
    BodyItem* clone(BodyItem* pBodyItem);
    // Copies the selected bodies half a metre to the right of the selection's bounding
    // rectangle, with each selected joint and spring whose bodies are all copied or the
    // background; others are left behind. Returns the copies, bodies, then joints, then
    // forces, and selects them beside their sources.
    PhysicsItemList cloneSelectedItems();

    // An item removed from the world does not come back.
    void addPhysicsItem(PhysicsItem* item);
    void removePhysicsItem(PhysicsItem* item);
    void removeBody(BodyItem* pBodyItem);
    void removeJoint(JointItem* joint);
    void removeForce(ForceItem* pForceItem);
    void removeAllDynamicBodies();
    void removeAllStaticBodies();
    void removeAllBodies();

private:
    PhysicsWorld();

    // Scripts run inside loops over the items (the step, start, stop, a restore). An item
    // removed meanwhile leaves the scene, the list and the script globals at once, but is
    // deleted only when the outermost loop has ended, so no loop and no buffered contact
    // touches a freed item or fixture.
    class IterationGuard;
    // Stores gravity in m/s² and wakes every body; false if nothing changed.
    bool setGravity(double x, double y);
    // A joint like `joint` between two copies of its bodies, its anchors moved by dx in x.
    JointItem* copyJoint(JointItem* joint, BodyItem* first, BodyItem* second, double dx);
    // Deletes the removed items unless a loop or a script still runs.
    void deleteRemovedItems();
    void scheduleDeletion(int delayMilliseconds = 0);
    // Whether a body item may hang a joint on these bodies: the first of this world, the
    // second of this world or none, and not the first.
    bool areJointBodies(BodyItem* first, BodyItem* second) const;
    // Like contains(), in constant time, for a pointer to an item that exists.
    bool isInWorld(PhysicsItem* item) const;
    // A body whose pose or velocity the solver has taken out of the finite numbers, which
    // absurd but accepted values can still do, would spread NaN to everything it touches
    // and, through the background body, to every later scene. It is put back where it was
    // last drawn, at rest, with fresh contacts and joints; the background body at the origin.
    void repairNonFiniteBodies();
    void repairBody(b2Body* body);
    // Takes an item out of the scene, the list and the script globals and deletes it, or,
    // inside a loop over the items, marks it for deletion when the loop ends.
    void detachItem(PhysicsItem* item);
    void dispatchContacts();
    bool isRemoved(PhysicsItem* item) const;
    void saveFrame();

    static PhysicsWorld* worldInstance;
    static b2World* sharedBox2DWorld;

    QTimer timer;
    b2World* world;
    b2Body* background;
    b2MouseJoint* mouseJointPointer = nullptr;
    ContactListener* listener;
    GraphicsScene* scene;
    int frameCount = 0;
    PhysicsItemList itemList;
    double stepSeconds = 1.0 / 60.0;
    int velocityIterationCount = 8;
    int positionIterationCount = 8;
    bool warmStartingEnabled = true;
    bool continuousPhysicsEnabled = true;
    double simulatedSeconds = 0.0;
    bool renderFrames = false;

    int iterationDepth = 0;
    int scriptDepth = 0;
    bool deletionScheduled = false;
    QSet<PhysicsItem*> removedItems;
    // The items of the list by name: names are unique among them.
    QHash<QString, PhysicsItem*> namedItems;
};
