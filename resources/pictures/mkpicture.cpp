// mkpicture DRAWING.svg PICTURE.bmp: draws at twice the drawing's own size. The picture is shown at
// half its pixel size, so it is sharp on a dense screen too.
// mkpicture DRAWING.svg PICTURE.png SIZE: an icon of SIZE by SIZE pixels, with a clear ground.

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>
#include <cstdlib>

int main(int argc, char* argv[]) {
    const int size = argc == 4 ? std::atoi(argv[3]) : 0;
    if (argc != 3 && size < 1) {
        std::fputs("usage: mkpicture DRAWING.svg PICTURE [SIZE]\n", stderr);
        return 2;
    }
    QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
    QImage picture(size > 0 ? QSize(size, size) : drawing.defaultSize() * 2,
                   size > 0 ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    picture.fill(size > 0 ? Qt::transparent : Qt::white);
    QPainter painter(&picture);
    drawing.render(&painter);
    painter.end();
    if (!drawing.isValid() || !picture.save(QString::fromLocal8Bit(argv[2]))) {
        std::fprintf(stderr, "mkpicture: cannot draw %s\n", argv[1]);
        return 1;
    }
    return 0;
}
