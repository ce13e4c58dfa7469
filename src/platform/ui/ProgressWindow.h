#pragma once

#include "WindowTools.h"

#include <QProgressDialog>

#include <optional>

/// How far a long work on pages has come, with a button that ends it. It appears only when the work
/// takes longer than about a second; until then there is the hourglass, and no event is handled.
/// While it is there, no other window takes a key or a click.
class ProgressWindow {
public:
    /// `title` is in English.
    ProgressWindow(const char* title, TranslateText translate, QWidget* parent);

    /// To be called before each page; false once the operator has ended the work.
    bool operator()(int done, int all);

private:
    TranslateText m_translate;
    std::optional<Hourglass> m_hourglass{std::in_place};
    QProgressDialog m_window;
};
