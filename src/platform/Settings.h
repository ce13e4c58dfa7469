#pragma once

#include <QString>

/// The per-user settings store: text values addressed by application, section and key.

/// The application under which nearly all settings lie.
inline const QString SettingsApplication = QStringLiteral("Wardlock Lite");

/// The saved text, or `fallback` where there is none.
QString GetSetting(const QString& application, const QString& section, const QString& key,
                   const QString& fallback = {});
/// Never throws; InstallSettingsLost says what happens if the value cannot be written.
void SaveSetting(const QString& application, const QString& section, const QString& key,
                 const QString& value);

/// Takes the file that cannot be written.
using SettingsLost = void (*)(const QString& path);
/// Called at the first write that fails, and again only once a later one has succeeded.
void InstallSettingsLost(SettingsLost handler);

/// Conversions of saved text. Each throws RunTimeError: TypeMismatch for text that is no such
/// value, Overflow for a number out of range. Fractions are rounded half to even.
int ToInteger(const QString& text); ///< 16 bits
int ToLong(const QString& text);    ///< 32 bits
/// "True" or "False" in any case, or a number, of which only 0 is false.
bool ToBoolean(const QString& text);
QString BooleanText(bool value);
