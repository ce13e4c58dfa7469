#pragma once

#include <QDialog>

#include <memory>

class ReportViewer;
namespace Ui {
class frmRptCustomParam;
}

/// The dialog of the database report: a range of time, and buttons that set it and make the report
/// at once.
class frmRptCustomParam : public QDialog {
    Q_OBJECT
public:
    /// The viewer must outlive the dialog.
    frmRptCustomParam(ReportViewer& viewer, QWidget* parent);
    ~frmRptCustomParam() override;

    /// Always false: only Cancel closes the dialog.
    bool OK() const { return result() == Accepted; }
    /// Makes the report from what the dialog shows.
    void ShowReport();

private:
    void JoinPreset(QPushButton& preset, int daysBack);

    std::unique_ptr<Ui::frmRptCustomParam> m_ui;
    ReportViewer& m_viewer;
};
