#pragma once

#include <QString>

#include <cstdint>

/// How a reader answers a touch.
struct ReaderSignals {
    bool buzzer = true;
    bool led = true;
    bool vibration = true;
    bool longBuzzer = false;

    /// As set-options carries them: bit 0 buzzer, 1 LED, 2 vibration, 3 long buzzer.
    std::uint8_t OptionByte() const;
};

/// False, once it has told the operator, where no signal is left on: a guard could not tell a
/// touch from a miss.
bool SignalsAreUsable(const ReaderSignals& readerSignals);

/// What was chosen last; the defaults where nothing, or no number, is saved.
ReaderSignals SavedReaderSignals();
void SaveReaderSignals(const ReaderSignals& readerSignals);
