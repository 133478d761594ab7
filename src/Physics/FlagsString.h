#pragma once

#include <QList>
#include <QString>

// A set of the letters A to P as the user sees Box2D's 16 collision bits: A is bit 0, P is
// bit 15. The text is normalised to upper case, sorted and without repeats; anything else is
// dropped, and an empty text means "A".
class FlagsString
{
public:
    explicit FlagsString(const QString& text);

    QString text() const { return normalText; }
    quint16 number() const { return bits; }
    QList<QChar> letters() const { return letterList; }

private:
    QString normalText;
    quint16 bits = 0;
    QList<QChar> letterList;
};
