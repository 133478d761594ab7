#pragma once

#include <QColor>
#include <QHash>
#include <QSet>
#include <QSyntaxHighlighter>

// Colours ECMAScript source line by line and, since it sees every line anyway, records where
// each line's curly braces stand (in the line's JSBlockData) and the running brace depth (in the
// block state, above the tokenizer state). Owns its word lists, its colour table and the text
// to mark; it is owned by the document it colours.
class JSHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    // Indices of the colour table.
    enum ColorComponent {
        Normal = 1,
        Comment = 2,
        Number = 3,
        String = 4,
        Operator = 5,
        Keyword = 7,
        BuiltIn = 8,
        Marker = 12
    };

    // Tokenizer states, kept in the low four bits of a block state.
    enum State {
        Start = 0,
        NumberState = 1,
        IdentifierState = 2,
        StringState = 3,
        CommentState = 4,
        RegexState = 5
    };

    explicit JSHighlighter(QTextDocument* document);

    // Highlights every occurrence of text as well; an empty text marks nothing.
    void setMark(const QString& text, Qt::CaseSensitivity sensitivity);

protected:
    void highlightBlock(const QString& text) override;

private:
    void colour(int start, int length, ColorComponent component);
    void markOccurrences(const QString& text);

    QSet<QString> keywords;
    QSet<QString> knownIds;
    QHash<int, QColor> colors;
    QString markString;
    Qt::CaseSensitivity markCaseSensitivity = Qt::CaseInsensitive;
};
