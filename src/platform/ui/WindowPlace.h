#pragma once

class QRect;
class QWidget;

enum class Placed {
    SizeAndPlace,
    SizeOnly ///< for a window that has its own rule for its place
};

/// From now on a window remembers its size and place in the settings, under the name of its class.
/// It is never shown larger than the screen, and only on a screen that still exists. If its texts
/// are too large for the screen, its content scrolls. Called before the window is shown first.
void RememberPlace(QWidget& window, Placed what = Placed::SizeAndPlace);

/// Where a window may be shown that was last at `place`: nowhere larger than the screen, and with
/// its frame on a screen that still exists.
QRect OnScreen(const QRect& place, const QWidget& window);
