#include "mSettings.h"

#include "RunTimeError.h"
#include "Settings.h"
#include "mDeclareGlobals.h"

namespace {

constexpr int CompanyLineLength = 50;

QString Saved(const QString& key, const QString& fallback) {
    return GetSetting(SettingsApplication, SettingsSection::Properties, key, fallback);
}

/// Whoever has to mend a setting wants to know which.
template <typename Convert>
auto Converted(const QString& key, const QString& fallback, Convert convert) {
    const QString text = Saved(key, fallback);
    try {
        return convert(text);
    } catch (const RunTimeError& error) {
        throw RunTimeError(error.Number(),
                           error.Description() +
                               QStringLiteral(" (setting %1 = \"%2\")").arg(key, text));
    }
}

} // namespace

void ReadLanguageSetting() {
    gLanguage = Converted(QStringLiteral("Language"), QStringLiteral("-1"), ToInteger);
}

void ReadRemainingSettings() {
    gAutoSetTime = Converted(QStringLiteral("AutoSetTime"), BooleanText(true), ToBoolean);
    for (std::size_t line = 0; line < gCompanyInfo.size(); ++line)
        gCompanyInfo[line] =
            Saved(QStringLiteral("CompanyInfo%1").arg(line + 1), {}).left(CompanyLineLength);
}
