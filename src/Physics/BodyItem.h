#pragma once

#include "Physics/FlagsString.h"
#include "Physics/PhysicsItem.h"

#include <QLineF>
#include <QList>
#include <QPointF>
#include <QPolygonF>
#include <box2d/box2d.h>

class QGraphicsEllipseItem;
class ScenePicture;

// Base of everything solid in a scene: one b2Body and one graphics item kept in step. It owns
// the fixture definitions beside the live fixtures, since Box2D cannot change a live fixture's
// friction, restitution or shape: the definitions are what fixtures are rebuilt from. Angles
// that users and scripts see are degrees; Box2D keeps radians in float.
class BodyItem : public PhysicsItem
{
    Q_OBJECT
    Q_CLASSINFO("BodyItem", "Body")
    Q_CLASSINFO("X", "singleStep=0.1;decimals=2;")
    Q_CLASSINFO("Y", "singleStep=0.1;decimals=2;")
    Q_CLASSINFO("Angle", "singleStep=1.0;decimals=2;")
    Q_CLASSINFO("Density", "singleStep=0.1;decimals=2;minimum=0.0;")
    Q_CLASSINFO("Friction", "singleStep=0.05;decimals=2;minimum=0.0;maximum=1.0;")
    Q_CLASSINFO("Restitution", "singleStep=0.05;decimals=2;minimum=0.0;maximum=1.0;")
    Q_CLASSINFO("LinearDamping", "singleStep=0.01;decimals=2;minimum=0.0;maximum=1.0;")
    Q_CLASSINFO("AngularDamping", "singleStep=0.01;decimals=2;minimum=0.0;maximum=1.0;")
    Q_CLASSINFO("FilterGroupIndex", "minimum=-8;maximum=8;")
    Q_CLASSINFO("FilterCategories", "maxLength=16;")
    Q_CLASSINFO("FilterMasks", "maxLength=16;")
    Q_PROPERTY(QString OnContact READ onContact WRITE setOnContact USER true)
    Q_PROPERTY(BodyType BodyType READ bodyType WRITE setBodyType USER true)
    Q_PROPERTY(bool Bullet READ isBullet WRITE setBullet USER true)
    Q_PROPERTY(bool AllowSleeping READ allowSleeping WRITE setAllowSleeping USER true)
    Q_PROPERTY(bool FixedRotation READ fixedRotation WRITE setFixedRotation USER true)
    Q_PROPERTY(bool ShowLocalCenter READ showLocalCenter WRITE setShowLocalCenter USER true)
    Q_PROPERTY(double X READ positionX WRITE setPositionX USER true)
    Q_PROPERTY(double Y READ positionY WRITE setPositionY USER true)
    Q_PROPERTY(double Angle READ angle WRITE setAngle USER true)
    Q_PROPERTY(double Density READ density WRITE setDensity USER true)
    Q_PROPERTY(double Friction READ friction WRITE setFriction USER true)
    Q_PROPERTY(double Restitution READ restitution WRITE setRestitution USER true)
    Q_PROPERTY(double LinearDamping READ linearDamping WRITE setLinearDamping USER true)
    Q_PROPERTY(double AngularDamping READ angularDamping WRITE setAngularDamping USER true)
    Q_PROPERTY(double Mass READ mass USER true)
    Q_PROPERTY(double AngularVelocity READ angularVelocity WRITE setAngularVelocity USER true)
    Q_PROPERTY(double LinearVelocityX READ linearVelocityX WRITE setLinearVelocityX USER true)
    Q_PROPERTY(double LinearVelocityY READ linearVelocityY WRITE setLinearVelocityY USER true)
    Q_PROPERTY(int FilterGroupIndex READ filterGroupIndex WRITE setFilterGroupIndex USER true)
    Q_PROPERTY(QString FilterCategories READ filterCategories WRITE setFilterCategories USER true)
    Q_PROPERTY(QString FilterMasks READ filterMasks WRITE setFilterMasks USER true)
    Q_PROPERTY(int Shapes READ shapeCount USER true)
    Q_PROPERTY(QBrush Brush READ brush WRITE setBrush)

public:
    // Of a fixed underlying type, so that any number a script or a file gives is a value of
    // it, which setBodyType then refuses.
    enum BodyType : int { StaticBody = 0, KinematicBody = 1, DynamicBody = 2 };
    Q_ENUM(BodyType)

    // theta in radians.
    BodyItem(double x, double y, double theta);
    ~BodyItem() override;

    bool isActive() const override;
    void setActive(bool active) override;
    void update() override;
    // The outline of the body in world coordinates at this moment, in normal form.
    virtual QPolygonF worldPolygon() const = 0;
    // Resizes the body by a factor; refused as a whole where a size would fall below 0.1 m.
    virtual void scale(double factor) = 0;
    // The body's area as world-coordinate triangles.
    virtual QList<QPolygonF> triangles() const;

