#include "frmRptReaderReport.h"

#include "Clock.h"
#include "LookUps.h"
#include "ReaderReportBuilder.h"
#include "ReportButtons.h"
#include "ReportProposal.h"
#include "WindowTools.h"
#include "mErrorHandler.h"
#include "mTranslations.h"
#include "ui_frmRptReaderReport.h"

frmRptReaderReport::frmRptReaderReport(ReportViewer& viewer, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmRptReaderReport>()), m_viewer(viewer) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    connect(m_ui->imgcboReader, &QComboBox::currentIndexChanged, this,
            &frmRptReaderReport::ReadSelectedReader);
    connect(m_ui->cmdReset, &QPushButton::clicked, this, &frmRptReaderReport::ResetDates);
    JoinReportButtons(*this, *m_ui->cmdPrintPreview, *m_ui->cmdCancel, [this] {
        Guarded("cmdPrintPreview_Click of Form frmRptReaderReport",
                [this] { cmdPrintPreview_Click(); });
    });
    LoadReaders();
    if (const int place = m_ui->imgcboReader->findData(ProposalFor(objectName()).readerId);
        place >= 0)
        m_ui->imgcboReader->setCurrentIndex(place);
    ReadSelectedReader();
}

frmRptReaderReport::~frmRptReaderReport() = default;

void frmRptReaderReport::LoadReaders() {
    m_ui->cmdPrintPreview->setEnabled(false);
    const QIcon icon = ProgramIcon(QStringLiteral("reader"));
    for (const Reader& reader : ReadersByDescription())
        m_ui->imgcboReader->addItem(icon, ReaderText(reader), reader.id);
    m_ui->cmdPrintPreview->setEnabled(m_ui->imgcboReader->count() > 0);
}

void frmRptReaderReport::ReadSelectedReader() {
    const QString separator = QStringLiteral(" - ");
    ReaderId = m_ui->imgcboReader->currentData().toString();
    ReaderDesc = m_ui->imgcboReader->currentText().section(separator, 1);
}

void frmRptReaderReport::ResetDates() {
    const QDate today = Today().ToQDate();
    m_ui->range->SetDays(today, today);
}

void frmRptReaderReport::cmdPrintPreview_Click() {
    ReadSelectedReader();
    StartDate = m_ui->range->Start();
    EndDate = m_ui->range->End(LastMinute::FirstSecond);
    RememberChoice(objectName(), {ReaderId, 0, {}});
    BuildReaderReport({StartDate, EndDate, ReaderId, ReaderDesc}, m_viewer);
}
