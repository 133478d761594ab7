#include "Scripting/JSDocLayout.h"

JSDocLayout::JSDocLayout(QTextDocument* document)
    : QPlainTextDocumentLayout(document)
{
}

void JSDocLayout::forceUpdate()
{
    emit documentSizeChanged(documentSize());
}
