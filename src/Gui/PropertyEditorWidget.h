#pragma once

#include <QModelIndex>
#include <QPointer>
#include <QStringList>
#include <QWidget>

class QLabel;
class QPropertyEditorWidget;
class QPushButton;

// The content of the "Property Editor" dock: the properties of the one selected item in the
// property grid, with what the grid alone cannot offer: a brush row above it, since a brush
// is no property the grid edits; the script dialog for an item's event scripts; and the tick
// boxes of the collision groups for the two filter properties. Every edit goes straight to
// the item, not through the undo stack. Holds the item by a guarded pointer.
class PropertyEditorWidget : public QWidget
{
    Q_OBJECT

public:
    explicit PropertyEditorWidget(QWidget* parent = nullptr);

    // Null empties the editor.
    void setObject(QObject* object);
    QPropertyEditorWidget* grid() const { return editor; }

protected:
    void changeEvent(QEvent* event) override;

protected slots:
    void onSelectBrush();
    void onDoubleClicked(QModelIndex index);
    void closeEditor();

private:
    void retranslate();
    // Where the dialogs open: the main window, or this widget's window without one.
    QWidget* dialogParent();

    QPointer<QObject> object;
    QLabel* brushLabel;
    QLabel* brushPreview;
    QPushButton* selectButton;
    QPropertyEditorWidget* editor;
    QLabel* hintLabel;
    QStringList scriptProperties;
};
