#pragma once

#include "WindowTools.h"

#include <QProgressDialog>

#include <optional>

/// Shows the progress of long work on pages, with a button that cancels it. It appears only if the
/// work takes longer than about a second; until then the hourglass is shown and no events are
/// handled. While it is visible, no other window takes keys or clicks.
class ProgressWindow {
public:
    /// `title` is in English.
    ProgressWindow(const char* title, TranslateText translate, QWidget* parent);

    /// Call it before each page. False once the operator has cancelled the work.
    bool operator()(int done, int all);

private:
    TranslateText m_translate;
    std::optional<Hourglass> m_hourglass{std::in_place};
    QProgressDialog m_window;
};
