#pragma once

#include "Settings.h"

#include <QStringList>

/// The saved options. If a saved value cannot be read, only that one falls back to its default, and
/// the log names it.

/// A number, converted by `convert`.
int SavedNumber(const QString& section, const QString& key, int fallback,
                int (*convert)(const QString&) = ToInteger);
bool SavedBoolean(const QString& section, const QString& key, bool fallback);

/// Reads gLanguage.
void ReadLanguageSetting();
/// Reads gAutoSetTime, and gCompanyInfo with each line cut to 50 characters.
void ReadRemainingSettings();
/// Saves the company lines as they are and makes them gCompanyInfo. If they cannot be saved, throws
/// RunTimeError with the path of the settings and changes nothing.
void SaveCompanyInfo(const QStringList& lines);

/// From now on, if the settings can no longer be written, a box and a line in the log say so: once,
/// not at every write.
void ReportLostSettings();
