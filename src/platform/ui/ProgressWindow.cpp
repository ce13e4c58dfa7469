#include "ProgressWindow.h"

#include <QCoreApplication>

namespace {

constexpr int AppearsAfter = 1000; // milliseconds

} // namespace

ProgressWindow::ProgressWindow(const char* title, TranslateText translate, QWidget* parent,
                               const char* text)
    : m_translate(std::move(translate)), m_countsPages(!text), m_window(parent) {
    if (text)
        m_window.setLabelText(m_translate(QString::fromUtf8(text)));
    m_window.setWindowTitle(m_translate(QString::fromUtf8(title)));
    m_window.setCancelButtonText(m_translate(QStringLiteral("Cancel")));
    m_window.setWindowModality(Qt::ApplicationModal);
    m_window.setMinimumDuration(AppearsAfter);
    m_window.setAutoReset(false);
    m_age.start();
}

bool ProgressWindow::operator()(int done, int all) {
    m_window.setMaximum(all);
    if (m_countsPages)
        m_window.setLabelText(m_translate(QStringLiteral("Page")) + u' ' +
                              QString::number(done + 1) + u' ' + m_translate(QStringLiteral("of")) +
                              u' ' + QString::number(all));
    if (done != m_window.value()) {
        m_window.setValue(done);                 // handles events once the window is visible
    } else if (m_age.hasExpired(AppearsAfter)) { // setValue would do nothing
        m_window.show();
        QCoreApplication::processEvents();
    }
    if (m_window.isVisible() && !m_arrow)
        m_arrow.emplace();
    return !m_window.wasCanceled();
}
