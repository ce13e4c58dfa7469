#include "SampleData.h"

#include "ButtonDetails.h"
#include "Clock.h"
#include "DiagnosticError.h"
#include "Format.h"
#include "LookUps.h"
#include "Rows.h"
#include "mErrorHandler.h"

namespace {

constexpr int Tolerance = 10; ///< minutes

void Tell(const char* text) { MsgBox(QString::fromUtf8(text), {}, MessageKind::Information); }

Rows ButtonsOfType(GroupType type) {
    return Rows(QStringLiteral("SELECT tButtonCode, " BUTTON_DETAILS " WHERE wType = ?;"), {type});
}

int AddTour(DateTime now, DateTime start) {
    NewRows tours("tblTours");
    tours.AddNew();
    tours.Set(u"tName", QStringLiteral("Tour_") + Format(now, QStringLiteral("yyyyMmDd_HhNn")));
    tours.Set(u"tDesc", QStringLiteral("Automatically Generated Tour"));
    tours.Set(u"iTolerance", Tolerance);
    tours.Set(u"dtStartTime", start);
    tours.Update();
    return tours.Id();
}

struct Download {
    DateTime time;
    QString readerId;
};

void AddTouch(Rows& events, const Download& download, Rows& button, GroupType type, DateTime time) {
    events.AddNew();
    events.Set(u"dtDLDateTime", download.time);
    events.Set(u"tPipeID", download.readerId);
    events.Set(u"dtDateTime", time);
    events.Set(u"wGroupType", type);
    for (const char16_t* copied :
         {u"tButtonCode", u"tButtonName", u"tButtonDesc", u"tGroupName", u"tGroupDesc"})
        events.Set(copied, button.Fields(copied));
    events.Update();
}

void AddPoint(Rows& points, int tour, int index, Rows& location, DateTime interval) {
    points.AddNew();
    points.Set(u"lParentID", tour);
    points.Set(u"lIndex", index);
    points.Set(u"dtTime", interval);
    points.Set(u"tButtonCode", location.Fields(u"tButtonCode"));
    points.Update();
}

void Make(DateTime start, DateTime step) {
    Rows locations = ButtonsOfType(SiteGroup);
    if (!locations.Any()) {
        Tell("No records");
        return;
    }
    const QList<Reader> readers = Readers();
    if (readers.isEmpty()) {
        Tell("You must teach at least one reader to create sample data");
        return;
    }
    Transaction transaction(*gConn);
    const Download download{Now(), readers.first().id};
    const int tour = AddTour(download.time, start);
    NewRows events("tblEvents");
    NewRows points("tblTourPoints");
    std::vector<DateTime> times;
    for (; !locations.Eof(); locations.MoveNext()) {
        times.push_back(times.empty() ? start : times.back() + step);
        AddTouch(events, download, locations, SiteGroup, times.back());
        AddPoint(points, tour, static_cast<int>(times.size()), locations,
                 times.size() == 1 ? DateTime() : step);
    }
    std::size_t next = 0;
    for (Rows book = ButtonsOfType(EventBookGroup); !book.Eof(); book.MoveNext())
        AddTouch(events, download, book, EventBookGroup, times[next++ % times.size()]);
    transaction.Commit();
    Tell("Demo Data Created");
}

} // namespace

void MakeFakeData(DateTime start, DateTime step) {
    Trapped([&] { Make(start, step); },
            [](const RunTimeError& error) { ShowDiagnosticError("Error in MakeFakeData", error); });
}
