#pragma once

#include "DateTime.h"

#include <QDialog>

#include <memory>

class ReportViewer;
namespace Ui {
class frmRptIncidentNew;
}

/// The dialog of the incident report: a range of time, readers and events.
class frmRptIncidentNew : public QDialog {
    Q_OBJECT
public:
    /// The viewer must outlive the dialog.
    frmRptIncidentNew(ReportViewer& viewer, QWidget* parent);
    ~frmRptIncidentNew() override;

    /// The current choice.
    DateTime StartDate() const;
    /// The last second of the last minute.
    DateTime EndDate() const;
    /// Always false: only Cancel closes the dialog.
    bool OK() const { return result() == Accepted; }
    /// Kept for compatibility; nothing reads it.
    bool NewStyle = false;
    /// Sets the caption.
    void Title(const QString& text) { setWindowTitle(text); }

    /// Closing drops the table of the report with sites.
    void done(int result) override;

private:
    void InitForm();
    void FillEvents();
    void FillReaders();
    void cmdPrintPreview_Click();

    std::unique_ptr<Ui::frmRptIncidentNew> m_ui;
    ReportViewer& m_viewer;
};
