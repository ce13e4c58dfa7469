#include "frmRptIncidentParam.h"

#include "ReportButtons.h"
#include "WindowTools.h"
#include "mErrorHandler.h"
#include "mTranslations.h"
#include "ui_frmRptIncidentParam.h"

frmRptIncidentParam::frmRptIncidentParam(ReportViewer& viewer, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmRptIncidentParam>()), m_viewer(viewer) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    JoinReportButtons(*this, *m_ui->cmdPrintPreview, *m_ui->cmdCancel,
                      [this] { cmdPrintPreview_Click(); });
    InitParamForm();
}

frmRptIncidentParam::~frmRptIncidentParam() = default;

void frmRptIncidentParam::InitParamForm() {
    for (QComboBox* list : {m_ui->cboEvent, m_ui->cboSite, m_ui->cboReader})
        list->addItem(Translate("All"), IncidentSitesRequest::NoFilter);
    for (const Button& event : EventFilters())
        m_ui->cboEvent->addItem(event.name, event.id);
    for (const Group& site : GroupsOf(SiteGroup))
        m_ui->cboSite->addItem(site.name, site.id);
    for (const Reader& reader : ReaderFilters()) {
        m_ui->cboReader->addItem(reader.description, mReaderIds.size());
        mReaderIds += reader.id;
    }
}

IncidentSitesRequest frmRptIncidentParam::Request() const {
    // The data of "All" is -1, which is not in the list, so value() gives an empty text: no filter.
    return {.StartDate = m_ui->range->Start(),
            .EndDate = m_ui->range->End(LastMinute::Whole),
            .EventId = m_ui->cboEvent->currentData().toInt(),
            .EventName = m_ui->cboEvent->currentText(),
            .SiteId = m_ui->cboSite->currentData().toInt(),
            .SiteName = m_ui->cboSite->currentText(),
            .ReaderId = mReaderIds.value(m_ui->cboReader->currentData().toInt()),
            .ReaderName = m_ui->cboReader->currentText()};
}

void frmRptIncidentParam::cmdPrintPreview_Click() {
    Guarded("cmdPrintPreview_Click of Form frmRptIncidentParam", ErrorShow::Dialog,
            [this] { BuildIncidentSitesReport(Request(), m_viewer); });
}

void frmRptIncidentParam::done(int result) {
    DropTempIncident();
    QDialog::done(result);
}
