#pragma once

#include "WindowTools.h"

#include <QProgressDialog>

#include <optional>

/// Shows the progress of long work, with a button that cancels it. It appears only if the
/// work takes longer than about a second; until then the hourglass is shown and no events are
/// handled. The pointer is then the arrow, even if the caller shows an hourglass of its own. While
/// it is visible, no other window takes keys or clicks.
class ProgressWindow {
public:
    /// Both texts are in English. Without `text` it shows "Page 3 of 12".
    ProgressWindow(const char* title, TranslateText translate, QWidget* parent,
                   const char* text = nullptr);

    /// A WorkProgress: call it before each page, or now and then. Most calls take no time: the
    /// window changes every 50 ms at most. False once the operator has cancelled the work.
    bool operator()(int done, int all);

private:
    TranslateText m_translate;
    bool m_countsPages;
    std::int64_t m_began; ///< by MillisecondsRunning
    std::int64_t m_nextUpdate = 0;
    Hourglass m_hourglass;
    std::optional<ArrowPointer> m_arrow; // after the hourglass: it goes first
    QProgressDialog m_window;
};
