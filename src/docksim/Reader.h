#pragma once

#include "Wire.h"

#include <array>
#include <string>
#include <vector>

namespace docksim {

using Record = std::array<uint8_t, 4>;

// A minute of the reader's calendar, which begins on 1 January 2000 and ends with the day 65535.
struct Moment {
    unsigned dateCode = 0; // whole days since 1 January 2000
    unsigned hour = 0;
    unsigned minute = 0;
};

// "2024-03-01" and "08:30". Throws ParseError, also for a day that the calendar does not have.
Moment ParseMoment(const std::string& date, const std::string& time);
// The local time of this machine.
Moment MomentNow();
// "YYYY-MM-DDTHH:MM"
std::string MomentText(const Moment& moment);

// A handheld reader: identifier, firmware byte and its memory of records.
//
// A record is four bytes: a touch is the button code, lowest byte first, and the minute; a marker
// is hour, date code low, date code high, AA and holds for the touches behind it; four zero bytes
// end the memory.
class Reader {
public:
    static constexpr size_t kMostRecords = 65535;

    // The identifier as the station shows it, eight hexadecimal digits. Throws ParseError.
    void SetIdentifier(const std::string& text);
    std::string Identifier() const;

    // Remembers a touch of the button with this six-digit code, and a marker before it when the
    // hour or the date has changed. Throws ParseError for a bad code, a full memory, and for a
    // touch of 000000 at minute 0, whose record would be the end mark.
    void AddTouch(const std::string& code, const Moment& moment);
    // Throws ParseError when the memory is full.
    void AddRecord(const Record& record);
    void Erase() { m_records.clear(); }

    const std::vector<Record>& Records() const { return m_records; }
    // Touches that a station would find: those before an end mark.
    size_t TouchCount() const;

    // The payloads of the memory frames that answer a read. `count` is what the first frame says
    // about the number of records; `frames` is the number of frames. Frames beyond the memory
    // are filled with zero, and records beyond the frames stay behind.
    std::vector<Bytes> MemoryPayloads(long count, size_t frames) const;

    uint8_t firmware = 0x06;

private:
    // In the order of the wire.
    std::array<uint8_t, 4> m_identifier = {0x01, 0x00, 0x00, 0x00};
    std::vector<Record> m_records;
};

// How many memory frames hold this many records: 58 in the first, 60 in each further one. A
// negative count makes one frame.
size_t FramesForCount(long count);

// The wire bytes of a button code of six hexadecimal digits: lowest byte first. Throws ParseError.
std::array<uint8_t, 3> ParseButtonCode(const std::string& code);

} // namespace docksim
