// Renders one SVG file to a PNG, at the SVG's own size or fitted into a square of the given
// size in pixels (the desktop's icon sizes). Used by the build only.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

int main(int argc, char* argv[])
{
    QGuiApplication application(argc, argv);
    if (argc != 3 && argc != 4) {
        std::fprintf(stderr, "usage: RenderSvg input.svg output.png [size]\n");
        return 2;
    }
    QSvgRenderer renderer(QString::fromLocal8Bit(argv[1]));
    if (!renderer.isValid()) {
        std::fprintf(stderr, "RenderSvg: cannot read %s\n", argv[1]);
        return 1;
    }
    QSize size = renderer.defaultSize();
    if (argc == 4) {
        bool isNumber = false;
        const int side = QString::fromLocal8Bit(argv[3]).toInt(&isNumber);
        if (!isNumber || side <= 0) {
            std::fprintf(stderr, "RenderSvg: %s is no size in pixels\n", argv[3]);
            return 2;
        }
        size.scale(side, side, Qt::KeepAspectRatio);
    }
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    painter.end();
    return image.save(QString::fromLocal8Bit(argv[2]), "PNG") ? 0 : 1;
}
