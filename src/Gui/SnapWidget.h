#pragma once

#include <QDoubleSpinBox>
#include <QToolButton>
#include <QWidget>

class GraphicsView;

// The content of the snap toolbar: two toggles that make mouse work snap to the grid (F9) or
// to the snap points of other items (F10), each with its size. At most one is on; turning one
// on turns the other off. Every change is written to the settings at once.
class SnapWidget : public QWidget
{
    Q_OBJECT

public:
    explicit SnapWidget(GraphicsView* graphicsView, QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;
    virtual void retranslate();

protected slots:
    void onSnapToGridToggled(bool snapToGrid);
    void onSnapToObjectsToggled(bool snapToObjects);
    void onGridSizeChanged(double gridSize);
    void onMaxObjectSnapDistanceChanged(double maxObjectSnapDistance);

private:
    GraphicsView* graphicsView;
    QToolButton gridButton;
    QDoubleSpinBox gridSizeSpinBox;
    QToolButton objectsButton;
    QDoubleSpinBox distanceSpinBox;
};
