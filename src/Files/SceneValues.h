#pragma once

#include <QString>
#include <QVariant>

// The text form of property values in scene documents. Simple types are their own text;
// brushes, colours and rectangles are the hexadecimal form of their QDataStream
// serialisation, at a stream version fixed so that later builds still read them.
namespace SceneValues {

// The longest attribute value that a document may give a property; longer ones are refused.
constexpr int maximumValueLength = 64 * 1024 * 1024;

// Whether the type is written as plain text: the numbers, booleans, texts and dates.
bool isSimpleType(int type);

QString variantToString(const QVariant& value);

// The value of the text for a property of the given type; an invalid variant where the text
// cannot be such a value, or where decoding it would take memory no scene needs (a texture
// of more pixels than any texture should have).
QVariant variantFromString(const QString& text, int type);

} // namespace SceneValues
