#pragma once

#include <QStyledItemDelegate>

// The editors of the property grid's value column, set up from the attributes the property's
// class declares: a spin box for numbers with their range, step and decimals, a line edit for
// text with its length limit, a combo box for enumerations. Colours are chosen in the colour
// dialog on a double-click; true-or-false values are tick boxes in the cell itself. A text
// of several lines, a script, shows its first line.
class PropertyDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit PropertyDelegate(QObject* parent = nullptr);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    QString displayText(const QVariant& value, const QLocale& locale) const override;

protected:
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
};
