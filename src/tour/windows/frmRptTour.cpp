#include "frmRptTour.h"

#include "Clock.h"
#include "Format.h"
#include "LookUps.h"
#include "TourReportBuilder.h"
#include "WindowTools.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mSettings.h"
#include "mTranslations.h"
#include "ui_frmRptTour.h"

namespace {

const QString ShowAllKey = QStringLiteral("ShowAllStatus");
const QString ShowEventsKey = QStringLiteral("ShowEventsStatus");

bool SavedOption(const QString& key) { return SavedBoolean(SettingsSection::Settings, key, false); }

void SaveOption(const QString& key, bool value) {
    SaveSetting(SettingsApplication, SettingsSection::Settings, key, BooleanText(value));
}

QString Joined(const QString& left, const QString& right) {
    return left + QStringLiteral(" - ") + right;
}

} // namespace

frmRptTour::frmRptTour(ReportViewer& viewer, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmRptTour>()), m_viewer(viewer) {
    m_ui->setupUi(this);
    TranslateWindow(*this, [](const QString& text) { return Translate(text); });
    SelectSectionOnFocus(*m_ui->dtpStartDate);
    m_ui->dtpStartDate->setDisplayFormat(GetShortDateFormat());
    m_ui->dtpStartDate->setDate(Today().ToQDate());
    connect(m_ui->imgcboReader, &QComboBox::currentIndexChanged, this,
            &frmRptTour::ReadSelectedReader);
    connect(m_ui->cmdPrintPreview, &QPushButton::clicked, this, &frmRptTour::cmdPrintPreview_Click);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    Guarded("Form_Load of Form frmRptTour", [this] {
        ReadOptions(); // first: whatever fails, they are saved again
        FillTours();
        FillReaders();
        ReadSelectedReader();
    });
}

frmRptTour::~frmRptTour() = default;

void frmRptTour::FillTours() {
    const QIcon icon = ProgramIcon(QStringLiteral("tour"));
    for (const Tour& tour : ToursByName())
        m_ui->imgcboTour->addItem(icon, Joined(tour.name, tour.description), tour.id);
    m_ui->cmdPrintPreview->setEnabled(m_ui->imgcboTour->count() > 0);
}

void frmRptTour::FillReaders() {
    const QIcon icon = ProgramIcon(QStringLiteral("reader"));
    for (const Reader& reader : ReadersByDescription())
        m_ui->imgcboReader->addItem(icon, Joined(reader.id, reader.description), reader.id);
    const bool any = m_ui->imgcboReader->count() > 0;
    m_ui->imgcboReader->setEnabled(any);
    // With readers but no tour the button stays enabled; the report then tells what is missing.
    m_ui->cmdPrintPreview->setEnabled(any);
}

void frmRptTour::ReadSelectedReader() { ReaderId = m_ui->imgcboReader->currentData().toString(); }

void frmRptTour::ReadOptions() {
    m_ui->chkIncludeEvents->setChecked(SavedOption(ShowEventsKey));
    m_ui->optShowAll_0->setChecked(true);
    m_ui->optShowAll_1->setChecked(SavedOption(ShowAllKey));
}

void frmRptTour::cmdPrintPreview_Click() {
    TourID = m_ui->imgcboTour->currentData().toInt();
    StartDate = DateTime::FromQt(m_ui->dtpStartDate->date());
    ReadSelectedReader();
    IncludeEvents = m_ui->chkIncludeEvents->isChecked();
    BuildTourReport({TourID, StartDate, ReaderId, m_ui->imgcboReader->currentText(), IncludeEvents,
                     m_ui->optShowAll_1->isChecked()},
                    m_viewer);
}

void frmRptTour::done(int result) {
    SaveOption(ShowAllKey, m_ui->optShowAll_1->isChecked());
    SaveOption(ShowEventsKey, m_ui->chkIncludeEvents->isChecked());
    QDialog::done(result);
}
