#include "Settings.h"

#include "RunTimeError.h"

#include <QSettings>

#include <cmath>
#include <limits>

namespace {

QSettings Open(const QString& application) {
    return {QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Wardlock"), application};
}

template <typename Int>
int ToWholeNumber(const QString& text) {
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(value))
        throw RunTimeError(RunTimeErrorNumber::TypeMismatch, QStringLiteral("Type mismatch"));
    const double rounded = std::nearbyint(value);
    if (rounded < std::numeric_limits<Int>::min() || rounded > std::numeric_limits<Int>::max())
        throw RunTimeError(RunTimeErrorNumber::Overflow, QStringLiteral("Overflow"));
    return static_cast<int>(rounded);
}

} // namespace

QString GetSetting(const QString& application, const QString& section, const QString& key,
                   const QString& fallback) {
    return Open(application).value(section + u'/' + key, fallback).toString();
}

void SaveSetting(const QString& application, const QString& section, const QString& key,
                 const QString& value) {
    Open(application).setValue(section + u'/' + key, value);
}

int ToInteger(const QString& text) { return ToWholeNumber<std::int16_t>(text); }

int ToLong(const QString& text) { return ToWholeNumber<std::int32_t>(text); }

bool ToBoolean(const QString& text) {
    const QString word = text.trimmed();
    if (word.compare(u"True", Qt::CaseInsensitive) == 0)
        return true;
    if (word.compare(u"False", Qt::CaseInsensitive) == 0)
        return false;
    bool ok = false;
    const double value = word.toDouble(&ok);
    if (!ok || !std::isfinite(value))
        throw RunTimeError(RunTimeErrorNumber::TypeMismatch, QStringLiteral("Type mismatch"));
    return value != 0;
}

QString BooleanText(bool value) { return value ? QStringLiteral("True") : QStringLiteral("False"); }
