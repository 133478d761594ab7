#include "Physics/FlagsString.h"

#include <algorithm>

namespace {
const QChar firstLetter = QLatin1Char('A');
const QChar lastLetter = QLatin1Char('P');
} // namespace

FlagsString::FlagsString(const QString& text)
{
    QString sorted = text.toUpper();
    std::sort(sorted.begin(), sorted.end());
    if (sorted.isEmpty())
        sorted = QString(firstLetter);
    for (const QChar letter : qAsConst(sorted)) {
        if (letter < firstLetter || letter > lastLetter || letterList.contains(letter))
            continue;
        letterList.append(letter);
        normalText.append(letter);
        bits |= quint16(1u << (letter.unicode() - firstLetter.unicode()));
    }
}
