#pragma once

#include "IncidentSitesBuilder.h"

#include <QDialog>
#include <QStringList>

#include <memory>

namespace Ui {
class frmRptIncidentParam;
}

/// The dialog of the incident report with sites: a range of time, and a filter each for event, site
/// and reader.
class frmRptIncidentParam : public QDialog {
    Q_OBJECT
public:
    /// The viewer must outlive the dialog. Throws RunTimeError if the lists cannot be filled.
    frmRptIncidentParam(ReportViewer& viewer, QWidget* parent);
    ~frmRptIncidentParam() override;

    /// The current choice.
    IncidentSitesRequest Request() const;
    /// Always false: only Cancel closes the dialog.
    bool OK() const { return result() == Accepted; }
    /// Kept for compatibility; nothing reads it.
    bool NewStyle = false;
    /// Sets the caption.
    void Title(const QString& text) { setWindowTitle(text); }

    /// Closing drops the table of the report.
    void done(int result) override;

private:
    void InitParamForm();
    void cmdPrintPreview_Click();

    std::unique_ptr<Ui::frmRptIncidentParam> m_ui;
    ReportViewer& m_viewer;
    QStringList mReaderIds;
};
