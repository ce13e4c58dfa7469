#pragma once

#include "cTourReport.h"

/// The rules that compare a touch with a tour point. Times are compared exactly, in whole
/// milliseconds. Texts are equal only if all their characters are.

/// What a touch means for one point. NotAssigned leaves it for the following points.
enum class TouchClass { NotAssigned, Early, OnTime, Late, OutOfSequence, NotOnTour };

/// Sets PointOK of every point whose button was touched within the point's tolerance. Here, one
/// touch can serve several points. A failure is logged and gives false.
bool TryToMatchTourPoints(cTourReport& tour);

/// The points before and after `position`, which counts from 0. If there is none, one is made up:
/// one hour from `pointDateTime`, with an empty button code. A failure is logged and gives false.
bool GetPrevAndNextTourPoints(std::size_t position, const colTourPoints& tourPoints,
                              DateTime pointDateTime, cTourPoint& previous, cTourPoint& next);

/// True if any point of the tour has this button.
bool IsButtonOnTour(const QString& buttonCode, const colTourPoints& tourPoints);

TouchClass Classify(const cLocation& touch, const cTourPoint& point, const cTourPoint& previous,
                    const cTourPoint& next, const cTourReport& tour);
