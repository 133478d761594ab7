#pragma once

#include "Commands/ComplexCommand.h"

#include <QBrush>
#include <QFont>
#include <QList>
#include <QPolygonF>

// Stamps a line of text as polygon bodies, one per separate outline of each character, all
// with one brush and none joined: a font unit is 0.1 m, and each character stands at the sum
// of the advances before it, without kerning. (x, y) is the start of the base line.
class TextCommand : public ComplexCommand
{
public:
    TextCommand(double x, double y, const QString& text, const QFont& font, const QBrush& brush,
                QUndoCommand* parent = nullptr);

    // The outlines of a character in font units, flattened at `factor` times that size so
    // that small fonts keep their curves.
    static QList<QPolygonF> glyphPolygons(QChar c, const QFont& font, double factor);
};
