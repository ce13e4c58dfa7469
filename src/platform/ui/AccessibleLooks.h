#pragma once

#include <QPalette>

#include <memory>

class QColor;

/// What everybody must be able to see, in the colours of any theme.

/// The contrast of two colours, from 1 to 21 (WCAG 2.2).
double Contrast(const QColor& one, const QColor& other);
/// What text needs at least (WCAG 2.2, level AA).
constexpr double TextContrast = 4.5;
/// What signs need at least, and the mark of the focus.
constexpr double SignContrast = 3.0;

/// A colour as near to `colour` as possible that can be read on `background`.
QColor Readable(const QColor& colour, const QColor& background, double contrast = TextContrast);

/// While it exists, the widget that has the focus is framed as long as the operator works with the
/// keyboard, selected texts can be read in every palette, and Arabic words are written whole. The
/// application must exist, with its style.
class AccessibleLooks {
public:
    AccessibleLooks();
    ~AccessibleLooks();
    AccessibleLooks(const AccessibleLooks&) = delete;
    AccessibleLooks& operator=(const AccessibleLooks&) = delete;

private:
    class Watcher;
    std::unique_ptr<Watcher> m_watcher;
};
