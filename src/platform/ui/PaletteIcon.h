#pragma once

#include <QColor>
#include <QIcon>
#include <QPalette>

/// The colours in which an icon of the program is drawn on a background, so that its lines can be
/// seen there. The drawings use the colours of a light background.
struct IconColours {
    QColor outline; ///< of things
    QColor accent;  ///< what the thing does, or "good"
    QColor warning; ///< "bad", or erasing
    QColor signal;  ///< an event
    QColor quiet;   ///< nothing is there
    QColor area;    ///< inside a thing
    QColor paper;   ///< white in the drawings
    QColor alarm;   ///< inside a thing that is erased
};

IconColours ColoursOf(const QPalette& palette, QIcon::Mode mode);

/// An icon that is drawn from an SVG file in the colours of the application's palette, each time
/// it is shown. If the palette changes, so does the icon.
QIcon PaletteIcon(const QString& path);
