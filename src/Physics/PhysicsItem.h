#pragma once

#include "General/XPropertyList.h"

#include <QBrush>
#include <QObject>
#include <QPolygonF>
#include <QScriptValue>
#include <QString>

class BodyItem;
class ForceItem;
class JointItem;
class QGraphicsItem;
class QKeyEvent;

// Base of everything that lives in a scene: bodies, joints and forces. It joins three things
// under one name: the declared properties that are the item's whole editable state, the
// graphics item that draws it (owned, set by the subclass), and the script object that stands
// under the name on the engine's global object. Items are owned by the world and must be
// deleted through it, which also takes their name off the global object.
class PhysicsItem : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("PhysicsItem", "Physics Item")
    Q_CLASSINFO("ZValue", "singleStep=1.00;")
    Q_CLASSINFO("Opacity", "singleStep=0.05;minimum=0.0;maximum=1.0;")
    Q_PROPERTY(QString Name READ name WRITE setName USER true)
    Q_PROPERTY(double ZValue READ zValue WRITE setZValue USER true)
    Q_PROPERTY(double Opacity READ opacity WRITE setOpacity USER true)
    Q_PROPERTY(QString OnStart READ onStart WRITE setOnStart USER true)
    Q_PROPERTY(QString OnStop READ onStop WRITE setOnStop USER true)
    Q_PROPERTY(QString OnUpdate READ onUpdate WRITE setOnUpdate USER true)
    Q_PROPERTY(QString OnKeyPress READ onKeyPress WRITE setOnKeyPress USER true)
    Q_PROPERTY(QString OnKeyRelease READ onKeyRelease WRITE setOnKeyRelease USER true)

public:
    // The value of type(): which item class this is.
    enum PhysicsItemType {
        RectangleItemType = 0,
        CircleItemType = 1,
        PolygonItemType = 2,
        BalloonItemType = 4,
        GearItemType = 5,
        DistanceJointType = 6,
        RevoluteJointType = 7,
        PrismaticJointType = 8,
        PulleyJointType = 9,
        SpringForceType = 12
    };

    // While one exists no event script runs: the setters that a scene being read calls would
    // otherwise run the scene's own OnUpdate scripts before the user has played it.
    class EventScriptBlocker
    {
    public:
        EventScriptBlocker() { ++eventScriptBlockers; }
        ~EventScriptBlocker() { --eventScriptBlockers; }
        EventScriptBlocker(const EventScriptBlocker&) = delete;
        EventScriptBlocker& operator=(const EventScriptBlocker&) = delete;
    };

    PhysicsItem();
    ~PhysicsItem() override;

    virtual int type() const = 0;
    virtual bool isActive() const = 0;
    virtual void setActive(bool active) = 0;
    // Brings the graphics item up to date with the physics object, does the per-step work of
    // the item and runs its OnUpdate script. Called at each step and after state changes.
    virtual void update();
    // The item's properties as an undo snapshot keeps them: those of the previous snapshot,
    // shared with it, where no value has changed since.
    XPropertyList snapshot();
    // Writes a snapshot's values back, unless the item holds them all already.
    void restore(const XPropertyList& list);
    // Points in item coordinates at which tools snap.
    virtual QPolygonF snapPoints() const;
    virtual QString debugInfo() const;

    QString name() const { return itemName; }
    double zValue() const;
    double opacity() const;
    QString onStart() const { return onStartScript; }
    QString onStop() const { return onStopScript; }
    QString onUpdate() const { return onUpdateScript; }
    QString onKeyPress() const { return onKeyPressScript; }
    QString onKeyRelease() const { return onKeyReleaseScript; }

    void runOnStart();
    void runOnStop();
    void runOnUpdate();
    void runOnKeyPress(QKeyEvent* event);
    void runOnKeyRelease(QKeyEvent* event);

    // The item as a body, or null if it is a joint or a force.
    BodyItem* toBodyItem();
    // The item as a joint, or null if it is a body or a force.
    JointItem* toJointItem();
    // The item as a force, or null if it is a body or a joint.
    ForceItem* toForceItem();

    // A script value wrapping this item, for the engine's global object.
    QScriptValue toScriptValue() const;

    static int physicsItemInstanceCounter;
    static int eventScriptBlockers;

public slots:
    void setName(QString newName);
    void setZValue(double zValue);
    void setOpacity(double opacity);
    void setOnStart(QString script);
    void setOnStop(QString script);
    void setOnUpdate(QString script);
    void setOnKeyPress(QString script);
    void setOnKeyRelease(QString script);
    QGraphicsItem* graphicsItem() const { return pGraphicsItem; }
    void setBrush(QBrush brush);
    QBrush brush() const;
    XPropertyList properties();
    void getProperties(XPropertyList& list);
    void setProperties(XPropertyList list);

protected:
    // Compiles an event script into the function `functionName` of the item's script object.
    // The text is kept only if it is the body of one function: a text that closes the function
    // early and adds statements of its own is refused, so assigning a script never runs code.
    void setEventScript(QString& field, const char* functionName, const QString& parameter,
                        const QString& script);
    // Calls the compiled event function with the item as `this`. Does nothing for an inactive
    // item unless `evenIfInactive`, or when the text is empty.
    void runEventScript(const QString& field, const char* functionName,
                        const QScriptValueList& arguments, bool evenIfInactive = false);

    QGraphicsItem* pGraphicsItem = nullptr;

private:
    QString uniqueName() const;
    // Whether a name can be given to an item: an identifier that nothing else in the world
    // or on the engine's global object holds.
    static bool isFreeName(const QString& name);

    QString itemName;
    QString onStartScript;
    QString onStopScript;
    QString onUpdateScript;
    QString onKeyPressScript;
    QString onKeyReleaseScript;
    // The event scripts running now, by their text field.
    QList<const QString*> runningScripts;
    XPropertyList lastSnapshot;
};
Q_DECLARE_METATYPE(PhysicsItem*)
