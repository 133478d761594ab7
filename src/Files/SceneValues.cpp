#include "Files/SceneValues.h"

#include <QBrush>
#include <QBuffer>
#include <QDataStream>
#include <QImageReader>
#include <QtEndian>

namespace {
// Files written by this build stay readable by later ones only at a version of our choosing.
const QDataStream::Version streamVersion = QDataStream::Qt_5_15;

// The largest texture a document may carry, in pixels.
const qint64 maximumTexturePixels = 8192LL * 8192LL;

// Sizes of the pieces of a streamed brush at the fixed version.
const int variantHeaderSize = 4 + 1; // type id, null flag
const int colorSize = 1 + 5 * 2; // colour model, alpha, red, green, blue, padding

quint32 bigEndianAt(const QByteArray& bytes, int offset)
{
    return qFromBigEndian<quint32>(reinterpret_cast<const uchar*>(bytes.constData()) + offset);
}

// Decoding a textured brush allocates every pixel its picture claims, and a picture of a few
// compressed megabytes can claim gigabytes: the claim is checked before anything is decoded.
bool isTextureWithinLimits(const QByteArray& bytes)
{
    int offset = variantHeaderSize;
    if (bytes.size() < offset + 1 + colorSize)
        return false;
    if (quint8(bytes.at(offset)) != Qt::TexturePattern)
        return true;
    offset += 1 + colorSize;
    if (bytes.size() < offset + 4)
        return false;
    if (bigEndianAt(bytes, offset) == 0) // a null picture
        return true;
    QBuffer picture;
    picture.setData(bytes.mid(offset + 4));
    picture.open(QIODevice::ReadOnly);
    QImageReader reader(&picture, "png");
    const QSize size = reader.size();
    return size.isValid() && qint64(size.width()) * size.height() <= maximumTexturePixels;
}
} // namespace

namespace SceneValues {

bool isSimpleType(int type)
{
    switch (type) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::QChar:
    case QMetaType::QString:
    case QMetaType::QStringList:
    case QMetaType::QByteArray:
    case QMetaType::QDate:
    case QMetaType::QTime:
    case QMetaType::QDateTime:
        return true;
    default:
        return false;
    }
}

QString variantToString(const QVariant& value)
{
    if (isSimpleType(value.userType()))
        return value.toString();
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(streamVersion);
    stream << value;
    return QString::fromLatin1(bytes.toHex());
}

QVariant variantFromString(const QString& text, int type)
{
    if (text.size() > maximumValueLength)
        return QVariant();
    if (type == QMetaType::Int)
        return QVariant(text.toInt(nullptr, 10));
    if (isSimpleType(type))
        return QVariant(text);
    // Only the value types that items and the view declare are decoded.
    if (type != QMetaType::QBrush && type != QMetaType::QColor && type != QMetaType::QRectF)
        return QVariant();
    const QByteArray bytes = QByteArray::fromHex(text.toLatin1());
    if (bytes.size() < variantHeaderSize || bigEndianAt(bytes, 0) != quint32(type))
        return QVariant();
    if (type == QMetaType::QBrush && !isTextureWithinLimits(bytes))
        return QVariant();
    QDataStream stream(bytes);
    stream.setVersion(streamVersion);
    QVariant value;
    stream >> value;
    if (stream.status() != QDataStream::Ok || value.userType() != type)
        return QVariant();
    return value;
}

} // namespace SceneValues
