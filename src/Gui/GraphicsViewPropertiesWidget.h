#pragma once

#include <QBrush>
#include <QWidget>
#include <memory>

class GraphicsView;

namespace Ui {
class GraphicsViewPropertiesWidget;
}

// The "Graphics View" page of the scene properties: the background brush, the body the
// camera follows and the scale, bound both ways to the view. The scale slider is logarithmic,
// 50 steps per doubling from 1 to 1024 pixels per metre.
class GraphicsViewPropertiesWidget : public QWidget
{
    Q_OBJECT

public:
    explicit GraphicsViewPropertiesWidget(GraphicsView* graphicsView, QWidget* parent = nullptr);
    ~GraphicsViewPropertiesWidget() override;

protected:
    void changeEvent(QEvent* event) override;

protected slots:
    void onBackgroundButtonClicked();
    void setBackground(QBrush background);
    // Moves the slider to the nearest step of `scale`, in pixels per metre.
    void setScale(double scale);
    // Sets the view to the scale of slider position `value`.
    void setScale(int value);

private:
    std::unique_ptr<Ui::GraphicsViewPropertiesWidget> ui;
    GraphicsView* graphicsView;
};
