#pragma once

#include "Clock.h"
#include "DatabaseReportBuilder.h"
#include "RunTimeError.h"

#include <QDialog>

#include <memory>
#include <optional>

namespace Ui {
class frmWaitReport;
}

/// The window that copies the events of the database report while it is shown. It shows how far the
/// copy has come. Cancel, Escape and the close button stop it. If there are no events, or the copy
/// fails, it says so and stays open until Cancel.
class frmWaitReport : public QDialog {
    Q_OBJECT
public:
    /// `rows` will be open on the copied events. It must outlive the window.
    frmWaitReport(Recordset& rows, QWidget* parent);
    ~frmWaitReport() override;

    /// What is copied. Set before the window is shown.
    EventQuery CommandSQL;
    /// What it says below its message if there are no events; translated.
    QString NoEventsAdvice;
    /// The events were copied.
    bool OK() const { return result() == Accepted; }

    /// Shows the window until it closes; gives OK. Throws what CopyEvents has thrown.
    bool Run();

    void reject() override;

private:
    void GoProcessData();
    bool ShowProgress(int done, int all);
    void ShowResult(const char* text, const QString& advice = {});

    std::unique_ptr<Ui::frmWaitReport> m_ui;
    Recordset& m_rows;
    Timer m_tmrStart;
    bool m_copying = false;
    bool m_cancelled = false;
    std::int64_t m_shownAt = 0; ///< MillisecondsRunning when the progress was last shown
    std::optional<RunTimeError> m_failure;
};
