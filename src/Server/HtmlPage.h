#pragma once

#include <QByteArray>
#include <QString>

// The frame the server's pages share: one small inline style sheet, a header with the
// repository's links, and escaping for everything people typed.
class HtmlPage
{
public:
    // The complete UTF-8 document around the given body markup.
    static QByteArray document(const QString& title, const QString& body);

    // Text made safe for element content and double-quoted attributes.
    static QString escape(const QString& text) { return text.toHtmlEscaped(); }

    // A file name made safe as the last segment of a link.
    static QString pathSegment(const QString& fileName);
};
