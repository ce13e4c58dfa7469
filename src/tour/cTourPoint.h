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
    QString ButtonDesc;
    QString SiteName;
    bool PointOK = false; ///< a touch of the button fell into the point's own tolerance

    /// The planned time less the tolerance, in minutes.
    DateTime TimeEarliest(int tolerance) const {
        return PointDateTime - DateTime::FromTime(0, tolerance);
    }
    /// The planned time with the tolerance and 59 seconds: the whole last minute counts.
    DateTime TimeLatest(int tolerance) const {
        return PointDateTime + DateTime::FromTime(0, tolerance, 59);
    }
};

/// In tour order.
using colTourPoints = std::vector<cTourPoint>;
