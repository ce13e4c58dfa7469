#include "PatrolScheduleBuilder.h"

#include "Clock.h"
#include "Format.h"
#include "ReportViewer.h"
#include "Rows.h"
#include "ScratchTable.h"
#include "cTourReport.h"
#include "darPatrolSchedule.h"
#include "mErrorHandler.h"
#include "mReports.h"
#include "mTranslations.h"

namespace {

const QString PatrolTable = QStringLiteral("tblXXXPatrol");
const QStringList PatrolColumns = {QStringLiteral("tNumber"), QStringLiteral("tTime"),
                                   QStringLiteral("tSite"), QStringLiteral("tLocName")};

/// The tolerance is written as the minutes of a clock time, so an hour or more is not a time.
DateTime ToleranceAsTime(int minutes) {
    if (minutes < 0 || minutes > 59)
        throw RunTimeError(RunTimeErrorNumber::TypeMismatch, QStringLiteral("Type mismatch"));
    return DateTime::FromTime(0, minutes);
}

QString ClockText(DateTime time) { return Format(time, QStringLiteral("Short Time")); }

/// False if the operator cancelled the work.
bool WritePoints(const cTourReport& tour, DateTime tolerance, const WorkProgress& show,
                 Recordset& rows) {
    Rows points(QStringLiteral(
                    "SELECT tblTourPoints.lIndex, tblTourPoints.dtTime, tblButtons.tButtonName AS "
                    "LocName, tblButtons.tButtonDesc AS LocDesc, tblListItems.tName AS SiteName "
                    "FROM (tblTourPoints LEFT JOIN tblButtons ON tblTourPoints.tButtonCode = "
                    "tblButtons.tButtonCode) LEFT JOIN tblListItems ON tblButtons.lParentID = "
                    "tblListItems.ID WHERE (((tblTourPoints.lParentID) = ?)) "
                    "ORDER BY tblTourPoints.lIndex; "),
                {tour.TourID});
    RowProgress progress(show, points.RecordCount());
    DateTime time = tour.StartTime;
    for (int number = 1; !points.Eof(); points.MoveNext(), ++number) {
        time = time + points.Date(u"dtTime"); // the interval since the point before it
        rows.AddNew();
        rows.Set(u"tNumber", QString::number(number));
        rows.Set(u"tTime", ClockText(time) + QStringLiteral("     (") +
                               ClockText(time - tolerance) + QStringLiteral(" ~ ") +
                               ClockText(time + tolerance) + u')');
        rows.Set(u"tSite", points.Text(u"SiteName") + u' ');
        rows.Set(u"tLocName", points.Text(u"LocName") + u' ');
        if (!progress.Step())
            return false;
    }
    return true;
}

void Print(const cTourReport& tour, Recordset& rows, ReportViewer& viewer) {
    darPatrolSchedule report;
    report.SetDataSource(&rows);
    report.SetReportParam({{u"lblReportTitle", Translate("Patrol Schedule Report")},
                           {u"lblTourName", tour.TourName},
                           {u"lblTourDesc", tour.TourDesc},
                           {u"lblTolerance", QString::number(tour.Tolerance) +
                                                 QStringLiteral("  ") + Translate("Minutes")},
                           {u"lblCompanyInfo", CompanyText()}});
    NameDocument(report, {tour.TourName}, Today(), Today());
    SetFrameText(report, u"Label16", u"Label18", u"Label15", u"lblEnd");
    report.SetText({{u"Label9", Translate("Tour Name:")},
                    {u"lblDate", Translate("Tour Description:")},
                    {u"Label1", Translate("Tour Tolerance:")},
                    {u"Label2", Translate("No.")},
                    {u"lblHdrTime", Translate("Time")},
                    {u"Label10", Translate("Site")},
                    {u"Label3", Translate("Location")}});
    ShowLayoutFrame(report, viewer);
}

} // namespace

void BuildPatrolSchedule(int tourId, ReportViewer& viewer) {
    Guarded("BuildPatrolSchedule of Form frmRptPatrolSchedule", ErrorShow::Dialog, [&] {
        cTourReport tour;
        tour.TourID = tourId;
        if (!tour.LoadTourHeader()) {
            IvMessageBox(Translate("Error in creating new Tour"),
                         Translate("This tour does not exist any more, or it cannot be read."));
            return;
        }
        const DateTime tolerance = ToleranceAsTime(tour.Tolerance);
        Recordset rows;
        const auto fill = [&] {
            return FillScratchTable(PatrolTable, PatrolColumns, rows, [&] {
                return WritePoints(tour, tolerance, viewer.Progress(), rows);
            });
        };
        WithScratchTables(fill, [&] { Print(tour, rows, viewer); });
    });
    DropScratchTable(PatrolTable);
}
