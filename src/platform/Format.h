#pragma once

#include "DateTime.h"

#include <QString>

#include <optional>

/// Dates, times and numbers as text.

/// `pattern` is one of the named formats "Short Date", "Medium Date" and "Short Time" of the user's
/// locale, in any case (a year always has four digits, a short time never has seconds). Or it is
/// made of "d", "dd", "m", "mm", "mmm" (month name), "yy", "yyyy", "h", "hh" (24-hour), "n", "nn"
/// (minute), "s", "ss", in any case. An "m" directly after an hour is the minute. Everything else
/// is copied. The pattern that GetShortDateFormat gives means "Short Date": it has marks of its
/// own, such as quoted words.
QString Format(DateTime value, const QString& pattern);

/// A whole number with at least as many digits as the pattern ("0", "00", "000", "#0") has "0".
QString Format(long long value, const QString& pattern);

/// Date and time in the user's locale, with seconds. Fast enough for a million rows.
QString DefaultDateTimeText(DateTime value);

/// Reads what DefaultDateTimeText writes; empty if the text is something else.
std::optional<DateTime> DateTimeFromText(const QString& text);

/// The locale's short date pattern, with a year of four digits.
QString GetShortDateFormat();

/// The text with `instead` for each control character, line break or tab: a terminal would obey an
/// escape sequence, and a line of a page cannot show them.
QString WithoutControls(QString text, QChar instead = u'?');
