#include "Gui/ScenePropertiesWidget.h"

#include "Gui/GraphicsViewPropertiesWidget.h"
#include "Gui/PhysicsWorldPropertiesWidget.h"

#include <QEvent>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {
const int updateInterval = 250; // milliseconds
} // namespace

ScenePropertiesWidget::ScenePropertiesWidget(PhysicsWorld* physicsWorld, GraphicsView* graphicsView,
                                             QWidget* parent)
    : QWidget(parent)
    , tabWidget(new QTabWidget())
    , physicsPage(new PhysicsWorldPropertiesWidget(physicsWorld))
    , viewPage(new GraphicsViewPropertiesWidget(graphicsView))
{
    setObjectName(QStringLiteral("ScenePropertiesWidget"));
    tabWidget->addTab(physicsPage, QString());
    tabWidget->addTab(viewPage, QString());
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tabWidget);
    connect(&timer, &QTimer::timeout, this, &ScenePropertiesWidget::updateInfo);
    retranslate();
}

void ScenePropertiesWidget::retranslate()
{
    tabWidget->setTabText(0, tr("Physics World"));
    tabWidget->setTabText(1, tr("Graphics View"));
}

void ScenePropertiesWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void ScenePropertiesWidget::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    timer.start(updateInterval);
}

void ScenePropertiesWidget::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    timer.stop();
}

void ScenePropertiesWidget::updateInfo()
{
    physicsPage->updateInfo();
}
