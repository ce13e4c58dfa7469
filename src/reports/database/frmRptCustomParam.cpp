#include "frmRptCustomParam.h"

#include "Clock.h"
#include "DatabaseReportBuilder.h"
#include "ReportButtons.h"
#include "WindowTools.h"
#include "frmWaitReport.h"
#include "mReports.h"
#include "mTranslations.h"
#include "ui_frmRptCustomParam.h"

frmRptCustomParam::frmRptCustomParam(ReportViewer& viewer, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmRptCustomParam>()), m_viewer(viewer) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    JoinReportButtons(*this, *m_ui->cmdPrintPreview, *m_ui->cmdCancel, [this] { ShowReport(); });
    JoinPreset(*m_ui->cmdPreset_0, 0);
    JoinPreset(*m_ui->cmdPreset_1, 7);
    JoinPreset(*m_ui->cmdPreset_2, 30);
}

frmRptCustomParam::~frmRptCustomParam() = default;

void frmRptCustomParam::JoinPreset(QPushButton& preset, int daysBack) {
    connect(&preset, &QPushButton::clicked, this, [this, daysBack] {
        const QDate today = Today().ToQDate();
        m_ui->range->SetDays(today.addDays(-daysBack), today);
        m_ui->cmdPrintPreview->click();
    });
}

void frmRptCustomParam::ShowReport() {
    const DatabaseReportRequest request{m_ui->range->Start(),
                                        m_ui->range->End(LastMinute::FirstSecond)};
    const auto copy = [this, &request](const EventQuery& query, Recordset& rows) {
        frmWaitReport wait(rows, this);
        wait.CommandSQL = query;
        wait.NoEventsAdvice = SearchedText({}, request.StartDate, request.EndDate);
        return wait.Run();
    };
    BuildDatabaseReport(request, copy, m_viewer);
}
