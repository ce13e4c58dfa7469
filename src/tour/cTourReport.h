#pragma once

#include "cLocation.h"
#include "cTourPoint.h"

#include <QString>

/// One evaluation: a tour on one calendar day, and what one reader recorded around it.
///
/// Set TourID, StartDate and ReaderId, then load header, points and events in this order. Stop at
/// the first that gives false; a failure has then been logged. An object is used for one
/// evaluation.
class cTourReport {
public:
    int TourID = 0;
    QString TourName;
    QString TourDesc;
    int Tolerance = 0;                              ///< minutes
    DateTime StartTime = DateTime::FromDays(36526); ///< only its time of day is used
    DateTime StartDate; ///< the day to evaluate; its time of day is not used
    QString ReaderId;
    /// Events are read from this long before the tour to this long after it.
    DateTime TourWindow;

    const colTourPoints& TourPoints() const { return m_tourPoints; }
    colTourPoints& TourPoints() { return m_tourPoints; }
    /// Location touches in order of time.
    const colLocations& Buttons() const { return m_buttons; }
    colLocations& Buttons() { return m_buttons; }

    DateTime GetToleranceAsDate() const { return DateTime::FromTime(0, Tolerance); }
    QString GetTourFullName() const { return TourName + QStringLiteral(" - ") + TourDesc; }

    bool LoadTourHeader();
    bool LoadTourPoints();
    /// If the window holds no event at all, a message box says so and it gives false. If it gives
    /// true, there may still be no location touch.
    bool LoadReaderEvents();
    /// The same without the message. Throws RunTimeError.
    bool ReadReaderEvents();
    /// A message box: what was searched holds nothing for the report. The tour must have points.
    void TellOfNoData() const;

private:
    /// The range of the query for events. The tour must have points.
    DateTime m_GetStartDate() const;
    DateTime m_GetEndDate() const;

    colTourPoints m_tourPoints;
    colLocations m_buttons;
};