    b2Body* body() const { return pBody; }
    void runOnContact(const QScriptValue& other);
    // Puts the body back where its graphics item stands, which was finite when it was drawn.
    void restoreDrawnPose();
    // Dresses this new body as a piece of another: its look, its physical values and its
    // velocities. A textured brush becomes a picture of the scene under this body, cut from
    // `picture` where the caller rendered one for all its pieces.
    void setBasicPropertiesFrom(BodyItem* pBodyItem, const ScenePicture* picture);

    // Degrees to Box2D radians and back, through the float factors that the scene files of
    // earlier versions were written with.
    static double degreesToRadians(double degrees);
    static double radiansToDegrees(double radians);

public slots:
    QString onContact() const { return onContactScript; }
    BodyType bodyType() const;
    bool isBullet() const;
    bool allowSleeping() const;
    bool fixedRotation() const;
    bool showLocalCenter() const { return localCenterShown; }
    double positionX() const;
    double positionY() const;
    double angle() const;
    double density() const { return densityValue; }
    double friction() const { return frictionValue; }
    double restitution() const { return restitutionValue; }
    double linearDamping() const;
    double angularDamping() const;
    double mass() const;
    double angularVelocity() const;
    double linearVelocityX() const;
    double linearVelocityY() const;
    int filterGroupIndex() const { return groupIndex; }
    QString filterCategories() const { return categories.text(); }
    QString filterMasks() const { return masks.text(); }
    int shapeCount() const { return fixtures.size(); }

    void setOnContact(QString script);
    void setBodyType(BodyType type);
    void setBullet(bool bullet);
    void setAllowSleeping(bool allow);
    void setFixedRotation(bool fixed);
    void setShowLocalCenter(bool show);
    void setPositionX(double x);
    void setPositionY(double y);
    void setAngle(double angle);
    void setDensity(double density);
    void setFriction(double friction);
    void setRestitution(double restitution);
    void setLinearDamping(double damping);
    void setAngularDamping(double damping);
    void setAngularVelocity(double velocity);
    void setLinearVelocityX(double x);
    void setLinearVelocityY(double y);
    void setFilterGroupIndex(int index);
    void setFilterCategories(QString categories);
    void setFilterMasks(QString masks);

    bool isStatic() const;
    void autoAdjustTexture();
    void setBasicPropertiesFrom(BodyItem* pBodyItem) { setBasicPropertiesFrom(pBodyItem, nullptr); }
    void setLinearVelocity(double x, double y);
    void setXForm(double x, double y, double theta);
    void applyForce(QLineF line);
    void applyTorque(double torque);
    void applyLinearImpulse(QLineF line);
    void applyAngularImpulse(double impulse);
    QPointF position() const;
    QList<b2Fixture*> shapes() const { return fixtures; }

protected:
    // Replaces every fixture and definition with one for each of the new shapes, which the
    // body then owns.
    void setShapes(const QList<b2Shape*>& shapes);
    // Rebuilds every fixture from its definition, after a definition changed.
    void recreateFixtures();
    // The common graphics set-up of the subclass constructors; theta in radians.
    void initialiseGraphics(double x, double y, double theta);
    // Item coordinates to world coordinates, as the graphics item stands.
    QTransform itemTransform() const;

    QList<b2FixtureDef*> fixtureDefinitions;

private:
    // For each fixture it makes or destroys, Box2D works the body's mass out anew over all
    // its fixtures, and looks the fixture's proxy up among all proxies made since the last
    // step: quadratic in outlines of thousands of triangles. Changes of that many fixtures
    // run inside a batch: meanwhile the body is switched off, so that its fixtures have no
    // proxies, and kinematic, which has no mass; at the end the mass is worked out and the
    // proxies are made once. The body keeps its velocities; its contacts and the forces
    // applied for the next step are dropped, as Box2D drops them when a body changes type.
    // Changes of fewer fixtures go to Box2D one by one.
    class FixtureBatch
    {
    public:
        FixtureBatch(BodyItem* item, int fixtureCount);
        ~FixtureBatch();

    private:
        b2Body* body;
        bool batched;
        b2BodyType type;
        bool enabled;
        b2Vec2 linearVelocity;
        float angularVelocity;
    };

    void createFixture(b2Shape* shape);
    void destroyFixtures();
    void deleteFixtureDefinitions();
    // Before the body's proxies are destroyed: for each, Box2D searches every proxy made since
    // its last step, which is quadratic in a body of thousands of fixtures made in one pause.
    void settleProxies();
    void writeFilter();
    // Whether a line is a force or an impulse that Box2D can take: a vector at a point.
    static bool isVectorAtPoint(const QLineF& line);

    static double zValueCounter;

    QGraphicsEllipseItem* centreMarker = nullptr;
    b2BodyDef bodyDefinition;
    b2Body* pBody = nullptr;
    QList<b2Fixture*> fixtures;
    QString onContactScript;
    bool localCenterShown = false;
    double densityValue = 1.0;
    double frictionValue;
    double restitutionValue;
    int groupIndex = 0;
    // The text and the number of a filter come from one conversion of the value given.
    FlagsString categories {QStringLiteral("A")};
    FlagsString masks {QStringLiteral("ABCDEFGHIJKLMNOP")};
};
Q_DECLARE_METATYPE(BodyItem*)
