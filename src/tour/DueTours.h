#pragma once

#include "LookUps.h"
#include "TourEvaluation.h"

/// Which tours were due, and what became of them.
///
/// A tour is due once a day. It may run over midnight; it belongs to the day on which it starts. It
/// counts for a span of time if its end lies in it: the planned time of its last point, plus the
/// tolerance. Until then a guard may still be on the way, so a tour that is being walked is not
/// listed as missing.
///
/// A tour belongs to no reader, so the touches decide who walked it. A reader walked a tour if it
/// has touches of the tour's points, in time, early or late. A reader with fewer than half as many
/// points on time as the best one was only passing: tours share buttons, and guards meet. (If no
/// reader has any point on time, all points found count.)
struct DueTour {
    Tour tour;
    DateTime start; ///< planned; its date is the day to ask the report for
    /// An identifier that was never taught has no description. Nothing: no reader has recorded the
    /// tour, so it was not walked, or its reader has not been downloaded yet. All points are then
    /// missing.
    std::optional<Reader> reader;
    PointCounts points;
};

/// The tours that were due after `after` and not later than `until`, newest first: by their start,
/// then by name. A tour without points is never due; one that cannot be read is logged and left
/// out. Reads the events of that time only. Throws RunTimeError.
QList<DueTour> DueTours(DateTime after, DateTime until);

/// Only those that this reader walked.
QList<DueTour> DueToursOfReader(const QString& readerId, DateTime after, DateTime until);
