#include "Gui/PropertyModel.h"

#include <QColor>
#include <QFont>
#include <QLocale>
#include <algorithm>
#include <cmath>

namespace {
// The internal id of a group row; a value row carries its group's number plus one.
const quintptr groupRowId = 0;

// The class-information value under a key, looked up from the class towards QObject.
QString classInformation(const QMetaObject* metaObject, const char* key)
{
    const int index = metaObject->indexOfClassInfo(key);
    return index < 0 ? QString() : QString::fromUtf8(metaObject->classInfo(index).value());
}

template<typename Number> Number clamped(Number value, const QVariantMap& attributes)
{
    const auto minimum = attributes.constFind(QStringLiteral("minimum"));
    if (minimum != attributes.constEnd() && value < minimum->template value<Number>())
        value = minimum->template value<Number>();
    const auto maximum = attributes.constFind(QStringLiteral("maximum"));
    if (maximum != attributes.constEnd() && value > maximum->template value<Number>())
        value = maximum->template value<Number>();
    return value;
}
} // namespace

PropertyModel::PropertyModel(QObject* parent)
    : QAbstractItemModel(parent)
{
}

void PropertyModel::setObject(QObject* object)
{
    beginResetModel();
    if (shown)
        disconnect(shown, &QObject::destroyed, this, nullptr);
    shown = object;
    if (object)
        connect(object, &QObject::destroyed, this, [this] { setObject(nullptr); });
    groups.clear();
    QVector<const QMetaObject*> chain;
    for (const QMetaObject* metaObject = object ? object->metaObject() : nullptr; metaObject;
         metaObject = metaObject->superClass())
        chain.prepend(metaObject);
    for (const QMetaObject* metaObject : qAsConst(chain)) {
        Group group;
        for (int i = metaObject->propertyOffset(); i < metaObject->propertyCount(); ++i) {
            const QMetaProperty property = metaObject->property(i);
            if (!property.isUser())
                continue;
            group.properties.append(property);
            group.attributes.append(
                editorAttributes(classInformation(metaObject, property.name())));
        }
        group.title = classInformation(metaObject, metaObject->className());
        if (group.title.isEmpty() && group.properties.isEmpty())
            continue;
        if (group.title.isEmpty())
            group.title = QString::fromLatin1(metaObject->className());
        groups.append(group);
    }
    endResetModel();
}

QVariantMap PropertyModel::editorAttributes(const QString& text)
{
    QVariantMap attributes;
    for (const QString& pair : text.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const int equals = pair.indexOf(QLatin1Char('='));
        if (equals <= 0)
            continue;
        const QString value = pair.mid(equals + 1).trimmed();
        bool isNumber = false;
        const double number = value.toDouble(&isNumber);
        attributes.insert(pair.left(equals).trimmed(),
                          isNumber ? QVariant(number) : QVariant(value));
    }
    return attributes;
}

QModelIndex PropertyModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, parent.isValid() ? quintptr(parent.row() + 1) : groupRowId);
}

QModelIndex PropertyModel::parent(const QModelIndex& child) const
{
    if (!child.isValid() || child.internalId() == groupRowId)
        return {};
    return createIndex(int(child.internalId() - 1), 0, groupRowId);
}

int PropertyModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return groups.size();
    if (parent.internalId() != groupRowId || parent.column() != 0)
        return 0;
    return groups.at(parent.row()).properties.size();
}

int PropertyModel::columnCount(const QModelIndex&) const
{
    return 2;
}

const QMetaProperty* PropertyModel::property(const QModelIndex& index) const
{
    if (!index.isValid() || index.internalId() == groupRowId || !shown)
        return nullptr;
    return &groups.at(int(index.internalId() - 1)).properties.at(index.row());
}

QVariantMap PropertyModel::attributes(const QModelIndex& index) const
{
    return groups.at(int(index.internalId() - 1)).attributes.at(index.row());
}

