#pragma once

#include "DateTime.h"

#include <QDialog>

#include <memory>

class ReportViewer;
namespace Ui {
class frmRptReaderReport;
}

/// The dialog of the reader download report: reader and range of time.
class frmRptReaderReport : public QDialog {
    Q_OBJECT
public:
    /// The viewer must outlive the dialog.
    frmRptReaderReport(ReportViewer& viewer, QWidget* parent);
    ~frmRptReaderReport() override;

    /// Always false: the dialog makes its reports itself.
    bool OK() const { return result() == Accepted; }
    /// Follow the choice of the reader.
    QString ReaderId;
    QString ReaderDesc;
    /// The range of the last report.
    DateTime StartDate;
    DateTime EndDate;

private:
    void LoadReaders();
    void ReadSelectedReader();
    void ResetDates();
    void cmdPrintPreview_Click();

    std::unique_ptr<Ui::frmRptReaderReport> m_ui;
    ReportViewer& m_viewer;
};
