#pragma once

#include "Physics/BodyItem.h"

#include <QColor>
#include <QFont>

class QGraphicsRectItem;
class QGraphicsTextItem;

// A box centred on its body, with an optional text laid out at 50 pixels per metre that
// reads upright in the y-up scene.
class RectangleItem : public BodyItem
{
    Q_OBJECT
    Q_CLASSINFO("RectangleItem", "Rectangle")
    Q_CLASSINFO("Width", "singleStep=1.0;minimum=0.1;")
    Q_CLASSINFO("Height", "singleStep=1.0;minimum=0.1;")
    Q_CLASSINFO("TextSize", "minimum=6;maximum=32;")
    Q_PROPERTY(double Width READ width WRITE setWidth USER true)
    Q_PROPERTY(double Height READ height WRITE setHeight USER true)
    Q_PROPERTY(QString Text READ text WRITE setText USER true)
    Q_PROPERTY(QColor TextColor READ textColor WRITE setTextColor USER true)
    Q_PROPERTY(int TextSize READ textSize WRITE setTextSize USER true)

public:
    // theta in radians, sizes in metres.
    RectangleItem(double x, double y, double theta, double w, double h);

    int type() const override { return RectangleItemType; }
    QPolygonF snapPoints() const override;
    QPolygonF worldPolygon() const override;
    void scale(double factor) override;

    double width() const { return rectangleWidth; }
    double height() const { return rectangleHeight; }
    QString text() const { return textValue; }
    QColor textColor() const { return textColorValue; }
    int textSize() const { return textSizeValue; }

public slots:
    void setWidth(double w);
    void setHeight(double h);
    void setText(QString text);
    void setTextColor(QColor color);
    void setTextSize(int size);

private:
    // Rebuilds the one fixture from its definition with the present sizes.
    void resize();
    // Makes the text item at the first text: a text document per rectangle would weigh on
    // scenes of thousands of bodies, which mostly have none.
    void createTextItem();
    // Lays the text item out for the present width and height.
    void placeTextItem();

    QGraphicsRectItem* rectItem;
    QGraphicsTextItem* textItem = nullptr;
    double rectangleWidth;
    double rectangleHeight;
    // The whole text, of which the text item shows the beginning.
    QString textValue;
    QColor textColorValue = Qt::black;
    // The point size that a text item takes by default.
    int textSizeValue = QFont().pointSize();
};
Q_DECLARE_METATYPE(RectangleItem*)
