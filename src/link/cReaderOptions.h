#pragma once

#include <cstdint>
#include <memory>

/// The reader's options as saved values: read when it is made, written back when it goes. Nothing
/// is sent from here; ReaderSignals holds what the operator chose for the next sending.
class cReaderOptions {
public:
    cReaderOptions();
    ~cReaderOptions();
    cReaderOptions(const cReaderOptions&) = delete;
    cReaderOptions& operator=(const cReaderOptions&) = delete;

    std::uint8_t DallasOption = 0; ///< kept for the reader's maker; the station gives it no meaning
    std::uint8_t PcCodeMSB = 136;
    std::uint8_t PcCodeLSB = 136;
    bool EnableBuzzer = true;
    bool EnableLED = true;
    bool EnableVibration = true;
    bool EnableLongDuration = false;

    /// Yesterday's date code, high and low byte: one day below the one that sets the clock.
    std::uint8_t DateCodeMSB() const;
    std::uint8_t DateCodeLSB() const;
    /// The four booleans as ReaderSignals packs them.
    std::uint8_t OptionByte() const;
};

/// Lives as long as the main window.
extern std::unique_ptr<cReaderOptions> gReaderOptions;
