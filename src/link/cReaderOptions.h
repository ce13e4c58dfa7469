#pragma once

#include <cstdint>
#include <memory>

/// The reader's options as saved settings. The constructor reads them and the destructor writes
/// them back. That is all that the object does: the station uses none of the values. What is sent
/// to a reader is in ReaderSignals.
class cReaderOptions {
public:
    cReaderOptions();
    ~cReaderOptions();
    cReaderOptions(const cReaderOptions&) = delete;
    cReaderOptions& operator=(const cReaderOptions&) = delete;

    std::uint8_t DallasOption = 0; ///< saved, without a meaning for the station
    std::uint8_t PcCodeMSB = 136;
    std::uint8_t PcCodeLSB = 136;
    bool EnableBuzzer = true;
    bool EnableLED = true;
    bool EnableVibration = true;
    bool EnableLongDuration = false;

    /// High and low byte of yesterday's date code, one day before the one that sets the clock.
    std::uint8_t DateCodeMSB() const;
    std::uint8_t DateCodeLSB() const;
    /// The four booleans, packed as in ReaderSignals.
    std::uint8_t OptionByte() const;
};

/// Exists as long as the main window.
extern std::unique_ptr<cReaderOptions> gReaderOptions;
