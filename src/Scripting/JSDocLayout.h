#pragma once

#include <QPlainTextDocumentLayout>

// The plain text layout of the script editor, with a way to make the editor take in a change
// of size that the layout cannot see by itself: lines hidden or shown by folding. Owned by its
// document.
class JSDocLayout : public QPlainTextDocumentLayout
{
    Q_OBJECT

public:
    explicit JSDocLayout(QTextDocument* document);

    void forceUpdate();
};
