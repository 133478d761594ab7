#include "Gui/SnapWidget.h"

#include "Application/Settings.h"
#include "View/GraphicsView.h"
#include "View/GridGraphicsItem.h"

#include <QEvent>
#include <QHBoxLayout>

namespace {
void setUpButton(QToolButton& button, const char* icon, Qt::Key key)
{
    button.setIcon(QIcon(QStringLiteral(":/icons/%1.png").arg(QLatin1String(icon))));
    button.setIconSize(QSize(24, 24));
    button.setCheckable(true);
    button.setShortcut(QKeySequence(key));
}

// A size beside its toggle, in a smaller font, usable only while the toggle is on.
void setUpSize(QDoubleSpinBox& box, double minimum, double maximum, double step, double value)
{
    box.setRange(minimum, maximum);
    box.setSingleStep(step);
    box.setValue(value);
    box.setEnabled(false);
    QFont font = box.font();
    font.setPointSizeF(font.pointSizeF() - 1.0);
    box.setFont(font);
}
} // namespace

SnapWidget::SnapWidget(GraphicsView* graphicsView, QWidget* parent)
    : QWidget(parent)
    , graphicsView(graphicsView)
{
    setUpButton(gridButton, "snapToGrid", Qt::Key_F9);
    setUpButton(objectsButton, "snapToObjects", Qt::Key_F10);
    connect(&gridButton, &QToolButton::toggled, this, &SnapWidget::onSnapToGridToggled);
    connect(&objectsButton, &QToolButton::toggled, this, &SnapWidget::onSnapToObjectsToggled);

    const Settings* settings = Settings::instance();
    setUpSize(gridSizeSpinBox, 0.25, 10.0, 0.25, settings->gridSize);
    setUpSize(distanceSpinBox, 0.1, 5.0, 0.1, settings->maxObjectSnapDistance);
    connect(&gridSizeSpinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &SnapWidget::onGridSizeChanged);
    connect(&distanceSpinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &SnapWidget::onMaxObjectSnapDistanceChanged);

    // After the connections, so that a stored "on" runs its slot.
    gridButton.setChecked(settings->snapToGrid);
    objectsButton.setChecked(settings->snapToObjects);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(1, 1, 1, 1);
    row->addWidget(&gridButton);
    row->addWidget(&gridSizeSpinBox);
    row->addWidget(&objectsButton);
    row->addWidget(&distanceSpinBox);
    retranslate();
}

void SnapWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void SnapWidget::retranslate()
{
    gridButton.setToolTip(tr("Snap To Grid (F9)"));
    gridButton.setStatusTip(tr("Snaps to grid"));
    gridSizeSpinBox.setPrefix(tr("Size:"));
    objectsButton.setToolTip(tr("Snap To Objects (F10)"));
    objectsButton.setStatusTip(tr("Snaps to objects"));
    distanceSpinBox.setPrefix(tr("Distance:"));
}

void SnapWidget::onSnapToGridToggled(bool snapToGrid)
{
    Settings::instance()->setSnapToGrid(snapToGrid);
    if (GridGraphicsItem* grid = graphicsView->gridItem())
        grid->setVisible(snapToGrid);
    gridSizeSpinBox.setEnabled(snapToGrid);
    if (snapToGrid)
        objectsButton.setChecked(false);
}

void SnapWidget::onSnapToObjectsToggled(bool snapToObjects)
{
    Settings::instance()->setSnapToObjects(snapToObjects);
    distanceSpinBox.setEnabled(snapToObjects);
    if (snapToObjects)
        gridButton.setChecked(false);
}

void SnapWidget::onGridSizeChanged(double gridSize)
{
    Settings::instance()->setGridSize(gridSize);
    graphicsView->updateGrid();
}

void SnapWidget::onMaxObjectSnapDistanceChanged(double maxObjectSnapDistance)
{
    Settings::instance()->setMaxObjectSnapDistance(maxObjectSnapDistance);
}
