#include "frmRptPatrolSchedule.h"

#include "Format.h"
#include "ListColumns.h"
#include "LookUps.h"
#include "PatrolScheduleBuilder.h"
#include "ReportButtons.h"
#include "WindowTools.h"
#include "mTranslations.h"
#include "ui_frmRptPatrolSchedule.h"

frmRptPatrolSchedule::frmRptPatrolSchedule(ReportViewer& viewer, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmRptPatrolSchedule>()), m_viewer(viewer) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    m_tours.SetColumns({Translate("Tour Name"), Translate("Description"), Translate("Start Time")});
    m_tours.SetIcon(ProgramIcon(QStringLiteral("tour")));
    JoinList(*m_ui->lvwMain, m_tours);
    JoinReportButtons(*this, *m_ui->cmdPrintPreview, *m_ui->cmdCancel,
                      [this] { RunSelectedTour(); });
    connect(m_ui->lvwMain, &QTreeView::doubleClicked, m_ui->cmdPrintPreview, &QPushButton::click);
    LoadTours();
    // They take more than the width of the list, so it scrolls sideways.
    ManageColumns(*m_ui->lvwMain, QStringLiteral("frmRptPatrolSchedule"), {30, 50, 30});
}

frmRptPatrolSchedule::~frmRptPatrolSchedule() = default;

void frmRptPatrolSchedule::LoadTours() {
    QList<ListRow> rows;
    for (const Tour& tour : ToursByName())
        rows +=
            ListRow{{tour.name, tour.description, Format(tour.startTime, QStringLiteral("hh:mm"))},
                    tour.id};
    m_tours.SetRows(std::move(rows));
    SelectPlace(*m_ui->lvwMain, 0);
}

void frmRptPatrolSchedule::RunSelectedTour() {
    const int place = SelectedPlace(*m_ui->lvwMain);
    if (place < 0)
        return;
    ID = m_tours.Row(place).tag.toInt();
    BuildPatrolSchedule(ID, m_viewer);
}
