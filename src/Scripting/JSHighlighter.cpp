#include "Scripting/JSHighlighter.h"

#include "Scripting/JSBlockData.h"

#include <QTextCharFormat>

namespace {

// A block state holds the tokenizer state in its low bits and the brace depth above them.
constexpr int stateBits = 4;
constexpr int stateMask = (1 << stateBits) - 1;

const char* const keywordList[]
    = {"break", "case",    "catch",  "continue", "default", "delete", "do",
       "else",  "finally", "for",    "function", "if",      "in",     "instanceof",
       "new",   "return",  "switch", "this",     "throw",   "try",    "typeof",
       "var",   "void",    "while",  "with",     "true",    "false",  "null"};

const char* const knownIdList[] = {
    // Object
    "Object", "prototype", "create", "defineProperty", "defineProperties",
    "getOwnPropertyDescriptor", "keys", "getOwnPropertyNames", "constructor", "__parent__",
    "__proto__", "__defineGetter__", "__defineSetter__", "eval", "hasOwnProperty", "isPrototypeOf",
    "__lookupGetter__", "__lookupSetter__", "__noSuchMethod__", "propertyIsEnumerable", "toSource",
    "toLocaleString", "toString", "unwatch", "valueOf", "watch",
    // Function
    "Function", "arguments", "arity", "caller", "length", "name", "apply", "bind", "call",
    // String
    "String", "fromCharCode", "charAt", "charCodeAt", "concat", "indexOf", "lastIndexOf",
    "localCompare", "match", "quote", "replace", "search", "slice", "split", "substr", "substring",
    "toLocaleLowerCase", "toLocaleUpperCase", "toLowerCase", "toUpperCase", "trim", "trimLeft",
    "trimRight",
    // Array
    "Array", "isArray", "index", "input", "pop", "push", "reverse", "shift", "sort", "splice",
    "unshift", "join", "filter", "forEach", "every", "map", "some", "reduce", "reduceRight",
    // RegExp
    "RegExp", "global", "ignoreCase", "lastIndex", "multiline", "source", "exec", "test",
    // JSON
    "JSON", "parse", "stringify",
    // Global functions and values
    "decodeURI", "decodeURIComponent", "encodeURI", "encodeURIComponent", "isFinite", "isNaN",
    "parseFloat", "parseInt", "Infinity", "NaN", "undefined",
    // Math
    "Math", "E", "LN2", "LN10", "LOG2E", "LOG10E", "PI", "SQRT1_2", "SQRT2", "abs", "acos", "asin",
    "atan", "atan2", "ceil", "cos", "exp", "floor", "log", "max", "min", "pow", "random", "round",
    "sin", "sqrt", "tan",
    // Browser
    "document", "window", "navigator", "userAgent"};

template<size_t size> QSet<QString> wordSet(const char* const (&words)[size])
{
    QSet<QString> set;
    for (const char* word : words)
        set.insert(QLatin1String(word));
    return set;
}

} // namespace

JSHighlighter::JSHighlighter(QTextDocument* document)
    : QSyntaxHighlighter(document)
    , keywords(wordSet(keywordList))
    , knownIds(wordSet(knownIdList))
    , colors({{Normal, QColor("#000000")},
              {Comment, QColor("#808080")},
              {Number, QColor("#008000")},
              {String, QColor("#800000")},
              {Operator, QColor("#808000")},
              {Keyword, QColor("#000080")},
              {BuiltIn, QColor("#008080")},
              {Marker, QColor("#ffff00")}})
{
}

void JSHighlighter::setMark(const QString& text, Qt::CaseSensitivity sensitivity)
{
    markString = text;
    markCaseSensitivity = sensitivity;
    rehighlight();
}

void JSHighlighter::colour(int start, int length, ColorComponent component)
{
    setFormat(start, length, colors.value(component));
}

