#pragma once

#include "DateTime.h"

#include <QString>

#include <optional>

/// Text forms of date-times and numbers, by named formats and patterns.

/// Named formats, in any case: "Short Date", "Medium Date" and "Short Time" as the user's locale
/// has them (a year always has four digits, a short time never seconds). Otherwise a pattern:
/// "d", "dd", "m", "mm", "mmm" (month name), "yy", "yyyy", "h", "hh" (24-hour), "n", "nn" (minute),
/// "s", "ss", in any case; an "m" just behind an hour is the minute. All else stands as it is.
QString Format(DateTime value, const QString& pattern);

/// A whole number with at least as many digits as the pattern has "0"; "0", "00", "000", "#0".
QString Format(long long value, const QString& pattern);

/// Date and time in the default text form of the user's locale.
QString DefaultDateTimeText(DateTime value);

/// Reads what DefaultDateTimeText writes; empty if the text is something else.
std::optional<DateTime> DateTimeFromText(const QString& text);

/// The locale's short date pattern, with a year of four digits.
QString GetShortDateFormat();
