#include "TourDraft.h"

#include "Number.h"
#include "Rows.h"

namespace {

DateTime Interval(int minutes) { return DateTime::FromTime(minutes / 60, minutes % 60); }

int MinutesOf(DateTime interval) {
    const QTime time = interval.ToQTime();
    return time.hour() * 60 + time.minute();
}

} // namespace

void TourDraft::Load(int tourId) {
    m_points.clear();
    Rows rows(QStringLiteral("SELECT tblTourPoints.lIndex, tblTourPoints.dtTime, "
                             "tblTourPoints.tButtonCode, tblButtons.tButtonName, "
                             "tblListItems.tName AS tSiteName FROM (tblTourPoints LEFT JOIN "
                             "tblButtons ON tblTourPoints.tButtonCode = tblButtons.tButtonCode) "
                             "LEFT JOIN tblListItems ON tblButtons.lParentID = tblListItems.ID "
                             "WHERE (((tblTourPoints.lParentID) = ?)) "
                             "ORDER BY tblTourPoints.lIndex; "),
              {tourId});
    for (; !rows.Eof(); rows.MoveNext())
        m_points.push_back({MinutesOf(rows.Date(u"dtTime")), rows.Text(u"tButtonCode"),
                            rows.Text(u"tSiteName"), rows.Text(u"tButtonName")});
}

void TourDraft::Write(int tourId) const {
    gConn->Execute(QStringLiteral("DELETE * FROM tblTourPoints WHERE lParentID = ? ;"), {tourId});
    Recordset rows;
    // Forward only, so that the other tours' points are not fetched.
    rows.Open(
        QStringLiteral("SELECT ID, lParentID, lIndex, dtTime, tButtonCode FROM tblTourPoints ;"),
        *gConn, adOpenForwardOnly);
    int index = 0;
    for (const Point& point : m_points) {
        rows.AddNew();
        rows.Set(u"lParentID", tourId);
        rows.Set(u"lIndex", ++index);
        rows.Set(u"dtTime", Interval(point.minutes));
        rows.Set(u"tButtonCode", point.buttonCode);
        rows.Update();
    }
}

void TourDraft::Insert(int position, const Point& point) {
    m_points.insert(m_points.begin() + position, point);
}

void TourDraft::Remove(int position) { m_points.erase(m_points.begin() + position); }

int TourDraft::Move(int position, int before) {
    const Point point = m_points[static_cast<std::size_t>(position)];
    Remove(position);
    const int target = before > position ? before - 1 : before;
    Insert(target, point);
    return target;
}

std::vector<DateTime> TourDraft::TimesFrom(DateTime start) const {
    std::vector<DateTime> times;
    DateTime time = start;
    for (const Point& point : m_points) {
        time = time + Interval(point.minutes);
        times.push_back(time);
    }
    return times;
}

std::optional<int> TourDraft::EqualNeighbour() const {
    for (std::size_t i = 1; i < m_points.size(); ++i)
        if (m_points[i].buttonCode == m_points[i - 1].buttonCode)
            return static_cast<int>(i);
    return {};
}

bool TourDraft::FitsADay(int tolerance) const {
    int total = 2 * tolerance;
    for (std::size_t i = 1; i < m_points.size(); ++i)
        total += m_points[i].minutes;
    return total < MinutesOfDay;
}

std::optional<int> IntervalFromText(const QString& text) {
    const double minutes = RoundHalfToEven(NumericValue(text).value_or(MinutesOfDay));
    return NumericValue(text) >= 0.0 && minutes < MinutesOfDay
               ? std::optional(static_cast<int>(minutes))
               : std::nullopt;
}

std::optional<int> ToleranceFromText(const QString& text) {
    const std::optional<double> value = NumericValue(text);
    return value >= 0.0 && *value <= MostTolerance
               ? std::optional(static_cast<int>(RoundHalfToEven(*value)))
               : std::nullopt;
}
