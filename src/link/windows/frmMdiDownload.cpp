#include "frmMdiDownload.h"

#include "Clock.h"
#include "DockingLink.h"
#include "Downloads.h"
#include "DueTours.h"
#include "Format.h"
#include "ListColumns.h"
#include "TourWords.h"
#include "WindowTools.h"
#include "frmDownload.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mTranslations.h"
#include "ui_frmMdiDownload.h"

#include <QApplication>
#include <QCloseEvent>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace {

/// After a long time in a drawer, a reader has more tours than anybody wants offered.
constexpr int MostDays = 31, MostOffers = 5;

ListRow RowOf(const cRawButton& touch, qsizetype number) {
    return {{QString::number(number), Format(touch.DateAndTime, QStringLiteral("Short Date")),
             Format(touch.DateAndTime, QStringLiteral("hh:mm")), touch.ButtonCode, touch.Name,
             touch.GroupName},
            {}};
}

} // namespace

frmMdiDownload::frmMdiDownload(DockingLink& link, QWidget* parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::frmMdiDownload>()), m_link(link),
      m_download(link, *this) {
    m_ui->setupUi(this);
    m_ui->cmdOnline_0->setIcon(ProgramIcon(QStringLiteral("download")));
    m_ui->cmdOnline_1->setIcon(ProgramIcon(QStringLiteral("erase")));
    m_ui->lvwDownload->setModel(&m_touches);
    ManageColumns(*m_ui->lvwDownload, QStringLiteral("frmMdiDownload"), {10, 15, 10, 10, 20, 35});
    // They keep their places while they are hidden, so that nothing else moves.
    for (QLabel* label : {m_ui->lblMsg, m_ui->lblWarning}) {
        QSizePolicy policy = label->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        label->setSizePolicy(policy);
        label->hide();
    }
    setFocusProxy(m_ui->cmdOnline_0);
    Translate();
    connect(m_ui->cmdOnline_0, &QPushButton::clicked, this, [this] { cmdOnline_Click(0); });
    connect(m_ui->cmdOnline_1, &QPushButton::clicked, this, [this] { cmdOnline_Click(1); });
}

frmMdiDownload::~frmMdiDownload() = default;

void frmMdiDownload::Translate() {
    TranslateWindow(*this, [](const QString& text) { return ::Translate(text); });
    m_touches.SetColumns({::Translate("Number"), ::Translate("Date"), ::Translate("Time"),
                          ::Translate("ID"), ::Translate("Button Name"), ::Translate("Group Name")},
                         {1, 2, 3});
}

void frmMdiDownload::ShowLink(bool detected) {
    m_ui->cmdOnline_0->setEnabled(detected);
    m_ui->cmdOnline_1->setEnabled(detected);
}

void frmMdiDownload::cmdOnline_Click(int index) {
    if (index == 0) {
        m_ui->fraReports->hide();
        m_download.Run();
        Guarded("OfferReports of Form frmMdiDownload", [this] { OfferReports(); });
    } else
        Guarded("cmdOnline_Click of Form frmMdiDownload", [this] {
            bool succeeded = false;
            EraseReader(false, succeeded);
        });
}

void frmMdiDownload::OfferReports() {
    const MemoryDownload::Outcome& outcome = m_download.LastOutcome();
    if (outcome.rowsStored == 0)
        return;
    const auto [first, last] = std::minmax_element(
        outcome.touches.begin(), outcome.touches.end(),
        [](const cRawButton& a, const cRawButton& b) { return a.DateAndTime < b.DateAndTime; });
    const DateTime now = Now();
    const DateTime before =
        DownloadBefore(outcome.readerId, first->DateAndTime).value_or(first->DateAndTime);
    // A guard who is back early has walked a tour that is not over yet.
    QList<DueTour> due =
        DueToursOfReader(outcome.readerId, std::max(before, now - DateTime::FromDays(MostDays)),
                         now + DateTime::FromDays(1));
    due.removeIf([&](const DueTour& tour) { return tour.start > now; });
    qDeleteAll(m_ui->fraReports->findChildren<QPushButton*>());
    for (const DueTour& tour : due.first(std::min<qsizetype>(due.size(), MostOffers))) {
        QString text = tour.tour.name + QStringLiteral(" - ") +
                       Format(tour.start, QStringLiteral("Short Date")) + QStringLiteral(" - ") +
                       PointSummary(tour.points);
        text.replace(u'&', QStringLiteral("&&")); // not a mnemonic
        auto* offer = new QPushButton(ProgramIcon(QStringLiteral("report")),
                                      InReadingDirection(text), m_ui->fraReports);
        const ReportProposal proposal{outcome.readerId, tour.tour.id, tour.start.DatePart()};
        connect(offer, &QPushButton::clicked, this,
                [this, proposal] { emit ReportWanted(proposal); });
        m_ui->layReports->insertWidget(m_ui->layReports->count() - 1, offer);
    }
    m_ui->lblMoreReports->setVisible(due.size() > MostOffers);
    m_ui->lblMoreReports->setText(FormatStr(::Translate("More on the Reports page: %0:s"),
                                            {QString::number(due.size() - MostOffers)}));
    m_ui->fraReports->setVisible(!due.isEmpty());
    ProposeAfterDownload(
        due.isEmpty()
            ? ReportProposal{outcome.readerId, 0, last->DateAndTime.DatePart()}
            : ReportProposal{outcome.readerId, due.first().tour.id, due.first().start.DatePart()});
}

void frmMdiDownload::EraseReader(bool silent, bool& succeeded) {
    m_download.EraseReader(silent, succeeded);
}

TransferResult frmMdiDownload::RunTransfer(TransferPurpose purpose) {
    frmDownload dialog(m_link, window());
    return dialog.Run(purpose);
}

void frmMdiDownload::ShowBusy(bool busy) {
    if (busy)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
    // The station may have gone meanwhile. Tests run the page without a main window.
    const bool usable = !busy && m_link.comPort().PortOpen();
    m_ui->cmdOnline_0->setEnabled(usable);
    m_ui->cmdOnline_1->setEnabled(usable);
    emit BusyChanged(busy);
    if (!busy && std::exchange(m_closeWhenDone, false)) {
        gWaitCancelled = false;
        QTimer::singleShot(0, window(), &QWidget::close);
    }
}

void frmMdiDownload::ShowMessageText(const QString& text) {
    m_ui->lblMsg->setText(text);
    m_ui->lblMsg->setVisible(!text.isEmpty());
}

void frmMdiDownload::ShowWarning(bool visible) { m_ui->lblWarning->setVisible(visible); }

void frmMdiDownload::ClearList() { m_touches.SetRows({}); }

void frmMdiDownload::ShowTouches(const colRawButtons& touches) {
    QList<ListRow> rows;
    for (const cRawButton& touch : touches)
        rows += RowOf(touch, rows.size() + 1);
    m_touches.SetRows(std::move(rows));
}

void frmMdiDownload::ShowLastRow() { SelectPlace(*m_ui->lvwDownload, m_touches.rowCount() - 1); }

void frmMdiDownload::ShowStatus(const QString& text) { emit StatusChanged(text); }

void frmMdiDownload::closeEvent(QCloseEvent* event) {
    event->setAccepted(!Busy());
    // A wait that would only end with a frame must not keep the window open.
    if (Busy() && m_link.EndOverdueWait())
        m_closeWhenDone = true;
}