QVariant PropertyModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    if (index.internalId() == groupRowId) {
        if (index.column() == 0 && role == Qt::DisplayRole)
            return groups.at(index.row()).title;
        if (role == Qt::FontRole) {
            QFont font;
            font.setBold(true);
            return font;
        }
        return {};
    }
    const QMetaProperty* meta = property(index);
    if (!meta)
        return {};
    if (index.column() == 0)
        return role == Qt::DisplayRole ? QString::fromLatin1(meta->name()) : QVariant();

    if (role == AttributesRole)
        return attributes(index);
    if (role == EnumKeysRole) {
        QStringList keys;
        const QMetaEnum enumerator = meta->enumerator();
        for (int i = 0; meta->isEnumType() && i < enumerator.keyCount(); ++i)
            keys << QString::fromLatin1(enumerator.key(i));
        return keys;
    }
    // Painting asks for many roles; only these need the value, read from the object each time.
    if (role != Qt::DisplayRole && role != Qt::EditRole && role != Qt::CheckStateRole
        && role != Qt::DecorationRole)
        return {};
    const QVariant value = meta->read(shown);
    const bool isBool = meta->userType() == QMetaType::Bool;
    switch (role) {
    case Qt::DisplayRole:
        return isBool ? QVariant() : displayText(*meta, value, attributes(index));
    case Qt::EditRole:
        // Enumerations are edited by their keys.
        return meta->isEnumType() ? QVariant(displayText(*meta, value, {})) : value;
    case Qt::CheckStateRole:
        return isBool ? (value.toBool() ? Qt::Checked : Qt::Unchecked) : QVariant();
    default:
        return meta->userType() == QMetaType::QColor ? value : QVariant();
    }
}

QString PropertyModel::displayText(const QMetaProperty& property, const QVariant& value,
                                   const QVariantMap& attributes) const
{
    if (property.isEnumType())
        return QString::fromLatin1(property.enumerator().valueToKey(value.toInt()));
    switch (property.userType()) {
    case QMetaType::Double: {
        const auto decimals = attributes.constFind(QStringLiteral("decimals"));
        return decimals == attributes.constEnd()
            ? QLocale().toString(value.toDouble(), 'g', 6)
            : QLocale().toString(value.toDouble(), 'f', decimals->toInt());
    }
    case QMetaType::QColor: {
        const QColor colour = value.value<QColor>();
        return colour.name(colour.alpha() < 255 ? QColor::HexArgb : QColor::HexRgb);
    }
    default:
        return value.toString();
    }
}

QVariant PropertyModel::converted(const QMetaProperty& property, const QVariant& value,
                                  const QVariantMap& attributes) const
{
    bool ok = false;
    if (property.isEnumType()) {
        const QMetaEnum enumerator = property.enumerator();
        int number = enumerator.keyToValue(value.toString().toLatin1().constData(), &ok);
        if (!ok)
            number = value.toInt(&ok);
        return ok && enumerator.valueToKey(number) ? QVariant(number) : QVariant();
    }
    switch (property.userType()) {
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::Int: {
        const int number = value.toInt(&ok);
        return ok ? QVariant(clamped(number, attributes)) : QVariant();
    }
    case QMetaType::Double: {
        const double number = value.toDouble(&ok);
        return ok && std::isfinite(number) ? QVariant(clamped(number, attributes)) : QVariant();
    }
    case QMetaType::QString: {
        const int maxLength = attributes.value(QStringLiteral("maxLength"), -1).toInt();
        return maxLength < 0 ? value.toString() : value.toString().left(maxLength);
    }
    case QMetaType::QColor: {
        const QColor colour = value.userType() == QMetaType::QColor ? value.value<QColor>()
                                                                    : QColor(value.toString());
        return colour.isValid() ? QVariant(colour) : QVariant();
    }
    default: {
        QVariant copy = value;
        return copy.convert(property.userType()) ? copy : QVariant();
    }
    }
}

bool PropertyModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const QMetaProperty* meta = property(index);
    if (!meta || index.column() != 1 || !meta->isWritable())
        return false;
    QVariant written;
    if (role == Qt::EditRole)
        written = converted(*meta, value, attributes(index));
    else if (role == Qt::CheckStateRole && meta->userType() == QMetaType::Bool)
        written = value.toInt() == Qt::Checked;
    if (!written.isValid() || !meta->write(shown, written))
        return false;
    emit dataChanged(index, index);
    return true;
}

Qt::ItemFlags PropertyModel::flags(const QModelIndex& index) const
{
    const QMetaProperty* meta = property(index);
    if (!meta)
        return index.isValid() ? Qt::ItemIsEnabled : Qt::NoItemFlags;
    Qt::ItemFlags result = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (index.column() == 1 && meta->isWritable())
        result
            |= meta->userType() == QMetaType::Bool ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable;
    return result;
}

QVariant PropertyModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == 0 ? tr("Property") : tr("Value");
}
