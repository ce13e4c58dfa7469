#pragma once

#include "TourMatching.h"

#include <vector>

/// The one evaluation of a tour. The report's lines, its summary and the home page are all made
/// from it, so they cannot disagree.

/// A touch that was assigned to a point.
struct AssignedTouch {
    cLocation touch;
    TouchClass touchClass = TouchClass::NotAssigned;
};

/// What was found for one point.
struct PointOutcome {
    std::vector<AssignedTouch> touches;
    /// When it was this point's turn, some touch was not used up yet.
    bool touchesWereLeft = false;
};

/// Assigns the touches of a tour whose points are matched (TryToMatchTourPoints), in one pass over
/// points and touches. A touch that is assigned to a point is used up for all later points: it is
/// moved into the outcome. One outcome for each point, in tour order; nothing after a failure,
/// which has been logged.
std::optional<std::vector<PointOutcome>> AssignTouches(cTourReport& tour);

/// The points of a tour run by what became of them. Each point counts once.
///
/// A point is on time if its line in the report says so. Otherwise it is early or late as the first
/// touch of its own button was. If its button was not touched, it is missing, even if touches of
/// other buttons are listed under it.
struct PointCounts {
    int onTime = 0;
    int early = 0;
    int late = 0;
    int missing = 0;

    int Found() const { return onTime + early + late; }
    int Points() const { return Found() + missing; }
    bool operator==(const PointCounts&) const = default;
};
PointCounts CountPoints(const cTourReport& tour, const std::vector<PointOutcome>& outcomes);
