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

frmRptTour::frmRptTour(ReportViewer& viewer, QWidget* parent, const ReportProposal* proposal)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmRptTour>()), m_viewer(viewer) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    EnterGroupsAtChecked(*this);
    PrepareDateField(*m_ui->dtpStartDate);
    connect(m_ui->imgcboReader, &QComboBox::currentIndexChanged, this,
            &frmRptTour::ReadSelectedReader);
    JoinReportButtons(*this, *m_ui->cmdPrintPreview, *m_ui->cmdCancel,
                      [this] { cmdPrintPreview_Click(); });
    Guarded("Form_Load of Form frmRptTour", [&] {
        ReadOptions(); // first: closing saves them, even if the lists cannot be filled
        FillTours();
        FillReaders();
        Propose(proposal ? *proposal : ProposalFor(DialogName));
        ReadSelectedReader();
    });
}

frmRptTour::~frmRptTour() = default;

void frmRptTour::FillTours() {
    const QIcon icon = ProgramIcon(QStringLiteral("tour"));
    for (const Tour& tour : ToursByName())
        m_ui->imgcboTour->addItem(icon, tour.name + QStringLiteral(" - ") + tour.description,
                                  tour.id);
}

void frmRptTour::FillReaders() {
    const QIcon icon = ProgramIcon(QStringLiteral("reader"));
    for (const Reader& reader : ReadersByDescription())
        m_ui->imgcboReader->addItem(icon, ReaderText(reader), reader.id);
    m_ui->imgcboReader->setEnabled(m_ui->imgcboReader->count() > 0);
    m_ui->imgcboReader->setPlaceholderText(Translate("Choose the reader"));
}

void frmRptTour::ReadSelectedReader() {
    ReaderId = m_ui->imgcboReader->currentData().toString();
    m_ui->cmdPrintPreview->setEnabled(m_ui->imgcboReader->currentIndex() >= 0);
}

void frmRptTour::ReadOptions() {
    m_ui->chkIncludeEvents->setChecked(SavedOption(ShowEventsKey));
    m_ui->optShowAll_0->setChecked(true);
    m_ui->optShowAll_1->setChecked(SavedOption(ShowAllKey));
}

void frmRptTour::Propose(const ReportProposal& proposal) {
    if (const int place = m_ui->imgcboTour->findData(proposal.tourId); place >= 0)
        m_ui->imgcboTour->setCurrentIndex(place);
    const int reader = m_ui->imgcboReader->findData(proposal.readerId);
    // A date means a certain run of the tour: another reader had nothing to do with it.
    if (reader >= 0 || proposal.HasDate())
        m_ui->imgcboReader->setCurrentIndex(reader);
    if (proposal.HasDate())
        m_ui->dtpStartDate->setDate(proposal.date.ToQDate());
    if (reader < 0 && proposal.HasDate())
        m_ui->imgcboReader->setFocus();
}

int frmRptTour::TourID() const { return m_ui->imgcboTour->currentData().toInt(); }

DateTime frmRptTour::StartDate() const { return DateTime::FromQt(m_ui->dtpStartDate->date()); }

bool frmRptTour::IncludeEvents() const { return m_ui->chkIncludeEvents->isChecked(); }

void frmRptTour::cmdPrintPreview_Click() {
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
