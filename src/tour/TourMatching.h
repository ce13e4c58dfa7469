#pragma once

#include "cTourReport.h"

/// The rules by which a touch is held against a tour point. All comparisons are exact, on whole
/// milliseconds; texts are equal only if they are the same characters.

/// How a touch stands to the point at hand. NotAssigned leaves it for the points to come.
enum class TouchClass { NotAssigned, Early, OnTime, Late, OutOfSequence, NotOnTour };

/// Sets PointOK of every point whose button was touched within its own tolerance. One touch can
/// serve several points here.
bool TryToMatchTourPoints(cTourReport& tour);

/// The points before and behind position `position`, from 0. Where there is none, one is made up:
/// one hour from `pointDateTime`, with an empty button code.
bool GetPrevAndNextTourPoints(std::size_t position, const colTourPoints& tourPoints,
                              DateTime pointDateTime, cTourPoint& previous, cTourPoint& next);

/// True if any point of the tour has this button.
bool IsButtonOnTour(const QString& buttonCode, const colTourPoints& tourPoints);

TouchClass Classify(const cLocation& touch, const cTourPoint& point, const cTourPoint& previous,
                    const cTourPoint& next, const cTourReport& tour);
