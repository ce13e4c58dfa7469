#include "PaletteIcon.h"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>

#include <algorithm>

namespace {

/// The colours of the drawings.
const IconColours Drawn = {{0x24, 0x50, 0x7a}, {0x1f, 0x8a, 0x70}, {0xb3, 0x39, 0x2f},
                           {0xb3, 0x72, 0x00}, {0x6b, 0x71, 0x78}, {0xdc, 0xe8, 0xf2},
                           {0xff, 0xff, 0xff}, {0xf7, 0xe4, 0xe2}};
/// The same on a dark background.
const IconColours Bright = {{0x9c, 0xc4, 0xea}, {0x4f, 0xd0, 0xae}, {0xff, 0x94, 0x8a},
                            {0xff, 0xc1, 0x4d}, {0xb4, 0xba, 0xc1}, {0x22, 0x33, 0x44},
                            {0x10, 0x18, 0x20}, {0x45, 0x22, 0x20}};

IconColours OfOneColour(const QColor& lines, const QColor& areas) {
    return {lines, lines, lines, lines, lines, areas, areas, areas};
}

QColor Between(const QColor& a, const QColor& b) {
    return {(a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2};
}

QByteArray Recoloured(QByteArray drawing, const IconColours& to) {
    for (QColor IconColours::*colour :
         {&IconColours::outline, &IconColours::accent, &IconColours::warning, &IconColours::signal,
          &IconColours::quiet, &IconColours::area, &IconColours::paper, &IconColours::alarm}) {
        // In upper case, so that no colour is replaced twice.
        drawing.replace((Drawn.*colour).name().toLatin1(),
                        (to.*colour).name().toUpper().toLatin1());
    }
    return drawing;
}

class PaletteIconEngine : public QIconEngine {
public:
    explicit PaletteIconEngine(QString path) : m_path(std::move(path)) {}

    QIconEngine* clone() const override { return new PaletteIconEngine(*this); }
    QString key() const override { return QStringLiteral("PaletteIcon"); }
    bool isNull() override { return !QFile::exists(m_path); }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        const IconColours colours = ColoursOf(QGuiApplication::palette(), mode);
        const int side = std::min(size.width(), size.height());
        const QString key = QStringLiteral("%1 %2 %3 %4")
                                .arg(m_path, colours.outline.name(), colours.area.name())
                                .arg(side);
        QPixmap pixmap;
        if (QPixmapCache::find(key, &pixmap))
            return pixmap;
        QFile file(m_path);
        if (!file.open(QIODevice::ReadOnly))
            return pixmap;
        QByteArray drawing = Recoloured(file.readAll(), colours);
        QBuffer buffer(&drawing);
        QImageReader reader(&buffer, "svg");
        reader.setScaledSize({side, side});
        pixmap = QPixmap::fromImage(reader.read());
        QPixmapCache::insert(key, pixmap);
        return pixmap;
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State state) override {
        const double density = painter->device()->devicePixelRatioF();
        QPixmap picture = pixmap(rect.size() * density, mode, state);
        picture.setDevicePixelRatio(density);
        QRectF place(QPointF(), picture.deviceIndependentSize());
        place.moveCenter(QRectF(rect).center());
        painter->drawPixmap(place.topLeft(), picture);
    }

private:
    QString m_path;
};

} // namespace

IconColours ColoursOf(const QPalette& palette, QIcon::Mode mode) {
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    if (mode == QIcon::Selected) // as the text beside it
        return OfOneColour(palette.color(QPalette::Active, QPalette::HighlightedText),
                           palette.color(QPalette::Active, QPalette::Highlight));
    if (mode == QIcon::Disabled) // half as strong as text
        return OfOneColour(Between(palette.color(QPalette::Active, QPalette::WindowText), window),
                           window);
    return window.lightness() < 128 ? Bright : Drawn;
}

QIcon PaletteIcon(const QString& path) { return QIcon(new PaletteIconEngine(path)); }
