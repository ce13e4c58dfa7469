#include "cReaderOptions.h"

#include "Clock.h"
#include "ReaderSignals.h"
#include "RunTimeError.h"
#include "mDeclareGlobals.h"
#include "mSettings.h"
#include "mWardlock.h"

std::unique_ptr<cReaderOptions> gReaderOptions;

namespace {

std::uint16_t Yesterday() { return static_cast<std::uint16_t>(DateCodeOf(Now()) - 1); }

QString Text(std::uint8_t value) { return QString::number(value); }
QString Text(bool value) { return BooleanText(value); }

int ToByte(const QString& text) {
    const int number = ToInteger(text);
    if (number < 0 || number > 255)
        throw RunTimeError(RunTimeErrorNumber::Overflow, QStringLiteral("Overflow"));
    return number;
}

void Read(const char* key, std::uint8_t& value) {
    value = static_cast<std::uint8_t>(
        SavedNumber(SettingsSection::Reader, QString::fromLatin1(key), value, ToByte));
}
void Read(const char* key, bool& value) {
    value = SavedBoolean(SettingsSection::Reader, QString::fromLatin1(key), value);
}

/// Calls `visit` with each property and the name of its setting.
template <typename Options, typename Visit>
void ForEachSetting(Options& options, Visit visit) {
    visit("DallasOption", options.DallasOption);
    visit("PcCodeMSB", options.PcCodeMSB);
    visit("PcCodeLSB", options.PcCodeLSB);
    visit("EnableBuzzer", options.EnableBuzzer);
    visit("EnableLED", options.EnableLED);
    visit("EnableVibration", options.EnableVibration);
    visit("EnableLongDuration", options.EnableLongDuration);
}

} // namespace

cReaderOptions::cReaderOptions() {
    ForEachSetting(*this, [](const char* key, auto& value) { Read(key, value); });
}

cReaderOptions::~cReaderOptions() {
    ForEachSetting(*this, [](const char* key, const auto& value) {
        SaveSetting(SettingsApplication, SettingsSection::Reader, QString::fromLatin1(key),
                    Text(value));
    });
}

std::uint8_t cReaderOptions::DateCodeMSB() const {
    return static_cast<std::uint8_t>(Yesterday() / 256);
}

std::uint8_t cReaderOptions::DateCodeLSB() const {
    return static_cast<std::uint8_t>(Yesterday() % 256);
}

std::uint8_t cReaderOptions::OptionByte() const {
    return ReaderSignals{EnableBuzzer, EnableLED, EnableVibration, EnableLongDuration}.OptionByte();
}
