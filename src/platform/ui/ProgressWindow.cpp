#include "ProgressWindow.h"

#include "Clock.h"

#include <limits>

namespace {

// Milliseconds.
constexpr int AppearsAfter = 1000;
constexpr int BetweenUpdates = 50; ///< handling events takes time

} // namespace

ProgressWindow::ProgressWindow(const char* title, TranslateText translate, QWidget* parent,
                               const char* text)
    : m_translate(std::move(translate)), m_countsPages(!text), m_began(MillisecondsRunning()),
      m_window(parent) {
    if (text)
        m_window.setLabelText(m_translate(QString::fromUtf8(text)));
    m_window.setWindowTitle(m_translate(QString::fromUtf8(title)));
    m_window.setCancelButtonText(m_translate(QStringLiteral("Cancel")));
    m_window.setWindowModality(Qt::ApplicationModal);
    // Its own rules for when it appears and when it handles events fail while the work stays at one
    // step.
    m_window.setMinimumDuration(std::numeric_limits<int>::max());
    m_window.setAutoReset(false);
}

bool ProgressWindow::operator()(int done, int all) {
    if (MillisecondsRunning() < m_nextUpdate)
        return !m_window.wasCanceled();
    m_window.setMaximum(all);
    if (m_countsPages)
        m_window.setLabelText(m_translate(QStringLiteral("Page")) + u' ' +
                              QString::number(done + 1) + u' ' + m_translate(QStringLiteral("of")) +
                              u' ' + QString::number(all));
    m_window.setValue(done);
    if (!m_window.isVisible() && !m_window.wasCanceled() &&
        MillisecondsRunning() - m_began >= AppearsAfter) {
        m_window.show();
        m_arrow.emplace();
    }
    if (m_window.isVisible())
        DoEvents();
    m_nextUpdate = MillisecondsRunning() + BetweenUpdates;
    return !m_window.wasCanceled();
}
