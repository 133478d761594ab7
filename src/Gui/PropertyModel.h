#pragma once

#include <QAbstractItemModel>
#include <QMetaProperty>
#include <QPointer>
#include <QVector>

// The two columns of the property grid over one object: a top-level row per class of the
// object's class chain that has a title or user properties of its own, and under it those
// properties in declaration order, name and value. Values are read from the object whenever
// they are asked for, so a repaint shows them as they are now; an edit goes through the
// property's setter, with numbers clamped to the editor range the class declares for them.
// Holds the object by a guarded pointer: a deleted object leaves an empty model.
class PropertyModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Role {
        // The editor attributes of the row's property, as a QVariantMap.
        AttributesRole = Qt::UserRole,
        // The keys of the row's enumeration, empty for other types.
        EnumKeysRole
    };

    explicit PropertyModel(QObject* parent = nullptr);

    void setObject(QObject* object);
    QObject* object() const { return shown; }

    // "singleStep=0.1;minimum=0;" as a map of numbers, or of strings where a value is none.
    static QVariantMap editorAttributes(const QString& text);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    struct Group
    {
        QString title;
        QVector<QMetaProperty> properties;
        QVector<QVariantMap> attributes;
    };

    // The property of a value row, or null for a group row or an invalid index.
    const QMetaProperty* property(const QModelIndex& index) const;
    QVariantMap attributes(const QModelIndex& index) const;
    QString displayText(const QMetaProperty& property, const QVariant& value,
                        const QVariantMap& attributes) const;
    // The value as the property's type, inside the declared range; invalid if it is not one.
    QVariant converted(const QMetaProperty& property, const QVariant& value,
                       const QVariantMap& attributes) const;

    QPointer<QObject> shown;
    QVector<Group> groups;
};
