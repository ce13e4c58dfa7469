#include "Number.h"

#include <QLocale>

#include <cmath>

std::optional<double> NumericValue(const QString& text) {
    const QString number = text.trimmed();
    bool ok = false;
    double value = number.toDouble(&ok);
    if (!ok) {
        QLocale locale;
        locale.setNumberOptions(QLocale::RejectGroupSeparator);
        value = locale.toDouble(number, &ok);
    }
    return ok && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

double RoundHalfToEven(double value) { return std::nearbyint(value); }