// A character at or past the end reads as 0, which closes whatever token is open there.
void JSHighlighter::highlightBlock(const QString& text)
{
    const int previous = previousBlockState();
    int state = previous < 0 ? Start : previous & stateMask;
    int depth = previous < 0 ? 0 : previous >> stateBits;
    QList<int> bracketPositions;
    const int length = text.length();
    int start = 0;
    int i = 0;
    while (i <= length) {
        const QChar ch = i < length ? text.at(i) : QChar();
        const QChar next = i + 1 < length ? text.at(i + 1) : QChar();
        switch (state) {
        case Start:
            start = i;
            if (ch.isSpace()) {
                ++i;
            } else if (ch.isDigit()) {
                ++i;
                state = NumberState;
            } else if (ch.isLetter() || ch == QLatin1Char('_')) {
                ++i;
                state = IdentifierState;
            } else if (ch == QLatin1Char('\'') || ch == QLatin1Char('"')) {
                ++i;
                state = StringState;
            } else if (ch == QLatin1Char('/') && next == QLatin1Char('*')) {
                i += 2;
                state = CommentState;
            } else if (ch == QLatin1Char('/') && next == QLatin1Char('/')) {
                colour(i, length - i, Comment);
                i = length + 1;
            } else if (ch == QLatin1Char('/')) {
                // Without a look at the token before, a division opens a regular expression too.
                ++i;
                state = RegexState;
            } else {
                if (i < length && !QStringLiteral("(){}[]").contains(ch))
                    colour(i, 1, Operator);
                if (ch == QLatin1Char('{') || ch == QLatin1Char('}')) {
                    bracketPositions.append(i);
                    depth += ch == QLatin1Char('{') ? 1 : -1;
                }
                ++i;
            }
            break;
        case NumberState:
            if (ch.isDigit()) {
                ++i;
            } else {
                colour(start, i - start, Number);
                state = Start;
            }
            break;
        case IdentifierState:
            if (ch.isDigit() || ch.isLetter() || ch == QLatin1Char('_')) {
                ++i;
            } else {
                const QString word = text.mid(start, i - start).trimmed();
                if (keywords.contains(word))
                    colour(start, i - start, Keyword);
                else if (knownIds.contains(word))
                    colour(start, i - start, BuiltIn);
                state = Start;
            }
            break;
        case StringState:
        case RegexState: {
            // A string ends at its own quote, a regular expression at a slash, if unescaped.
            const QChar closing = state == StringState ? text.at(start) : QLatin1Char('/');
            const bool closes = ch == closing && text.at(i - 1) != QLatin1Char('\\');
            ++i;
            if (closes) {
                colour(start, i - start, String);
                state = Start;
            }
            break;
        }
        case CommentState:
            if (ch == QLatin1Char('*') && next == QLatin1Char('/')) {
                i += 2;
                colour(start, i - start, Comment);
                state = Start;
            } else {
                ++i;
            }
            break;
        }
    }

    // Only a block comment goes on to the next line; an unterminated string or regular
    // expression stays uncoloured.
    if (state == CommentState)
        colour(start, length - start, Comment);
    else
        state = Start;

    markOccurrences(text);

    // A line that has lost its braces must not keep the positions it had: matching would take
    // whatever now stands there for a brace.
    auto* data = static_cast<JSBlockData*>(currentBlockUserData());
    if (!data && !bracketPositions.isEmpty()) {
        data = new JSBlockData;
        setCurrentBlockUserData(data);
    }
    if (data)
        data->bracketPositions = bracketPositions;

    // A negative state would read as "no previous line" and end an open comment, so a surplus
    // of closing braces counts as depth 0.
    setCurrentBlockState(qMax(depth, 0) << stateBits | state);
}

void JSHighlighter::markOccurrences(const QString& text)
{
    if (markString.isEmpty())
        return;
    QTextCharFormat format;
    format.setBackground(colors.value(Marker));
    format.setForeground(colors.value(Normal));
    for (int at = text.indexOf(markString, 0, markCaseSensitivity); at >= 0;
         at = text.indexOf(markString, at + 1, markCaseSensitivity))
        setFormat(at, markString.length(), format);
}
