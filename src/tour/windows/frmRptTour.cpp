#include "frmRptTour.h"

#include "DateTimeRange.h"
#include "LookUps.h"
#include "ReportButtons.h"
#include "ReportProposal.h"
#include "TourReportBuilder.h"
#include "WindowTools.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mSettings.h"
#include "mTranslations.h"
#include "ui_frmRptTour.h"

namespace {

const QString ShowAllKey = QStringLiteral("ShowAllStatus");
const QString DialogName = QStringLiteral("frmRptTour");
const QString ShowEventsKey = QStringLiteral("ShowEventsStatus");

bool SavedOption(const QString& key) { return SavedBoolean(SettingsSection::Settings, key, false); }

void SaveOption(const QString& key, bool value) {
    SaveSetting(SettingsApplication, SettingsSection::Settings, key, BooleanText(value));
}

} // namespace

frmRptTour::frmRptTour(ReportViewer& viewer, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmRptTour>()), m_viewer(viewer) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    EnterGroupsAtChecked(*this);
    PrepareDateField(*m_ui->dtpStartDate);
    connect(m_ui->imgcboReader, &QComboBox::currentIndexChanged, this,
            &frmRptTour::ReadSelectedReader);
    JoinReportButtons(*this, *m_ui->cmdPrintPreview, *m_ui->cmdCancel,
                      [this] { cmdPrintPreview_Click(); });
    Guarded("Form_Load of Form frmRptTour", [this] {
        ReadOptions(); // first: closing saves them, even if the lists cannot be filled
        FillTours();
        FillReaders();
        Propose(ProposalFor(DialogName));
        ReadSelectedReader();
    });
}

frmRptTour::~frmRptTour() = default;

void frmRptTour::FillTours() {
    const QIcon icon = ProgramIcon(QStringLiteral("tour"));
    for (const Tour& tour : ToursByName())
        m_ui->imgcboTour->addItem(icon, tour.name + QStringLiteral(" - ") + tour.description,
                                  tour.id);
    m_ui->cmdPrintPreview->setEnabled(m_ui->imgcboTour->count() > 0);
}

void frmRptTour::FillReaders() {
    const QIcon icon = ProgramIcon(QStringLiteral("reader"));
    for (const Reader& reader : ReadersByDescription())
        m_ui->imgcboReader->addItem(icon, ReaderText(reader), reader.id);
    const bool any = m_ui->imgcboReader->count() > 0;
    m_ui->imgcboReader->setEnabled(any);
    // With readers but no tour the button stays enabled; the report then says what is missing.
    m_ui->cmdPrintPreview->setEnabled(any);
}

void frmRptTour::ReadSelectedReader() { ReaderId = m_ui->imgcboReader->currentData().toString(); }

void frmRptTour::ReadOptions() {
    m_ui->chkIncludeEvents->setChecked(SavedOption(ShowEventsKey));
    m_ui->optShowAll_0->setChecked(true);
    m_ui->optShowAll_1->setChecked(SavedOption(ShowAllKey));
}

void frmRptTour::Propose(const ReportProposal& proposal) {
    for (const auto& [list, tag] : {std::pair(m_ui->imgcboTour, QVariant(proposal.tourId)),
                                    std::pair(m_ui->imgcboReader, QVariant(proposal.readerId))})
        if (const int place = list->findData(tag); place >= 0)
            list->setCurrentIndex(place);
    if (proposal.HasDate())
        m_ui->dtpStartDate->setDate(proposal.date.ToQDate());
}

int frmRptTour::TourID() const { return m_ui->imgcboTour->currentData().toInt(); }

DateTime frmRptTour::StartDate() const { return DateTime::FromQt(m_ui->dtpStartDate->date()); }

bool frmRptTour::IncludeEvents() const { return m_ui->chkIncludeEvents->isChecked(); }

void frmRptTour::cmdPrintPreview_Click() {
    ReadSelectedReader();
    m_reported = true;
    BuildTourReport({TourID(), StartDate(), ReaderId, m_ui->imgcboReader->currentText(),
                     IncludeEvents(), m_ui->optShowAll_1->isChecked()},
                    m_viewer);
}

void frmRptTour::done(int result) {
    SaveOption(ShowAllKey, m_ui->optShowAll_1->isChecked());
    SaveOption(ShowEventsKey, m_ui->chkIncludeEvents->isChecked());
    if (m_reported)
        RememberChoice(DialogName, {ReaderId, TourID(), {}});
    QDialog::done(result);
}
