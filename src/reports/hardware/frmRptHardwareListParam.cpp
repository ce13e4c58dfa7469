#include "frmRptHardwareListParam.h"

#include "HardwareListBuilder.h"
#include "ReportButtons.h"
#include "WindowTools.h"
#include "mTranslations.h"
#include "ui_frmRptHardwareListParam.h"

frmRptHardwareListParam::frmRptHardwareListParam(ReportViewer& viewer, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmRptHardwareListParam>()) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    // Only this box updates the button; docs/why.md says why.
    connect(m_ui->chkLocation, &QCheckBox::clicked, this,
            &frmRptHardwareListParam::UpdatePreviewButton);
    JoinReportButtons(*this, *m_ui->cmdPrintPreview, *m_ui->cmdCancel, [this, &viewer] {
        BuildHardwareListReport({PrintLocation(), PrintEvent(), PrintReader()}, viewer);
    });
    UpdatePreviewButton();
}

frmRptHardwareListParam::~frmRptHardwareListParam() = default;

bool frmRptHardwareListParam::PrintLocation() const { return m_ui->chkLocation->isChecked(); }

bool frmRptHardwareListParam::PrintEvent() const { return m_ui->chkEvent->isChecked(); }

bool frmRptHardwareListParam::PrintReader() const { return m_ui->chkReader->isChecked(); }

void frmRptHardwareListParam::UpdatePreviewButton() {
    m_ui->cmdPrintPreview->setEnabled(PrintLocation() || PrintEvent() || PrintReader());
}
