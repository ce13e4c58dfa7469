#pragma once

#include "MessageBox.h"

#include <QIcon>
#include <QString>

#include <functional>

class QDateTimeEdit;
class QLabel;
class QLineEdit;
class QWidget;

/// What windows share. Text in, text out; no window knows another through this.

using TranslateText = std::function<QString(const QString&)>;

/// Translates a window and all in it: title, captions, tool tips, accessible names, menus. Texts
/// that are filled by code, list headers among them, are not touched. The English texts are kept,
/// so that it can be called again in another language.
void TranslateWindow(QWidget& window, const TranslateText& translate);

/// Real message boxes over the active window.
class WindowMessageBoxes : public MessageBoxes {
public:
    MessageAnswer Show(const Message& message) override;
};

/// Selects a field's whole text whenever it gets the focus.
void SelectAllOnFocus(QLineEdit& field);

/// Selects the part of a date or time that gets the focus or is clicked, so that it can be typed.
void SelectSectionOnFocus(QDateTimeEdit& field);

/// Puts the focus on a field with its text selected, where the mistake is.
void FocusAndSelect(QLineEdit& field);

/// The hourglass while it lives.
class Hourglass {
public:
    Hourglass();
    ~Hourglass();
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};

/// The arrow while it lives, if there is an hourglass: for a window that wants an answer in the
/// middle of work.
class ArrowPointer {
public:
    ArrowPointer();
    ~ArrowPointer();
    ArrowPointer(const ArrowPointer&) = delete;
    ArrowPointer& operator=(const ArrowPointer&) = delete;

private:
    bool m_shown;
};

/// An icon of the program by its name.
QIcon ProgramIcon(const QString& name);

/// Shows an icon of the program in a label, as large as the label may be.
void ShowIcon(QLabel& label, const QString& name);

/// Shows a picture file in a label, as large as it is drawn (its pixels count double, so that it
/// stays sharp on a dense screen). Throws RunTimeError where the file cannot be read.
void ShowPicture(QLabel& label, const QString& path);

/// Lengths in twips: 1440 to the inch, 15 to a pixel of an ordinary screen.
constexpr int PixelsOf(int twips) { return twips / 15; }
constexpr int TwipsOf(int pixels) { return pixels * 15; }
