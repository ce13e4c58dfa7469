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

    /// What is chosen now.
    IncidentSitesRequest Request() const;
    /// Always false: the dialog makes its reports itself.
    bool OK() const { return result() == Accepted; }
    /// Published, and read by nothing: there is only one style.
    bool NewStyle = false;
    /// Sets the caption.
    void Title(const QString& text) { setWindowTitle(text); }

    /// Closing drops the table of the report.
    void done(int result) override;

private:
    void InitParamForm();

    std::unique_ptr<Ui::frmRptIncidentParam> m_ui;
    ReportViewer& m_viewer;
    QStringList mReaderIds;
};
