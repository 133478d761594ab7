#pragma once

#include <QBrush>
#include <QImage>
#include <QRectF>

class BodyItem;

// A picture of what the scene shows over an area, rendered once, from which the pieces of a
// textured body take their brushes: each piece shows what lay under it, the body's texture
// and whatever was on top, at the texture's resolution. Rendering once for all the pieces of
// a cut or an explosion costs one render instead of one per piece.
class ScenePicture
{
public:
    // Whether a body's brush is a texture that pieces show as a picture of the scene; a
    // scale of 0, which only a hand-made scene file can hold, is none.
    static bool isNeeded(const BodyItem* source);

    // `area` in world coordinates covers the pieces to come. Takes the source out of the
    // selection, whose outline would show in the picture.
    ScenePicture(BodyItem* source, const QRectF& area);

    // The brush of a piece whose outline has this bounding rectangle in world coordinates,
    // placed as on an item centred on it; a brush without style where the piece is empty or
    // its picture would be too large.
    QBrush brush(const QRectF& rect) const;

private:
    QRectF area;
    // The scale of the source's texture, metres per picture pixel.
    double horizontalScale;
    double verticalScale;
    // Pixels of the rendered picture per metre.
    double resolution = 0.0;
    QImage picture;
};
