#pragma once

#include <QList>
#include <QTextBlockUserData>

// What the highlighter learns about one line's curly braces: the offsets within the line of each
// '{' and '}' outside strings and comments, in order. Brace matching and folding read only these
// records, so braces in strings and comments play no part. Owned by its text block.
class JSBlockData : public QTextBlockUserData
{
public:
    QList<int> bracketPositions;
};
