#include "mSettings.h"

#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mTranslations.h"

namespace {

constexpr int CompanyLineLength = 50;

QString CompanyKey(std::size_t line) { return QStringLiteral("CompanyInfo%1").arg(line + 1); }

/// A line that was typed before the last start, cut to its length. No character is cut in two.
QString CutLine(QString line) {
    line.truncate(CompanyLineLength);
    if (line.size() == CompanyLineLength && line.back().isHighSurrogate())
        line.chop(1);
    return line;
}

template <typename T>
T SavedOption(const QString& section, const QString& key, T fallback, const QString& fallbackText,
              T (*convert)(const QString&)) {
    const QString text = GetSetting(SettingsApplication, section, key, fallbackText);
    T value = fallback;
    Trapped([&] { value = convert(text); },
            [&](const RunTimeError& error) {
                const QString setting = QStringLiteral(" (setting %1 = \"%2\")").arg(key, text);
                ReportError(QStringLiteral("SavedOption of Module mSettings"),
                            RunTimeError(error.Number(), error.Description() + setting),
                            ErrorShow::LogOnly);
            });
    return value;
}

} // namespace

int SavedNumber(const QString& section, const QString& key, int fallback,
                int (*convert)(const QString&)) {
    return SavedOption(section, key, fallback, QString::number(fallback), convert);
}

bool SavedBoolean(const QString& section, const QString& key, bool fallback) {
    return SavedOption(section, key, fallback, BooleanText(fallback), ToBoolean);
}

void ReadLanguageSetting() {
    gLanguage = SavedNumber(SettingsSection::Properties, QStringLiteral("Language"), -1);
}

void ReadRemainingSettings() {
    gAutoSetTime = SavedBoolean(SettingsSection::Properties, QStringLiteral("AutoSetTime"), true);
    for (std::size_t line = 0; line < gCompanyInfo.size(); ++line)
        gCompanyInfo[line] =
            CutLine(GetSetting(SettingsApplication, SettingsSection::Properties, CompanyKey(line)));
}

void SaveCompanyInfo(const QStringList& lines) {
    std::array<QString, 4> info;
    QMap<QString, QString> values;
    for (std::size_t line = 0; line < info.size(); ++line) {
        info[line] = lines.value(static_cast<qsizetype>(line));
        values[CompanyKey(line)] = info[line];
    }
    SaveSettings(SettingsApplication, SettingsSection::Properties, values);
    gCompanyInfo = info;
}

void ReportLostSettings() {
    InstallSettingsLost([](const QString& path) {
        WriteLog(QStringLiteral("The settings cannot be saved: ") + path);
        IvMessageBox(Translate("The settings cannot be saved. Changes you make now are lost when "
                               "the program ends.") +
                     u'\n' + path);
    });
}
