#pragma once

#include <QBasicTimer>
#include <QTreeView>

class PropertyModel;

// The property grid: the user properties of one object in two columns, grouped under the
// titles of the object's classes, edited in place with the editors the classes' attributes
// call for. While it shows an object it repaints its values ten times a second, so that a
// body's position and speed follow the running world, and a change made by a script shows;
// an editor that is open is left alone. Owns its model and its delegate.
class QPropertyEditorWidget : public QTreeView
{
    Q_OBJECT

public:
    explicit QPropertyEditorWidget(QWidget* parent = nullptr);

    // Null shows nothing.
    void setObject(QObject* object);
    // Reads the shown object's properties afresh, closing any open editor but keeping the
    // scroll position; another object than the one shown is ignored.
    void updateObject(QObject* object);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    // Group titles span both columns, and every group is open.
    void layOutGroups();

    PropertyModel* propertyModel;
    QBasicTimer refreshTimer;
};
