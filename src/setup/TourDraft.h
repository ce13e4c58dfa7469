#pragma once

#include "DateTime.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// A tour's points while they are edited, and the rules that they must obey. Nothing is written to
/// the store before Write.
class TourDraft {
public:
    struct Point {
        int minutes = 0;    ///< since the previous point; for the first, since the tour's start
        QString buttonCode; ///< of the location
        QString site;       ///< empty, as is the location, if the button was deleted
        QString location;
    };

    /// Reads a tour's points. Throws RunTimeError.
    void Load(int tourId);
    /// Replaces a tour's points. The caller opens and commits the transaction. Throws RunTimeError.
    void Write(int tourId) const;

    const std::vector<Point>& Points() const { return m_points; }
    int Count() const { return static_cast<int>(m_points.size()); }
    /// Positions count from 0.
    void Insert(int position, const Point& point);
    void Remove(int position);
    /// Moves a point in front of the one at `before`, or to the end if that is Count(). Returns its
    /// new position.
    int Move(int position, int before);
    void SetMinutes(int position, int minutes) { m_points[size_t(position)].minutes = minutes; }
    void Clear() { m_points.clear(); }

    /// When each point is due if the tour begins at `start`. Times on the next day are beyond 24
    /// hours.
    std::vector<DateTime> TimesFrom(DateTime start) const;

    /// The position of the first point that is at the same location as the one before it.
    std::optional<int> EqualNeighbour() const;
    /// True if the tour, with the tolerance before and after it, takes less than a day. The first
    /// interval does not count, because it comes before the first point.
    bool FitsADay(int tolerance) const;

private:
    std::vector<Point> m_points;
};

/// An interval is at least 0 minutes and less than a day.
constexpr int MinutesOfDay = 1440;
constexpr int MostTolerance = 59;
/// A whole number of minutes from a typed text, rounded half to even. Nothing if the text is not a
/// number, or if the number is outside the limits before or after rounding.
std::optional<int> IntervalFromText(const QString& text);
std::optional<int> ToleranceFromText(const QString& text);

/// Messages, not yet translated.
constexpr char NeighbourFault[] =
    QT_TR_NOOP("Cannot assign two sequential tour points with the same location");
constexpr char TotalTimeFault[] =
    QT_TR_NOOP("The total tour time can only range from 0 to 1439 minutes");
constexpr char ToleranceFault[] =
    QT_TR_NOOP("The tolerance value can only range from 0 to 59 minutes");
constexpr char IntervalFault[] = QT_TR_NOOP("Only valid numbers from 0 to 1439 can be entered");
