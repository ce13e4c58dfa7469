#pragma once

#include <QString>

#include <optional>

/// Numbers that were typed or saved.

/// The value of a number, written with "." or with the user's own decimal sign; blanks around it
/// are ignored. Nothing if the text is not a finite number.
std::optional<double> NumericValue(const QString& text);

/// To the nearest whole number, halves to the even one: 0.5 gives 0, 1.5 and 2.5 give 2.
double RoundHalfToEven(double value);
