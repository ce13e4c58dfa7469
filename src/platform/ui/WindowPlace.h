#pragma once

class QWidget;

enum class Placed {
    SizeAndPlace,
    SizeOnly ///< for a window that has its own rule for its place
};

/// From now on a window remembers its size and place in the settings, under the name of its class.
/// It is never shown larger than the screen, and only on a screen that still exists. Called before
/// the window is shown first.
void RememberPlace(QWidget& window, Placed what = Placed::SizeAndPlace);
