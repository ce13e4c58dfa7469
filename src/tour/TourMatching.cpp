#include "TourMatching.h"

#include "mErrorHandler.h"

#include <algorithm>

namespace {

const DateTime OneHour = DateTime::FromTime(1, 0);

cTourPoint MadeUpNeighbour(DateTime time) {
    cTourPoint point;
    point.PointDateTime = time;
    return point;
}

/// The last instant at which a touch of the point's button counts as late for it. If the next point
/// has the same button, it is the middle of the gap between the two visits: a later touch counts as
/// early for the next. The early side needs no such rule, since the visit before has already used
/// up the touches there.
DateTime LateLimit(const cTourPoint& point, const cTourPoint& next, int tolerance) {
    if (next.PointButtonId != point.PointButtonId)
        return next.TimeLatest(tolerance);
    const DateTime latest = point.TimeLatest(tolerance);
    return (next.TimeEarliest(tolerance) - latest).Half() + latest;
}

} // namespace

bool TryToMatchTourPoints(cTourReport& tour) {
    return Guarded("TryToMatchTourPoints of Form frmRptTour", [&] {
        for (const cLocation& touch : tour.Buttons()) {
            for (cTourPoint& point : tour.TourPoints()) {
                if (touch.ButtonCode == point.PointButtonId &&
                    point.TimeEarliest(tour.Tolerance) <= touch.DateAndTime &&
                    touch.DateAndTime <= point.TimeLatest(tour.Tolerance))
                    point.PointOK = true;
            }
        }
        return true;
    });
}

bool GetPrevAndNextTourPoints(std::size_t position, const colTourPoints& tourPoints,
                              DateTime pointDateTime, cTourPoint& previous, cTourPoint& next) {
    return Guarded("GetPrevAndNextTourPoints of Form frmRptTour", [&] {
        previous =
            position == 0 ? MadeUpNeighbour(pointDateTime - OneHour) : tourPoints.at(position - 1);
        next = position + 1 >= tourPoints.size() ? MadeUpNeighbour(pointDateTime + OneHour)
                                                 : tourPoints.at(position + 1);
        return true;
    });
}

bool IsButtonOnTour(const QString& buttonCode, const colTourPoints& tourPoints) {
    return std::any_of(tourPoints.begin(), tourPoints.end(),
                       [&](const cTourPoint& point) { return point.PointButtonId == buttonCode; });
}

TouchClass Classify(const cLocation& touch, const cTourPoint& point, const cTourPoint& previous,
                    const cTourPoint& next, const cTourReport& tour) {
    const int tolerance = tour.Tolerance;
    const DateTime time = touch.DateAndTime;
    const DateTime earliest = point.TimeEarliest(tolerance);
    const DateTime latest = point.TimeLatest(tolerance);
    if (touch.ButtonCode == point.PointButtonId) {
        if (previous.TimeEarliest(tolerance) <= time && time < earliest)
            return TouchClass::Early;
        if (earliest <= time && time <= latest)
            return TouchClass::OnTime;
        if (latest < time && time <= LateLimit(point, next, tolerance))
            return TouchClass::Late;
        return TouchClass::NotAssigned;
    }
    if (touch.ButtonCode == next.PointButtonId)
        return TouchClass::NotAssigned; // left for the next point
    if (earliest < time && time < next.TimeEarliest(tolerance))
        return IsButtonOnTour(touch.ButtonCode, tour.TourPoints()) ? TouchClass::OutOfSequence
                                                                   : TouchClass::NotOnTour;
    return TouchClass::NotAssigned;
}
