#include "ReaderSignals.h"

#include "mDeclareGlobals.h"
#include "mSettings.h"
#include "mTranslations.h"
#include "mWardlock.h"

namespace {

/// 1 means a checked box, or the short buzzer.
constexpr int Chosen = 1, NotChosen = 0, LongDuration = 2;

int Saved(const char* key) {
    return SavedNumber(SettingsSection::ReaderSetting, QString::fromLatin1(key), Chosen);
}

void Save(const char* key, int value) {
    SaveSetting(SettingsApplication, SettingsSection::ReaderSetting, QString::fromLatin1(key),
                QString::number(value));
}

} // namespace

std::uint8_t ReaderSignals::OptionByte() const {
    std::uint8_t options = 0;
    if (buzzer)
        SetBit(options, 0);
    if (led)
        SetBit(options, 1);
    if (vibration)
        SetBit(options, 2);
    if (longBuzzer)
        SetBit(options, 3);
    return options;
}

bool SignalsAreUsable(const ReaderSignals& readerSignals) {
    if (readerSignals.buzzer || readerSignals.led || readerSignals.vibration)
        return true;
    IvMessageBox(
        Translate("You must select at least one of the reader options (Led, Buzzer or Vibration)"));
    return false;
}

ReaderSignals SavedReaderSignals() {
    ReaderSignals saved;
    saved.buzzer = Saved("Buzzer") == Chosen;
    saved.led = Saved("Led") == Chosen;
    saved.vibration = Saved("Vibration") == Chosen;
    saved.longBuzzer = Saved("BuzzerDuration") != Chosen;
    return saved;
}

void SaveReaderSignals(const ReaderSignals& readerSignals) {
    Save("Buzzer", readerSignals.buzzer ? Chosen : NotChosen);
    Save("Led", readerSignals.led ? Chosen : NotChosen);
    Save("Vibration", readerSignals.vibration ? Chosen : NotChosen);
    Save("BuzzerDuration", readerSignals.longBuzzer ? LongDuration : Chosen);
}
