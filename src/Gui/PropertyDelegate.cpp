#include "Gui/PropertyDelegate.h"

#include "Gui/PropertyModel.h"

#include <QColorDialog>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QLineEdit>
#include <QSpinBox>
#include <limits>
#include <type_traits>

namespace {
// Spin boxes need a range; where a class declares none, these stand for no limit.
const double unlimited = 1e9;
const int defaultDecimals = 4;
const int unlimitedLength = 32767;

template<typename SpinBox, typename Number>
SpinBox* spinBox(QWidget* parent, const QVariantMap& attributes, Number lowest, Number highest)
{
    auto* box = new SpinBox(parent);
    box->setKeyboardTracking(false);
    // Decimals first: the range and the value are rounded to them.
    if constexpr (std::is_same_v<SpinBox, QDoubleSpinBox>)
        box->setDecimals(attributes.value(QStringLiteral("decimals"), defaultDecimals).toInt());
    box->setRange(attributes.value(QStringLiteral("minimum"), lowest).template value<Number>(),
                  attributes.value(QStringLiteral("maximum"), highest).template value<Number>());
    box->setSingleStep(attributes.value(QStringLiteral("singleStep"), 1).template value<Number>());
    return box;
}
} // namespace

PropertyDelegate::PropertyDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{
}

QWidget* PropertyDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const
{
    const QVariantMap attributes = index.data(PropertyModel::AttributesRole).toMap();
    const QStringList keys = index.data(PropertyModel::EnumKeysRole).toStringList();
    if (!keys.isEmpty()) {
        auto* box = new QComboBox(parent);
        box->addItems(keys);
        return box;
    }
    switch (index.data(Qt::EditRole).userType()) {
    case QMetaType::Int:
        return spinBox<QSpinBox>(parent, attributes, std::numeric_limits<int>::min(),
                                 std::numeric_limits<int>::max());
    case QMetaType::Double:
        return spinBox<QDoubleSpinBox>(parent, attributes, -unlimited, unlimited);
    case QMetaType::QString: {
        auto* edit = new QLineEdit(parent);
        edit->setMaxLength(attributes.value(QStringLiteral("maxLength"), unlimitedLength).toInt());
        return edit;
    }
    case QMetaType::QColor:
        // Chosen in the colour dialog instead, see editorEvent.
        return nullptr;
    default:
        return QStyledItemDelegate::createEditor(parent, option, index);
    }
}

void PropertyDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const QVariant value = index.data(Qt::EditRole);
    if (auto* box = qobject_cast<QComboBox*>(editor))
        box->setCurrentText(value.toString());
    else if (auto* box = qobject_cast<QSpinBox*>(editor))
        box->setValue(value.toInt());
    else if (auto* box = qobject_cast<QDoubleSpinBox*>(editor))
        box->setValue(value.toDouble());
    else if (auto* edit = qobject_cast<QLineEdit*>(editor))
        edit->setText(value.toString());
    else
        QStyledItemDelegate::setEditorData(editor, index);
}

void PropertyDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                    const QModelIndex& index) const
{
    if (auto* box = qobject_cast<QComboBox*>(editor)) {
        model->setData(index, box->currentText());
    } else if (auto* box = qobject_cast<QAbstractSpinBox*>(editor)) {
        // A number typed but not yet confirmed counts too.
        box->interpretText();
        model->setData(index, box->property("value"));
    } else if (auto* edit = qobject_cast<QLineEdit*>(editor)) {
        model->setData(index, edit->text());
    } else {
        QStyledItemDelegate::setModelData(editor, model, index);
    }
}

QString PropertyDelegate::displayText(const QVariant& value, const QLocale& locale) const
{
    const QString text = value.toString();
    const int lineEnd
        = value.userType() == QMetaType::QString ? text.indexOf(QLatin1Char('\n')) : -1;
    if (lineEnd >= 0)
        return text.left(lineEnd) + QStringLiteral(" …");
    return QStyledItemDelegate::displayText(value, locale);
}

bool PropertyDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                   const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (event->type() != QEvent::MouseButtonDblClick || !(index.flags() & Qt::ItemIsEditable)
        || index.data(Qt::EditRole).userType() != QMetaType::QColor)
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    const QColor colour = QColorDialog::getColor(
        index.data(Qt::EditRole).value<QColor>(), const_cast<QWidget*>(option.widget),
        tr("Select Color"), QColorDialog::ShowAlphaChannel);
    if (colour.isValid())
        model->setData(index, colour);
    return true;
}
