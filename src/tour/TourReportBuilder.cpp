#include "TourReportBuilder.h"

#include "Format.h"
#include "ScratchTable.h"
#include "StoreFailure.h"
#include "TourExceptionTable.h"
#include "TourWords.h"
#include "darTourException.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mReports.h"
#include "mTranslations.h"

#include <vector>

namespace {

const QString ShortTime = QStringLiteral("Short Time");

QString PlaceText(const QString& group, const QString& name) {
    return group + QStringLiteral(" - ") + name;
}

QString ClockText(DateTime time) { return Format(time, QStringLiteral("hh:nn")); }

void ShowFailure(const char* code, const QString& advice) {
    IvMessageBox(Translate("Error in creating new Tour") + QStringLiteral("\r\n") +
                     QString::fromUtf8(code),
                 advice);
}

QString SeeTheLog() { return Translate("See error.log for the reason."); }

/// Writes the report's lines from the evaluation.
class LineWriter {
public:
    LineWriter(const cTourReport& tour, const TourReportRequest& request, TourExceptionTable& table)
        : m_tour(tour), m_request(request), m_table(table) {}

    void WriteAll(const std::vector<PointOutcome>& outcomes) {
        for (std::size_t i = 0; i < outcomes.size(); ++i)
            WritePoint(m_tour.TourPoints()[i], outcomes[i]);
        if (m_noLinesWritten) {
            m_table.WriteNote(Translate("NO EXCEPTIONS"));
            m_table.WriteSeparator();
        }
    }

private:
    void WritePoint(const cTourPoint& point, const PointOutcome& outcome) {
        // If no touch was left, m_showPoint is still that of an earlier point. So if points that
        // need no line have used up all touches, the points after them get no line either.
        if (outcome.touchesWereLeft)
            m_showPoint = !(point.PointOK && !m_request.ShowAll);
        if (!m_showPoint)
            return;
        if (outcome.touches.empty())
            WriteTourLine(point, Translate("MISSING"));
        else
            WriteTourLine(point, Translate(point.PointOK ? "ON TIME" : "EXCEPTION"));
        for (const AssignedTouch& assigned : outcome.touches)
            WriteTouch(assigned.touch, assigned.touchClass);
    }

    void WriteTourLine(const cTourPoint& point, const QString& status) {
        const DateTime time = point.PointDateTime;
        const DateTime tolerance = m_tour.GetToleranceAsDate();
        const QString range = Format(time - tolerance, ShortTime) + u' ' + Translate("to") + u' ' +
                              Format(time + tolerance, ShortTime);
        m_table.WriteTourLine(point.PointIndex, Format(time, ShortTime), range,
                              PlaceText(point.SiteName, point.ButtonName), status);
        m_noLinesWritten = false;
    }

    void WriteTouch(const cLocation& touch, TouchClass touchClass) {
        m_table.WriteDetailLine(ClockText(touch.DateAndTime), StatusWord(touchClass),
                                PlaceText(touch.GroupName, touch.Name));
        if (!m_request.IncludeEvents)
            return;
        for (const cEvent& event : touch.Events)
            m_table.WriteDetailLine(ClockText(event.DateAndTime), Translate("EVENT"),
                                    PlaceText(event.GroupName, event.Name));
    }

