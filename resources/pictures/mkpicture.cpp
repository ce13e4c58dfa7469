// mkpicture DRAWING.svg PICTURE.bmp: draws at twice the drawing's own size. The picture is shown at
// half its pixel size, so it is sharp on a dense screen too.

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char* argv[]) {
    if (argc != 3) {
        std::fputs("usage: mkpicture DRAWING.svg PICTURE.bmp\n", stderr);
        return 2;
    }
    QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
    QImage picture(drawing.defaultSize() * 2, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    drawing.render(&painter);
    painter.end();
    if (!drawing.isValid() || !picture.save(QString::fromLocal8Bit(argv[2]), "BMP")) {
        std::fprintf(stderr, "mkpicture: cannot draw %s\n", argv[1]);
        return 1;
    }
    return 0;
}
