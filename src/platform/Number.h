#pragma once

#include <QString>

#include <optional>

/// Numbers as they are typed or saved.

/// The value of a text that is a number, with "." or the user's own decimal sign; blanks around it
/// do not matter. Nothing for any other text, the infinite ones included.
std::optional<double> NumericValue(const QString& text);

/// To the nearest whole number, halves to the even one: 0.5 gives 0, 1.5 and 2.5 give 2.
double RoundHalfToEven(double value);
