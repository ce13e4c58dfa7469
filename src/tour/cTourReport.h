#pragma once

#include "cLocation.h"
#include "cTourPoint.h"

#include <QString>

/// One evaluation: a tour, laid out on one calendar day, and what one reader recorded around it.
///
/// Set TourID, StartDate and ReaderId, then load header, points and events in this order, stopping
/// at the first that gives false. A load that fails is logged. Used once; not reloaded.
class cTourReport {
public:
    int TourID = 0;
    QString TourName;
    QString TourDesc;
    int Tolerance = 0;                              ///< minutes
    DateTime StartTime = DateTime::FromDays(36526); ///< its time of day counts
    DateTime StartDate; ///< the day to evaluate; a time of day does not count
    QString ReaderId;
    /// Margin on both sides of the tour within which events are read.
    DateTime TourWindow;

    const colTourPoints& TourPoints() const { return m_tourPoints; }
    colTourPoints& TourPoints() { return m_tourPoints; }
    /// Location touches in time order.
    const colLocations& Buttons() const { return m_buttons; }
    colLocations& Buttons() { return m_buttons; }

    DateTime GetToleranceAsDate() const { return DateTime::FromTime(0, Tolerance); }
    QString GetTourFullName() const { return TourName + QStringLiteral(" - ") + TourDesc; }

    bool LoadTourHeader();
    bool LoadTourPoints();
    /// With no event at all in the window, tells the operator and gives false. Location touches
    /// may still be missing where it gives true.
    bool LoadReaderEvents();

private:
    /// The range of the events' query. Only for a tour with points.
    DateTime m_GetStartDate() const;
    DateTime m_GetEndDate() const;

    colTourPoints m_tourPoints;
    colLocations m_buttons;
};
