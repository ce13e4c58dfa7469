#pragma once

#include "DateTime.h"

#include <QString>

#include <vector>

/// One planned visit of a tour, laid out on a calendar day.
struct cTourPoint {
    int PointIndex = 0;     ///< place on the tour, from lIndex
    DateTime PointDateTime; ///< planned date and time
    QString PointButtonId;  ///< code of the location button; empty in a made-up neighbour
    QString ButtonName;
    QString ButtonDesc; ///< belongs to the model; no report prints it
    QString SiteName;
    bool PointOK = false; ///< the button was touched within the point's tolerance

    /// The planned time minus the tolerance, which is in minutes.
    DateTime TimeEarliest(int tolerance) const {
        return PointDateTime - DateTime::FromTime(0, tolerance);
    }
    /// The planned time plus the tolerance and 59 seconds: the whole last minute counts.
    DateTime TimeLatest(int tolerance) const {
        return PointDateTime + DateTime::FromTime(0, tolerance, 59);
    }
};

/// In tour order.
using colTourPoints = std::vector<cTourPoint>;
