#pragma once

#include "Settings.h"

#include <QString>

/// The saved options. One whose text cannot be read has its default, and the log names it.

/// A number, as `convert` reads it.
int SavedNumber(const QString& section, const QString& key, int fallback,
                int (*convert)(const QString&) = ToInteger);
bool SavedBoolean(const QString& section, const QString& key, bool fallback);

/// gLanguage.
void ReadLanguageSetting();
/// gAutoSetTime and gCompanyInfo, whose lines are cut to 50 characters.
void ReadRemainingSettings();

/// From now on, a box and a line in the log say that the settings can no longer be written: once,
/// not at every write.
void ReportLostSettings();
