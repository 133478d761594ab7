#pragma once

#include <QString>
#include <QVariant>

// One declared property of an object: its name and its value.
struct XProperty
{
    QString name;
    QVariant value;
};
