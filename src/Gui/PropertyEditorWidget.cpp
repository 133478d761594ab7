#include "Gui/PropertyEditorWidget.h"

#include "Application/Application.h"
#include "Gui/BrushDialog.h"
#include "Gui/FlagsStringDialog.h"
#include "Gui/MainWindow.h"
#include "Gui/QPropertyEditorWidget.h"
#include "Physics/PhysicsItem.h"
#include "Scripting/JSDialog.h"
#include "Scripting/JSEdit.h"

#include <QEvent>
#include <QGraphicsItem>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

namespace {
const int nameColumnWidth = 120; // pixels
const QSize scriptDialogSize(640, 480); // pixels
const int flagsDialogMinimumWidth = 250; // pixels
// After a dialog, the grid's own editor opened by the same double-click is closed this late.
const int closeEditorDelay = 100; // milliseconds
} // namespace

PropertyEditorWidget::PropertyEditorWidget(QWidget* parent)
    : QWidget(parent)
    , brushLabel(new QLabel(this))
    , brushPreview(new QLabel(this))
    , selectButton(new QPushButton(this))
    , editor(new QPropertyEditorWidget(this))
    , hintLabel(new QLabel(this))
    , scriptProperties({QStringLiteral("OnStart"), QStringLiteral("OnStop"),
                        QStringLiteral("OnUpdate"), QStringLiteral("OnKeyPress"),
                        QStringLiteral("OnKeyRelease"), QStringLiteral("OnContact")})
{
    setObjectName(QStringLiteral("PropertyEditorWidget"));
    brushPreview->setObjectName(QStringLiteral("brushPreview"));
    selectButton->setObjectName(QStringLiteral("selectButton"));
    brushLabel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    brushPreview->setAutoFillBackground(true);
    editor->setAlternatingRowColors(true);
    editor->setIndentation(0);
    editor->header()->resizeSection(0, nameColumnWidth);
    connect(selectButton, &QPushButton::clicked, this, &PropertyEditorWidget::onSelectBrush);
    connect(editor, &QAbstractItemView::doubleClicked, this,
            &PropertyEditorWidget::onDoubleClicked);

    auto* layout = new QGridLayout(this);
    layout->addWidget(hintLabel, 0, 0, 1, 3);
    layout->addWidget(brushLabel, 1, 0);
    layout->addWidget(brushPreview, 1, 1);
    layout->addWidget(selectButton, 1, 2);
    layout->addWidget(editor, 2, 0, 1, 3);
    setObject(nullptr);
    retranslate();
}

void PropertyEditorWidget::retranslate()
{
    hintLabel->setText(tr("<div align='right'><i><font size='10px'>(Edit properties with "
                          "double-click)</font></i></div>"));
    brushLabel->setText(tr("Brush"));
    selectButton->setText(tr("Select"));
    // The column titles are asked for when the header paints.
    editor->header()->viewport()->update();
}

void PropertyEditorWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void PropertyEditorWidget::setObject(QObject* shown)
{
    object = shown;
    editor->setObject(shown);
    auto* item = qobject_cast<PhysicsItem*>(shown);
    for (QWidget* part : {static_cast<QWidget*>(brushLabel), static_cast<QWidget*>(brushPreview),
                          static_cast<QWidget*>(selectButton)})
        part->setEnabled(item != nullptr);
    BrushDialog::paintPreview(brushPreview, item ? item->brush() : QBrush(Qt::NoBrush));
}

QWidget* PropertyEditorWidget::dialogParent()
{
    Application* application = Application::instance();
    if (application && application->mainWindow)
        return application->mainWindow;
    return window();
}

void PropertyEditorWidget::onDoubleClicked(QModelIndex index)
{
    const QString propertyName = index.sibling(index.row(), 0).data().toString();
    const bool isScript = scriptProperties.contains(propertyName);
    const bool isFilter = propertyName == QLatin1String("FilterCategories")
        || propertyName == QLatin1String("FilterMasks");
    if (!index.parent().isValid() || (!isScript && !isFilter))
        return;

    // The world goes on while a dialog is open: its scripts may remove the item or change the
    // selection, which makes this index invalid.
    const QPersistentModelIndex valueIndex = index.sibling(index.row(), 1);
    QAbstractItemModel* model = editor->model();
    const QString itemName = model->index(0, 1, model->index(0, 0)).data().toString();
    const QString value = valueIndex.data().toString();
    const QString title = itemName + QLatin1Char('.') + propertyName;
    QVariant accepted;
    if (isScript) {
        JSDialog dialog(dialogParent());
        dialog.editor()->setPlainText(value);
        dialog.resize(scriptDialogSize);
        dialog.setWindowTitle(title);
        if (dialog.exec() == QDialog::Accepted)
            accepted = dialog.text();
    } else {
        FlagsStringDialog dialog(FlagsString(value), dialogParent());
        dialog.setMinimumWidth(flagsDialogMinimumWidth);
        dialog.setWindowTitle(title);
        dialog.setMessage(
            propertyName == QLatin1String("FilterCategories")
                ? tr("Specify the filter categories that %1 belongs to.").arg(itemName)
                : tr("Specify the filter categories that %1 collides with.").arg(itemName));
        if (dialog.exec() == QDialog::Accepted)
            accepted = dialog.flagsString().text();
    }
    if (accepted.isValid() && valueIndex.isValid())
        model->setData(valueIndex, accepted, Qt::EditRole);
    QTimer::singleShot(closeEditorDelay, this, &PropertyEditorWidget::closeEditor);
}

void PropertyEditorWidget::closeEditor()
{
    if (object)
        editor->updateObject(object);
}

void PropertyEditorWidget::onSelectBrush()
{
    auto* item = qobject_cast<PhysicsItem*>(object);
    if (!item)
        return;
    BrushDialog dialog(item->brush(), Application::dataDirectory(QStringLiteral("textures")), this);
    dialog.setOutline(item->graphicsItem()->shape());
    // The item may go while the dialog is open.
    if (dialog.exec() != QDialog::Accepted || !object)
        return;
    item->setBrush(dialog.brush());
    BrushDialog::paintPreview(brushPreview, dialog.brush());
}