    const cTourReport& m_tour;
    const TourReportRequest& m_request;
    TourExceptionTable& m_table;
    bool m_noLinesWritten = true;
    bool m_showPoint = false;
};

/// Loads the tour and matches it. False if there is nothing to report; a message box has said why.
bool LoadTour(cTourReport& tour) {
    if (!tour.LoadTourHeader()) {
        ShowFailure("<ERROR #0001>",
                    Translate("This tour does not exist any more, or it cannot be read."));
        return false;
    }
    if (!tour.LoadTourPoints()) {
        ShowFailure("<ERROR #0002>", Translate("The tour has no points. A master adds them on the "
                                               "Setup page."));
        return false;
    }
    if (!tour.LoadReaderEvents())
        return false;
    if (tour.Buttons().empty()) {
        tour.TellOfNoData();
        return false;
    }
    if (!TryToMatchTourPoints(tour)) {
        ShowFailure("<ERROR #0004>", SeeTheLog());
        return false;
    }
    return true;
}

/// Creates the scratch table and writes all lines. False after a message box.
bool WriteTable(cTourReport& tour, const TourReportRequest& request, TourExceptionTable& table,
                PointCounts& counts) {
    const auto make = [] {
        const bool made = TourExceptionTable::ResetTempTourTable();
        if (!made)
            ShowFailure("<ERROR #0005>", SeeTheLog());
        return made;
    };
    return table.Fill(make, [&] {
        const auto outcomes = AssignTouches(tour);
        if (!outcomes) {
            ShowFailure("<ERROR #0006>", SeeTheLog());
            return false;
        }
        counts = CountPoints(tour, *outcomes);
        LineWriter(tour, request, table).WriteAll(*outcomes);
        return true;
    });
}

void Print(const cTourReport& tour, const TourReportRequest& request, const PointCounts& counts,
           TourExceptionTable& table, ReportViewer& viewer) {
    darTourException report;
    report.SetDataSource(&table.Rows());
    report.SetReportParam({{u"lblPrintDate", PrintDateText(4)},
                           {u"lblDateRange", Format(tour.StartDate, QStringLiteral("Short Date"))},
                           {u"lblTourName", tour.GetTourFullName()},
                           {u"lblReaderID", request.ReaderText},
                           {u"lblReportTitle", GetReportTitle(request.ShowAll)},
                           {u"lblTolerance", QString::number(tour.Tolerance)},
                           {u"lblCompanyInfo", CompanyText()},
                           {u"lblSummary", PointSummary(counts)},
                           {u"lblOptions", Translate(request.IncludeEvents ? "Yes" : "No")}});
    NameDocument(report, {tour.TourName, request.ReaderText}, tour.StartDate, tour.StartDate);
    SetFrameText(report, u"Label17", u"Label19", u"Label16", u"lblEndOfReport");
    report.SetText({{u"lblTitleReaderID", Translate("Reader ID:")},
                    {u"lblDate", Translate("Tour Date:")},
                    {u"lblTitleTourName", Translate("Tour Name:")},
                    {u"lblTitleTolerance", Translate("Tolerance (min):")},
                    {u"lblTitleTourTime", Translate("Time")},
                    {u"lblSite", Translate("Site/Location")},
                    {u"lblActualTime", Translate("Status")},
                    {u"lblShowEvents", Translate("Show Events:")}});
    for (const QStringView status : {u"txtStatus", u"txtEventStatus"})
        report.Control(status).SetSigns(StatusSigns());
    ShowLayoutFrame(report, viewer);
}

} // namespace

QString GetReportTitle(bool showAll) {
    return Translate(showAll ? "Tour Report" : "Exception Report");
}

void BuildTourReport(const TourReportRequest& request, ReportViewer& viewer) {
    cTourReport tour;
    TourExceptionTable table;
    PointCounts counts;
    const auto fill = [&] {
        tour = {}; // the evaluation uses up the touches
        tour.TourID = request.TourID;
        tour.StartDate = request.StartDate;
        tour.ReaderId = request.ReaderId;
        return LoadTour(tour) && WriteTable(tour, request, table, counts);
    };
    Trapped([&] { WithScratchTables(fill, [&] { Print(tour, request, counts, table, viewer); }); },
            [](const RunTimeError& error) {
                ReportError(QStringLiteral("BuildTourReport of Form frmRptTour"), error,
                            ErrorShow::LogOnly);
                ShowFailure("<ERROR #9999>", CauseOf(error, gDatabasePath));
            });
    table.Close();
    TourExceptionTable::Drop();
}
