#include "cTourReport.h"

#include "LookUps.h"
#include "Recordset.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mReports.h"
#include "mTranslations.h"

namespace {

/// The window, in minutes, of a tour without tolerance.
constexpr int WindowWithoutTolerance = 15;

void OpenQuery(Recordset& rows, const QString& sql, const Values& values) {
    rows.CursorLocation = adUseClient;
    rows.Open(sql, values, *gConn, adOpenStatic, adLockOptimistic, adCmdText);
}

cLocation LocationOf(Recordset& rows) {
    return {rows.Date(u"dtDateTime"),
            FixedCode(rows.Text(u"tButtonCode")),
            rows.Text(u"tButtonName"),
            rows.Text(u"tButtonDesc"),
            rows.Text(u"tGroupName"),
            rows.Text(u"tGroupDesc"),
            {}};
}

cEvent EventOf(Recordset& rows) {
    return {rows.Date(u"dtDateTime"),  FixedCode(rows.Text(u"tButtonCode")),
            rows.Text(u"tButtonName"), rows.Text(u"tButtonDesc"),
            rows.Text(u"tGroupName"),  rows.Text(u"tGroupDesc")};
}

} // namespace

bool cTourReport::LoadTourHeader() {
    if (TourID < 1)
        return false;
    return Guarded("LoadTourHeader of Class Module cTourReport", [this] {
        const std::optional<Tour> tour = FindTour(TourID);
        if (!tour)
            return false;
        TourName = tour->name;
        TourDesc = tour->description;
        Tolerance = tour->tolerance;
        TourWindow = GetToleranceAsDate();
        StartTime = tour->startTime;
        return true;
    });
}

bool cTourReport::LoadTourPoints() {
    m_tourPoints.clear();
    return Guarded("LoadTourPoints of Class Module cTourReport", [this] {
        Recordset rows;
        OpenQuery(rows,
                  QStringLiteral("SELECT tblTourPoints.lIndex, tblTourPoints.dtTime, "
                                 "tblTourPoints.tButtonCode, tblButtons.tButtonName, "
                                 "tblButtons.tButtonDesc, tblListItems.tName AS tSiteName "
                                 "FROM (tblTourPoints LEFT JOIN tblButtons ON "
                                 "tblTourPoints.tButtonCode = tblButtons.tButtonCode) "
                                 "LEFT JOIN tblListItems ON tblButtons.lParentID = tblListItems.ID "
                                 "Where (((tblTourPoints.lParentID) = ?)) "
                                 "ORDER BY tblTourPoints.lIndex; "),
                  {TourID});
        if (rows.RecordCount() < 1)
            return false;
        const QTime start = StartTime.ToQTime();
        // Each point's time is the interval since the point before it, so plain addition carries a
        // tour over midnight into the next day.
        DateTime time = StartDate.DatePart() + DateTime::FromTime(start.hour(), start.minute());
        for (; !rows.Eof(); rows.MoveNext()) {
            time = time + rows.Date(u"dtTime");
            m_tourPoints.push_back({static_cast<int>(rows.Number(u"lIndex")), time,
                                    rows.Text(u"tButtonCode"), rows.Text(u"tButtonName"),
                                    rows.Text(u"tButtonDesc"), rows.Text(u"tSiteName"), false});
        }
        return true;
    });
}

bool cTourReport::LoadReaderEvents() {
    return Guarded("LoadReaderEvents of Class Module cTourReport", [this] {
        const bool any = ReadReaderEvents();
        if (!any)
            TellOfNoData();
        return any;
    });
}

bool cTourReport::ReadReaderEvents() {
    const int margin = Tolerance >= 1 && Tolerance < 60 ? Tolerance : WindowWithoutTolerance;
    TourWindow = DateTime::FromTime(0, margin);
    m_buttons.clear();
    Recordset rows;
    OpenQuery(rows,
              QStringLiteral("SELECT ID, dtDateTime, tButtonCode, tButtonName, tButtonDesc, "
                             "tGroupName, tGroupDesc, wGroupType FROM tblEvents "
                             "WHERE ((wGroupType = 1) OR (wGroupType = 2)) AND (tPipeID = ?) "
                             "AND (dtDateTime >= ?) AND (dtDateTime <= ?) "
                             "ORDER BY dtDateTime, ID;"),
              {ReaderId, m_GetStartDate(), m_GetEndDate()});
    for (; !rows.Eof(); rows.MoveNext()) {
        if (rows.Number(u"wGroupType") == SiteGroup)
            m_buttons.push_back(LocationOf(rows));
        else if (!m_buttons.empty()) // an event before the first location has no place
            m_buttons.back().Events.push_back(EventOf(rows));
    }
    return rows.RecordCount() > 0;
}

void cTourReport::TellOfNoData() const {
    IvMessageBox(Translate("No Data on the report"),
                 SearchedText({{QT_TR_NOOP("Reader"), ReaderTextOf(ReaderId)},
                               {QT_TR_NOOP("Tour"), GetTourFullName()}},
                              m_GetStartDate(), m_GetEndDate()));
}

DateTime cTourReport::m_GetStartDate() const {
    return m_tourPoints.front().PointDateTime - TourWindow;
}

DateTime cTourReport::m_GetEndDate() const {
    return m_tourPoints.back().PointDateTime + TourWindow;
}
