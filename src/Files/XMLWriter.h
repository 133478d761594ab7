#pragma once

#include <QXmlStreamWriter>

class GraphicsView;
class PhysicsItem;
class PhysicsWorld;

// Writes a scene document from the property tables of the world, its items and the view: an
// element per object named by its class, an attribute per declared property in declaration
// order, base class first. Items that wait inactive on the undo stack are not written.
class XMLWriter : public QXmlStreamWriter
{
public:
    explicit XMLWriter(QString* document);

    // The whole document: the Scene element with the world and, if there is one, the view.
    void writeScene(PhysicsWorld* world, GraphicsView* view);
    void writePhysicsWorld(PhysicsWorld* world);
    void writePhysicsItem(PhysicsItem* item);
    void writeGraphicsView(GraphicsView* view);

private:
    // The properties from index `first` up, those flagged USER only if `userOnly`.
    void writeProperties(const QObject* object, int first, bool userOnly);
};
