#include "TourReportBuilder.h"

#include "Format.h"
#include "ScratchTable.h"
#include "StoreFailure.h"
#include "TourExceptionTable.h"
#include "TourMatching.h"
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

QString StatusWord(TouchClass touchClass) {
    switch (touchClass) {
    case TouchClass::Early:
        return Translate("EARLY");
    case TouchClass::OnTime:
        return Translate("ON TIME");
    case TouchClass::Late:
        return Translate("LATE");
    case TouchClass::OutOfSequence:
        return Translate("OUT OF SEQUENCE");
    case TouchClass::NotOnTour:
        return Translate("NOT ON TOUR");
    case TouchClass::NotAssigned:
        break;
    }
    return {};
}

/// Writes the report's lines in one pass over points and touches. The order of the steps matters: a
/// touch that is assigned to a point is used up for all later points, whether it is printed or not.
class LineWriter {
public:
    LineWriter(cTourReport& tour, const TourReportRequest& request, TourExceptionTable& table)
        : m_tour(tour), m_request(request), m_table(table) {}

    /// False if a point's neighbours could not be found.
    bool WriteAll() {
        for (std::size_t i = 0; i < m_tour.TourPoints().size(); ++i)
            if (!WritePoint(i))
                return false;
        if (m_noLinesWritten) {
            m_table.WriteNote(Translate("NO EXCEPTIONS"));
            m_table.WriteSeparator();
        }
        return true;
    }

private:
    bool WritePoint(std::size_t position) {
        const cTourPoint& point = m_tour.TourPoints()[position];
        cTourPoint previous, next;
        if (!GetPrevAndNextTourPoints(position, m_tour.TourPoints(), point.PointDateTime, previous,
                                      next))
            return false;
        const QString status = Translate(point.PointOK ? "ON TIME" : "EXCEPTION");
        bool tourLineWritten = false;
        colLocations left;
        for (cLocation& touch : m_tour.Buttons()) {
            const TouchClass touchClass = Classify(touch, point, previous, next, m_tour);
            m_showPoint = !(point.PointOK && !m_request.ShowAll);
            if (touchClass == TouchClass::NotAssigned) {
                left.push_back(std::move(touch));
                continue;
            }
            if (!m_showPoint)
                continue;
            if (!tourLineWritten)
                WriteTourLine(point, status);
            tourLineWritten = true;
            WriteTouch(touch, touchClass);
        }
        // If no touch was left, m_showPoint is still that of an earlier point. So if points that
        // need no line have used up all touches, the points after them get no line either.
        if (m_showPoint && !tourLineWritten)
            WriteTourLine(point, Translate("MISSING"));
        m_tour.Buttons() = std::move(left);
        return true;
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

    cTourReport& m_tour;
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
bool WriteTable(cTourReport& tour, const TourReportRequest& request, TourExceptionTable& table) {
    const auto make = [] {
        const bool made = TourExceptionTable::ResetTempTourTable();
        if (!made)
            ShowFailure("<ERROR #0005>", SeeTheLog());
        return made;
    };
    return table.Fill(make, [&] {
        const bool written = LineWriter(tour, request, table).WriteAll();
        if (!written)
            ShowFailure("<ERROR #0006>", SeeTheLog());
        return written;
    });
}

void Print(const cTourReport& tour, const TourReportRequest& request, TourExceptionTable& table,
           ReportViewer& viewer) {
    darTourException report;
    report.SetDataSource(&table.Rows());
    report.SetReportParam({{u"lblPrintDate", PrintDateText(4)},
                           {u"lblDateRange", Format(tour.StartDate, QStringLiteral("Short Date"))},
                           {u"lblTourName", tour.GetTourFullName()},
                           {u"lblReaderID", request.ReaderText},
                           {u"lblReportTitle", GetReportTitle(request.ShowAll)},
                           {u"lblTolerance", QString::number(tour.Tolerance)},
                           {u"lblCompanyInfo", CompanyText()},
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
    ShowLayoutFrame(report, viewer);
}

} // namespace

QString GetReportTitle(bool showAll) {
    return Translate(showAll ? "Tour Report" : "Exception Report");
}

void BuildTourReport(const TourReportRequest& request, ReportViewer& viewer) {
    cTourReport tour;
    TourExceptionTable table;
    const auto fill = [&] {
        tour = {}; // writing the lines uses up the touches
        tour.TourID = request.TourID;
        tour.StartDate = request.StartDate;
        tour.ReaderId = request.ReaderId;
        return LoadTour(tour) && WriteTable(tour, request, table);
    };
    Trapped([&] { WithScratchTables(fill, [&] { Print(tour, request, table, viewer); }); },
            [](const RunTimeError& error) {
                ReportError(QStringLiteral("BuildTourReport of Form frmRptTour"), error,
                            ErrorShow::LogOnly);
                ShowFailure("<ERROR #9999>", CauseOf(error, gDatabasePath));
            });
    table.Close();
    TourExceptionTable::Drop();
}
