#include "Files/XMLWriter.h"

#include "Files/SceneValues.h"
#include "Physics/BodyItem.h"
#include "Physics/ForceItem.h"
#include "Physics/JointItem.h"
#include "Physics/PhysicsWorld.h"
#include "View/GraphicsView.h"

#include <QCoreApplication>
#include <QMetaProperty>

XMLWriter::XMLWriter(QString* document)
    : QXmlStreamWriter(document)
{
    setAutoFormatting(true);
}

void XMLWriter::writeScene(PhysicsWorld* world, GraphicsView* view)
{
    writeStartDocument();
    writeStartElement(QStringLiteral("Scene"));
    writeAttribute(QStringLiteral("Version"), QCoreApplication::applicationVersion());
    writePhysicsWorld(world);
    if (view)
        writeGraphicsView(view);
    writeEndElement();
    writeEndDocument();
}

void XMLWriter::writePhysicsWorld(PhysicsWorld* world)
{
    writeStartElement(QLatin1String(world->metaObject()->className()));
    writeAttribute(QStringLiteral("InstanceCounter"),
                   QString::number(world->physicsItemInstanceCounter()));
    writeProperties(world, 1, false);
    // Bodies first: joints and forces name the bodies they hang on.
    for (BodyItem* body : world->bodyItems()) {
        if (body->isActive())
            writePhysicsItem(body);
    }
    for (JointItem* joint : world->jointItems()) {
        if (joint->isActive())
            writePhysicsItem(joint);
    }
    for (ForceItem* force : world->forceItems()) {
        if (force->isActive())
            writePhysicsItem(force);
    }
    writeEndElement();
}

void XMLWriter::writePhysicsItem(PhysicsItem* item)
{
    writeStartElement(QLatin1String(item->metaObject()->className()));
    writeProperties(item, 1, false);
    writeEndElement();
}

void XMLWriter::writeGraphicsView(GraphicsView* view)
{
    writeStartElement(QLatin1String(view->metaObject()->className()));
    writeProperties(view, 1, true);
    writeEndElement();
}

void XMLWriter::writeProperties(const QObject* object, int first, bool userOnly)
{
    const QMetaObject* metaObject = object->metaObject();
    for (int index = first; index < metaObject->propertyCount(); ++index) {
        const QMetaProperty property = metaObject->property(index);
        if (userOnly && !property.isUser())
            continue;
        QVariant value = property.read(object);
        // Enumerations are stored by number, which every reader can assign back.
        if (property.isEnumType())
            value = value.toInt();
        writeAttribute(QLatin1String(property.name()), SceneValues::variantToString(value));
    }
}
