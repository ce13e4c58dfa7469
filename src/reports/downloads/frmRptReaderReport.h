#pragma once

#include "DateTime.h"

#include <QDialog>

#include <memory>

class ReportViewer;
namespace Ui {
class frmRptReaderReport;
}

/// The dialog of the reader download report: chooses a reader and a time range.
class frmRptReaderReport : public QDialog {
    Q_OBJECT
public:
    /// The viewer must outlive the dialog. Throws RunTimeError if the readers cannot be read.
    frmRptReaderReport(ReportViewer& viewer, QWidget* parent);
    ~frmRptReaderReport() override;

    /// Always false: only Cancel closes the dialog.
    bool OK() const { return result() == Accepted; }
    /// The reader selected in the list.
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
