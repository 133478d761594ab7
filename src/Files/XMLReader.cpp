#include "Files/XMLReader.h"

#include "Application/Application.h"
#include "Files/SceneValues.h"
#include "NemuGeometry/Geometry.h"
#include "Physics/BalloonItem.h"
#include "Physics/Box2DLimits.h"
#include "Physics/DistanceJoint.h"
#include "Physics/GearItem.h"
#include "Physics/PhysicsWorld.h"
#include "Physics/PolygonItem.h"
#include "Physics/PrismaticJoint.h"
#include "Physics/PulleyJoint.h"
#include "Physics/RectangleItem.h"
#include "Physics/RevoluteJoint.h"
#include "Physics/SpringForce.h"
#include "View/GraphicsView.h"

#include <QMetaProperty>

namespace {
// Scene documents are three levels deep; what a document nests deeper is not ours.
const int maximumDepth = 8;
// More items than any scene needs; a document that holds more is cut there.
const int maximumItems = 200000;

// A creation argument; what is no finite number counts as missing, and the property push
// that follows refuses it as well.
double number(const QXmlStreamAttributes& attributes, const char* name)
{
    const double value = attributes.value(QLatin1String(name)).toDouble();
    return qIsFinite(value) ? value : 0.0;
}

QPointF point(const QXmlStreamAttributes& attributes, const char* name)
{
    return Nemu::Geometry::pointFromString(attributes.value(QLatin1String(name)).toString());
}

QPointF point(const QXmlStreamAttributes& attributes, const char* x, const char* y)
{
    return QPointF(number(attributes, x), number(attributes, y));
}
} // namespace

XMLReader::XMLReader(QIODevice* device, GraphicsView* view)
    : reader(device)
    , graphicsView(view)
{
    itemsByName.insert(QString(), nullptr);
}

void XMLReader::read()
{
    const PhysicsItem::EventScriptBlocker blocker;
    while (!reader.atEnd()) {
        if (reader.isStartElement()) {
            ++depth;
            if (depth <= maximumDepth)
                readStartElement();
        } else if (reader.isEndElement()) {
            --depth;
        }
        emit elementRead(int(reader.device() ? reader.device()->pos() : 0));
        reader.readNext();
    }
    // Every item made while reading advanced the counter.
    PhysicsWorld::instance()->setPhysicsItemInstanceCounter(instanceCounter);
}

void XMLReader::readStartElement()
{
    const QString name = reader.name().toString();
    const QXmlStreamAttributes attributes = reader.attributes();
    PhysicsWorld* world = PhysicsWorld::instance();
    if (name == QLatin1String("Scene")) {
        const QString version = attributes.value(QLatin1String("Version")).toString();
        if (version != QCoreApplication::applicationVersion()) {
            Application::report(
                tr("Trying to load a scene which was created with another version of the "
                   "application. ")
                    + tr("(Scene version: %1 Application version: %2)")
                          .arg(version, QCoreApplication::applicationVersion()),
                Brivane::Warning);
        }
    } else if (name == QLatin1String("PhysicsWorld")) {
        instanceCounter = attributes.value(QLatin1String("InstanceCounter")).toInt(nullptr, 10);
        world->setPhysicsItemInstanceCounter(instanceCounter);
        applyProperties(world, attributes);
    } else if (name == QLatin1String("GraphicsView")) {
        if (graphicsView)
            applyProperties(graphicsView, attributes);
    } else if (createdItems < maximumItems) {
        if (PhysicsItem* item = createPhysicsItem(name, attributes)) {
            ++createdItems;
            itemsByName.insert(attributes.value(QLatin1String("Name")).toString(), item);
            applyProperties(item, attributes);
        }
    }
}

