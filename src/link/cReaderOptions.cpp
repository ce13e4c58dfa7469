#include "cReaderOptions.h"

#include "Clock.h"
#include "ReaderSignals.h"
#include "RunTimeError.h"
#include "Settings.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mWardlock.h"

std::unique_ptr<cReaderOptions> gReaderOptions;

namespace {

std::uint16_t Yesterday() { return static_cast<std::uint16_t>(DateCodeOf(Now()) - 1); }

QString Text(std::uint8_t value) { return QString::number(value); }
QString Text(bool value) { return BooleanText(value); }

void Convert(const QString& text, std::uint8_t& value) {
    const int number = ToInteger(text);
    if (number < 0 || number > 255)
        throw RunTimeError(RunTimeErrorNumber::Overflow, QStringLiteral("Overflow"));
    value = static_cast<std::uint8_t>(number);
}
void Convert(const QString& text, bool& value) { value = ToBoolean(text); }

/// Every property with its setting's name.
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
    ForEachSetting(*this, [](const char* key, auto& value) {
        // A saved text that is no such value costs that value alone; the default is written back.
        Guarded("Class_Initialize of Class Module cReaderOptions", [&] {
            Convert(GetSetting(SettingsApplication, SettingsSection::Reader,
                               QString::fromLatin1(key), Text(value)),
                    value);
        });
    });
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
