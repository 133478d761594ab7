#pragma once

#include <QTimer>
#include <QWidget>

class GraphicsView;
class GraphicsViewPropertiesWidget;
class PhysicsWorld;
class PhysicsWorldPropertiesWidget;
class QTabWidget;

// The content of the "Scene Properties" dock: the world's page and the view's page as two
// tabs. The world's figures are polled four times a second while the panel is shown, and not
// at all while it is hidden.
class ScenePropertiesWidget : public QWidget
{
    Q_OBJECT

public:
    ScenePropertiesWidget(PhysicsWorld* physicsWorld, GraphicsView* graphicsView,
                          QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

protected slots:
    void updateInfo();

private:
    void retranslate();

    QTabWidget* tabWidget;
    PhysicsWorldPropertiesWidget* physicsPage;
    GraphicsViewPropertiesWidget* viewPage;
    QTimer timer;
};
