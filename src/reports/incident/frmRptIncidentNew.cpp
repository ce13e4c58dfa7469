#include "frmRptIncidentNew.h"

#include "IncidentReportBuilder.h"
#include "ReportButtons.h"
#include "ScratchTable.h"
#include "WindowTools.h"
#include "mErrorHandler.h"
#include "mTranslations.h"
#include "ui_frmRptIncidentNew.h"

frmRptIncidentNew::frmRptIncidentNew(ReportViewer& viewer, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmRptIncidentNew>()), m_viewer(viewer) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    JoinReportButtons(*this, *m_ui->cmdPrintPreview, *m_ui->cmdCancel,
                      [this] { cmdPrintPreview_Click(); });
    Guarded("Form_Load of Form frmRptIncidentNew", [this] { InitForm(); });
}

frmRptIncidentNew::~frmRptIncidentNew() = default;

void frmRptIncidentNew::InitForm() {
    Guarded("InitForm of Form frmRptIncidentNew", [this] {
        FillEvents();
        FillReaders();
    });
}

// Operators know the messages of the two empty lists as they are: each names the other list.

void frmRptIncidentNew::FillEvents() {
    const QList<EventButton> events = EventButtons();
    if (events.isEmpty()) {
        m_ui->cmdPrintPreview->setEnabled(false);
        IvMessageBox(Translate("There must be at least one reader selected to create a report"),
                     Translate("No event is defined. A master adds event books on the Setup "
                               "page."));
    }
    m_ui->Events->Clear();
    m_ui->Events->SetHeader(Translate("Select Incident/s"));
    for (const EventButton& event : events)
        m_ui->Events->Add(IncidentText(event), event.id, event.description);
}

void frmRptIncidentNew::FillReaders() {
    const QList<Reader> readers = ReadersById();
    if (readers.isEmpty()) {
        m_ui->cmdPrintPreview->setEnabled(false);
        IvMessageBox(Translate("There must be at least one event selected to create a report"),
                     Translate("No reader is defined.") + u' ' +
                         Translate("A master adds readers on the Setup page."));
    }
    m_ui->Readers->focusProxy()->setAccessibleName(Translate("Readers")); // it has no header
    m_ui->Readers->Clear();
    for (const Reader& reader : readers)
        m_ui->Readers->Add(reader.id + reader.description, QVariant::fromValue(reader));
}

DateTime frmRptIncidentNew::StartDate() const { return m_ui->range->Start(); }

DateTime frmRptIncidentNew::EndDate() const { return m_ui->range->End(LastMinute::Whole); }

void frmRptIncidentNew::cmdPrintPreview_Click() {
    // The label is that of the dialog of the report with sites.
    Guarded("cmdPrintPreview_Click of Form frmRptIncidentParam", ErrorShow::Dialog, [this] {
        IncidentReportRequest request{StartDate(), EndDate(), {}, {}};
        for (const QVariant& tag : m_ui->Readers->CheckedTags())
            request.Readers += tag.value<Reader>();
        for (const QVariant& tag : m_ui->Events->CheckedTags())
            request.Events += tag.toInt();
        if (IncidentsAreSelected(request))
            BuildIncidentReport(request, m_viewer);
    });
}

void frmRptIncidentNew::done(int result) {
    DropScratchTable(TempIncident);
    QDialog::done(result);
}
