#include "Gui/QPropertyEditorWidget.h"

#include "Gui/PropertyDelegate.h"
#include "Gui/PropertyModel.h"

#include <QScrollBar>
#include <QTimerEvent>

namespace {
const int refreshInterval = 100; // milliseconds
} // namespace

QPropertyEditorWidget::QPropertyEditorWidget(QWidget* parent)
    : QTreeView(parent)
    , propertyModel(new PropertyModel(this))
{
    setModel(propertyModel);
    setItemDelegate(new PropertyDelegate(this));
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    setUniformRowHeights(true);
    connect(propertyModel, &QAbstractItemModel::modelReset, this,
            &QPropertyEditorWidget::layOutGroups);
}

void QPropertyEditorWidget::setObject(QObject* object)
{
    propertyModel->setObject(object);
    if (object)
        refreshTimer.start(refreshInterval, this);
    else
        refreshTimer.stop();
}

void QPropertyEditorWidget::updateObject(QObject* object)
{
    if (!object || object != propertyModel->object())
        return;
    const int scrolled = verticalScrollBar()->value();
    propertyModel->setObject(object);
    // The scroll range is only known once the new rows are laid out.
    executeDelayedItemsLayout();
    updateGeometries();
    verticalScrollBar()->setValue(scrolled);
}

void QPropertyEditorWidget::layOutGroups()
{
    for (int row = 0; row < propertyModel->rowCount(); ++row)
        setFirstColumnSpanned(row, QModelIndex(), true);
    expandAll();
}

void QPropertyEditorWidget::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != refreshTimer.timerId()) {
        QTreeView::timerEvent(event);
        return;
    }
    if (!propertyModel->object())
        refreshTimer.stop();
    else if (isVisible())
        viewport()->update();
}