PhysicsItem* XMLReader::createPhysicsItem(const QString& elementName,
                                          const QXmlStreamAttributes& attributes)
{
    PhysicsWorld* world = PhysicsWorld::instance();
    double x = number(attributes, "X");
    double y = number(attributes, "Y");
    double angle = number(attributes, "Angle");
    // A body that play carried beyond the world's range is made at the origin rather than
    // lost; the property push then puts back what of its pose it can.
    if (!Box2DLimits::isPose(x, y, angle))
        x = y = angle = 0.0;
    if (elementName == QLatin1String("RectangleItem"))
        return world->createRectangle(x, y, angle, number(attributes, "Width"),
                                      number(attributes, "Height"));
    if (elementName == QLatin1String("CircleItem"))
        return world->createCircle(x, y, angle, number(attributes, "Radius"));
    if (elementName == QLatin1String("PolygonItem"))
        return world->createPolygon(Nemu::Geometry::polygonFromString(
            attributes.value(QLatin1String("GeometryString")).toString()));
    if (elementName == QLatin1String("BalloonItem"))
        return world->createBalloon(x, y, angle, number(attributes, "Radius"));
    if (elementName == QLatin1String("GearItem"))
        return world->createGear(x, y, angle, number(attributes, "PitchCircleRadius"));

    const bool isJoint = elementName.endsWith(QLatin1String("Joint"));
    if (!isJoint && elementName != QLatin1String("SpringForce"))
        return nullptr;
    bool found1 = false;
    bool found2 = false;
    BodyItem* body1 = namedBody(attributes, QStringLiteral("BodyItem1Name"), &found1);
    BodyItem* body2 = namedBody(attributes, QStringLiteral("BodyItem2Name"), &found2);
    if (!found1 || !found2)
        return nullptr;
    const QPointF anchor1 = point(attributes, "Anchor1");
    const QPointF anchor2 = point(attributes, "Anchor2");
    if (elementName == QLatin1String("DistanceJoint"))
        return world->createDistanceJoint(body1, body2, anchor1, anchor2);
    if (elementName == QLatin1String("RevoluteJoint"))
        return world->createRevoluteJoint(body1, body2, anchor1);
    if (elementName == QLatin1String("PrismaticJoint"))
        return world->createPrismaticJoint(
            body1, body2,
            QLineF(point(attributes, "BodyItem1AnchorX", "BodyItem1AnchorY"), anchor1),
            QLineF(point(attributes, "BodyItem2AnchorX", "BodyItem2AnchorY"), anchor2));
    if (elementName == QLatin1String("PulleyJoint"))
        return world->createPulleyJoint(
            body1, body2,
            QPolygonF({anchor1, point(attributes, "GroundAnchorA_X", "GroundAnchorA_Y"),
                       point(attributes, "GroundAnchorB_X", "GroundAnchorB_Y"), anchor2}));
    if (elementName == QLatin1String("SpringForce"))
        return world->createSpringForce(body1, body2, anchor1, anchor2, number(attributes, "k"),
                                        number(attributes, "Damping"));
    return nullptr;
}

BodyItem* XMLReader::namedBody(const QXmlStreamAttributes& attributes, const QString& attribute,
                               bool* found) const
{
    const auto entry = itemsByName.constFind(attributes.value(attribute).toString());
    if (entry == itemsByName.constEnd())
        return nullptr;
    // A name filed for a joint or a force names no body.
    BodyItem* body = entry.value() ? entry.value()->toBodyItem() : nullptr;
    *found = body || !entry.value();
    return body;
}

void XMLReader::applyProperties(QObject* object, const QXmlStreamAttributes& attributes)
{
    const QMetaObject* metaObject = object->metaObject();
    for (const QXmlStreamAttribute& attribute : attributes) {
        const QByteArray name = attribute.name().toLocal8Bit();
        const int index = metaObject->indexOfProperty(name.constData());
        if (index < 0)
            continue;
        const QMetaProperty property = metaObject->property(index);
        if (!property.isWritable())
            continue;
        const int type = property.isEnumType() ? int(QMetaType::Int) : property.userType();
        const QVariant value = SceneValues::variantFromString(attribute.value().toString(), type);
        if (value.isValid())
            property.write(object, value);
    }
}
