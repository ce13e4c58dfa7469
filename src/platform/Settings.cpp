#include "Settings.h"

#include "Number.h"
#include "RunTimeError.h"
#include "SettingsFile.h"

#include <QDir>
#include <QSettings>

#include <limits>
#include <utility>

namespace {

SettingsLost g_settingsLost = nullptr;
bool g_lost = false;

QSettings Open(const QString& application) {
    return {SettingsFormat(), QSettings::UserScope, QStringLiteral("Wardlock"), application};
}

double Numeric(const QString& text) {
    const std::optional<double> value = NumericValue(text);
    if (!value)
        throw RunTimeError(RunTimeErrorNumber::TypeMismatch, QStringLiteral("Type mismatch"));
    return *value;
}

template <typename Int>
int ToWholeNumber(const QString& text) {
    const double rounded = RoundHalfToEven(Numeric(text));
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
    QSettings settings = Open(application);
    settings.setValue(section + u'/' + key, value);
    settings.sync();
    const bool lost = settings.status() == QSettings::AccessError;
    const bool wasLost = std::exchange(g_lost, lost);
    if (lost && !wasLost && g_settingsLost)
        g_settingsLost(QDir::toNativeSeparators(settings.fileName()));
}

void SaveSettings(const QString& application, const QString& section,
                  const QMap<QString, QString>& values) {
    QSettings settings = Open(application);
    settings.beginGroup(section);
    QMap<QString, QVariant> before;
    for (auto value = values.begin(); value != values.end(); ++value) {
        before[value.key()] = settings.value(value.key());
        settings.setValue(value.key(), value.value());
    }
    settings.sync();
    if (settings.status() != QSettings::AccessError)
        return;
    // Otherwise they would be written together with the next value that can be saved.
    for (auto value = before.begin(); value != before.end(); ++value)
        if (value->isValid())
            settings.setValue(value.key(), *value);
        else
            settings.remove(value.key());
    throw RunTimeError(RunTimeErrorNumber::PermissionDenied,
                       QDir::toNativeSeparators(settings.fileName()));
}

void InstallSettingsLost(SettingsLost handler) {
    g_settingsLost = handler;
    g_lost = false;
}

int ToInteger(const QString& text) { return ToWholeNumber<std::int16_t>(text); }

int ToLong(const QString& text) { return ToWholeNumber<std::int32_t>(text); }

bool ToBoolean(const QString& text) {
    const QString word = text.trimmed();
    if (word.compare(u"True", Qt::CaseInsensitive) == 0)
        return true;
    if (word.compare(u"False", Qt::CaseInsensitive) == 0)
        return false;
    return Numeric(word) != 0;
}

QString BooleanText(bool value) { return value ? QStringLiteral("True") : QStringLiteral("False"); }
