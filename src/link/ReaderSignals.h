#pragma once

#include <QString>

#include <cstdint>

/// How a reader signals a touch.
struct ReaderSignals {
    bool buzzer = true;
    bool led = true;
    bool vibration = true;
    bool longBuzzer = false;

    /// The byte for the set-options command: bit 0 buzzer, 1 LED, 2 vibration, 3 long buzzer.
    std::uint8_t OptionByte() const;
};

/// If all three signals are off, shows a message and returns false: a guard would not notice
/// whether a touch was read.
bool SignalsAreUsable(const ReaderSignals& readerSignals);

/// The last choice. If a saved value cannot be read, only that one falls back to its default.
ReaderSignals SavedReaderSignals();
void SaveReaderSignals(const ReaderSignals& readerSignals);
