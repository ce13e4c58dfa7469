#pragma once

#include "DateTime.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// A tour's points while they are being edited, and the rules that they must keep. Nothing reaches
/// the store before Write.
class TourDraft {
public:
    struct Point {
        int minutes = 0;    ///< since the point before, for the first since the tour's start
        QString buttonCode; ///< of the location
        QString site;       ///< its names; empty where the button was deleted
        QString location;
    };

    /// Reads the points of a tour. Throws RunTimeError.
    void Load(int tourId);
    /// Replaces the points of a tour, within a transaction of the caller's. Throws RunTimeError.
    void Write(int tourId) const;

    const std::vector<Point>& Points() const { return m_points; }
    int Count() const { return static_cast<int>(m_points.size()); }
    /// Positions count from 0.
    void Insert(int position, const Point& point);
    void Remove(int position);
    /// Takes a point out and puts it in front of the one that stood at `before`; Count() puts it at
    /// the end. Gives the position at which it then stands.
    int Move(int position, int before);
    void SetMinutes(int position, int minutes) { m_points[size_t(position)].minutes = minutes; }
    void Clear() { m_points.clear(); }

    /// When each point is due, by the clock that stands at `start`; on the next day it goes on
    /// beyond 24 hours.
    std::vector<DateTime> TimesFrom(DateTime start) const;

    /// The position of the first point that is at the same location as the one before it.
    std::optional<int> EqualNeighbour() const;
    /// True if the tour, with the tolerance before and behind it, takes less than a day. The first
    /// interval does not count: it lies before the first point.
    bool FitsADay(int tolerance) const;

private:
    std::vector<Point> m_points;
};

/// The interval's limits: at least 0 minutes, and less than a day.
constexpr int MinutesOfDay = 1440;
constexpr int MostTolerance = 59;
/// A whole number of minutes from a typed text, rounded half to even. Nothing where the text is no
/// number, is one outside the limits, or rounds to one.
std::optional<int> IntervalFromText(const QString& text);
std::optional<int> ToleranceFromText(const QString& text);

/// Messages, untranslated.
constexpr char NeighbourFault[] = "Cannot assign two sequential tour points with the same location";
constexpr char TotalTimeFault[] = "The total tour time can only range from 0 to 1439 minutes";
constexpr char ToleranceFault[] = "The tolerance value can only range from 0 to 59 minutes";
constexpr char IntervalFault[] = "Only valid numbers from 0 to 1439 can be entered";
