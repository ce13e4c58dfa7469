#pragma once

#include <QMap>
#include <QString>

/// The settings of the user: texts by application, section and key.

/// The application of nearly all settings.
inline const QString SettingsApplication = QStringLiteral("Wardlock Lite");

/// The saved text, or `fallback` if there is none.
QString GetSetting(const QString& application, const QString& section, const QString& key,
                   const QString& fallback = {});
/// Never throws; InstallSettingsLost says what happens if the value cannot be written.
void SaveSetting(const QString& application, const QString& section, const QString& key,
                 const QString& value);

/// Saves several values of a section at once. If they cannot be written, throws RunTimeError with
/// the path of the settings, and none is changed. For a caller that lets the user try again.
void SaveSettings(const QString& application, const QString& section,
                  const QMap<QString, QString>& values);

/// Gets the path of the file that cannot be written.
using SettingsLost = void (*)(const QString& path);
/// Called when a write fails, but not again until a later write has succeeded.
void InstallSettingsLost(SettingsLost handler);

/// Conversions of saved text. They throw RunTimeError: TypeMismatch if the text is not a number (or
/// a boolean), Overflow if the number is out of range. Fractions are rounded; halves to the even
/// number.
int ToInteger(const QString& text); ///< 16 bits
int ToLong(const QString& text);    ///< 32 bits
/// "True" or "False" in any case, or a number; only 0 is false.
bool ToBoolean(const QString& text);
QString BooleanText(bool value);
