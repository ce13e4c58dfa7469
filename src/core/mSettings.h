#pragma once

/// The settings that become shared state at start. Each throws RunTimeError, naming the setting,
/// for a saved text that is no such value.

/// gLanguage.
void ReadLanguageSetting();
/// gAutoSetTime and gCompanyInfo, whose lines are cut to 50 characters.
void ReadRemainingSettings();
