#pragma once

#include <QDateTime>

#include <cmath>
#include <compare>
#include <cstdint>

/// A point in time or a duration, without time zone. The store holds it as days since 30 December
/// 1899; here it is a whole number of milliseconds. So sums and differences are exact, whereas sums
/// of fractions of a day could drift across the edge of a tolerance.
class DateTime {
public:
    static constexpr std::int64_t MillisecondsPerDay = 86'400'000;

    constexpr DateTime() = default;

    static constexpr DateTime FromMilliseconds(std::int64_t value) { return DateTime(value); }
    /// The store's double, rounded to the nearest millisecond.
    static DateTime FromStore(double days) {
        return DateTime(static_cast<std::int64_t>(std::llround(days * MillisecondsPerDay)));
    }
    static constexpr DateTime FromTime(int hours, int minutes, int seconds = 0) {
        return DateTime(((hours * 60LL + minutes) * 60LL + seconds) * 1000LL);
    }
    static constexpr DateTime FromDays(std::int64_t days) {
        return DateTime(days * MillisecondsPerDay);
    }
    static DateTime FromQt(const QDate& date) { return FromDays(DayZero().daysTo(date)); }
    static DateTime FromQt(const QDateTime& value) {
        return FromQt(value.date()) + DateTime(value.time().msecsSinceStartOfDay());
    }

    constexpr std::int64_t Milliseconds() const { return m_milliseconds; }
    constexpr double ToStore() const {
        return static_cast<double>(m_milliseconds) / static_cast<double>(MillisecondsPerDay);
    }
    /// Whole days, rounded down; 1 January 2000 is 36526.
    constexpr std::int64_t WholeDays() const {
        return (m_milliseconds - FloorRemainder(m_milliseconds, MillisecondsPerDay)) /
               MillisecondsPerDay;
    }
    constexpr DateTime DatePart() const { return FromDays(WholeDays()); }
    constexpr DateTime TimePart() const {
        return DateTime(FloorRemainder(m_milliseconds, MillisecondsPerDay));
    }
    QDate ToQDate() const { return DayZero().addDays(WholeDays()); }
    QTime ToQTime() const {
        return QTime::fromMSecsSinceStartOfDay(static_cast<int>(TimePart().m_milliseconds));
    }

    /// Half of a duration. An odd number of milliseconds is rounded down. Compared by "<=" or ">",
    /// the result separates whole milliseconds just as the exact half would.
    constexpr DateTime Half() const {
        return DateTime((m_milliseconds - FloorRemainder(m_milliseconds, 2)) / 2);
    }

    constexpr DateTime operator+(DateTime other) const {
        return DateTime(m_milliseconds + other.m_milliseconds);
    }
    constexpr DateTime operator-(DateTime other) const {
        return DateTime(m_milliseconds - other.m_milliseconds);
    }
    constexpr auto operator<=>(const DateTime&) const = default;

private:
    explicit constexpr DateTime(std::int64_t milliseconds) : m_milliseconds(milliseconds) {}
    static constexpr std::int64_t FloorRemainder(std::int64_t value, std::int64_t divisor) {
        const std::int64_t remainder = value % divisor;
        return remainder < 0 ? remainder + divisor : remainder;
    }
    static QDate DayZero() { return QDate(1899, 12, 30); }

    std::int64_t m_milliseconds = 0;
};
