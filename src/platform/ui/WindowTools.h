#pragma once

#include "MessageBox.h"

#include <QIcon>
#include <QString>

#include <functional>

class QDateTimeEdit;
class QLabel;
class QLineEdit;
class QWidget;

/// Small helpers that several windows use.

using TranslateText = std::function<QString(const QString&)>;

/// Translates a window and its controls: title, captions, tool tips, hints in empty fields,
/// accessible names, menus. Texts
/// that are set by code, such as list headers, are left alone. The English texts are kept, so it
/// can be called again for another language.
///
/// A field for a time always runs from left to right.
void TranslateWindow(QWidget& window, const TranslateText& translate);

/// Real message boxes, over the active window.
class WindowMessageBoxes : public MessageBoxes {
public:
    MessageAnswer Show(const Message& message) override;
};

/// Selects all of a field's text whenever the field gets the focus.
void SelectAllOnFocus(QLineEdit& field);

/// Selects the part of a date or time that gets the focus or is clicked, so that typing replaces
/// it.
void SelectSectionOnFocus(QDateTimeEdit& field);

/// From now on the Tab key enters each group of radio buttons of the window at the one that is
/// checked. A group is all those with the same parent.
void EnterGroupsAtChecked(QWidget& window);

/// Shows the operator where a mistake is: gives the field the focus and selects its text.
void FocusAndSelect(QLineEdit& field);

/// Shows the hourglass while it exists.
class Hourglass {
public:
    Hourglass();
    ~Hourglass();
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};

/// Shows the arrow instead of the hourglass while it exists: for a window that needs an answer
/// during work.
class ArrowPointer {
public:
    ArrowPointer();
    ~ArrowPointer();
    ArrowPointer(const ArrowPointer&) = delete;
    ArrowPointer& operator=(const ArrowPointer&) = delete;

private:
    bool m_shown;
};

/// An icon of the program by its name, in the colours of the palette. If the windows run from right
/// to left, the one whose name also has "-rtl", if there is one.
QIcon ProgramIcon(const QString& name);

/// Shows an icon of the program in a label, in the label's maximum size. It follows the colours of
/// the palette.
void ShowIcon(QLabel& label, const QString& name);

/// Shows a picture file in a label, at half its size in pixels, so that it is sharp on a dense
/// screen too. Throws RunTimeError if the file cannot be read.
void ShowPicture(QLabel& label, const QString& path);

/// Lengths in twips: 1440 to the inch, 15 to a pixel of an ordinary screen.
constexpr int PixelsOf(int twips) { return twips / 15; }
constexpr int TwipsOf(int pixels) { return pixels * 15; }
/// The width, in pixels, of a column that takes that many hundredths of a list, apart from a margin
/// of the list.
constexpr int ColumnWidth(int listWidth, int hundredths) {
    return PixelsOf((TwipsOf(listWidth) - 240) / 100 * hundredths);
}
