#pragma once

#include <QHash>
#include <QObject>
#include <QXmlStreamReader>

class BodyItem;
class GraphicsView;
class PhysicsItem;

// Builds a scene from a document into the world and the view, for one load. It reads token
// by token, creates items through the world's factories and pushes every attribute back
// through the property system, so a document of another version loads what it can. Joints
// and forces find their bodies by the names the document gives them; nothing of the
// document's scripts runs.
class XMLReader : public QObject
{
    Q_OBJECT

public:
    // The view may be null, for a world without a window.
    XMLReader(QIODevice* device, GraphicsView* view);

    void read();
    // The new item, or null for an element that yields none.
    PhysicsItem* createPhysicsItem(const QString& elementName,
                                   const QXmlStreamAttributes& attributes);
    // Sets each writable property named by an attribute, in document order; a value that is
    // not of the property's type leaves the property as it was.
    static void applyProperties(QObject* object, const QXmlStreamAttributes& attributes);

signals:
    void elementRead(int currentPos);

private:
    // The body filed under the attribute's name: found says whether the name is filed at all
    // (the empty name stands for the background, a null body).
    BodyItem* namedBody(const QXmlStreamAttributes& attributes, const QString& attribute,
                        bool* found) const;
    void readStartElement();

    QXmlStreamReader reader;
    GraphicsView* graphicsView;
    QHash<QString, PhysicsItem*> itemsByName;
    int instanceCounter = -1;
    int depth = 0;
    int createdItems = 0;
};
