#pragma once

#include <QDialog>

#include <memory>

class ReportViewer;
namespace Ui {
class frmRptHardwareListParam;
}

/// The dialog of the hardware list: what the list shows.
class frmRptHardwareListParam : public QDialog {
    Q_OBJECT
public:
    /// The viewer must outlive the dialog.
    frmRptHardwareListParam(ReportViewer& viewer, QWidget* parent);
    ~frmRptHardwareListParam() override;

    /// The current choice.
    bool PrintLocation() const;
    bool PrintEvent() const;
    bool PrintReader() const;
    /// Always false: only Cancel closes the dialog.
    bool OK() const { return result() == Accepted; }

private:
    void UpdatePreviewButton();

    std::unique_ptr<Ui::frmRptHardwareListParam> m_ui;
};
