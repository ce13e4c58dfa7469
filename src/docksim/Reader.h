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
// The local time of this computer.
Moment MomentNow();
// "YYYY-MM-DDTHH:MM"
std::string MomentText(const Moment& moment);

// A handheld reader: its identifier, firmware byte and memory of records.
//
// A record has four bytes. A touch is the button code, lowest byte first, and the minute. A marker
// is the hour, the low and the high byte of the date code, and AA; it applies to the touches after
// it. Four zero bytes end the memory.
class Reader {
public:
    // The identifier as the station shows it, eight hexadecimal digits. Throws ParseError.
    void SetIdentifier(const std::string& text);
    std::string Identifier() const;

    // Records a touch of the button with this six-digit code, after a marker if the hour or the
    // date has changed. Throws ParseError if the code is bad or the memory full, and for a touch of
    // 000000 at minute 0, whose record would be the end mark.
    void AddTouch(const std::string& code, const Moment& moment);
    // Throws ParseError if the memory is full.
    void AddRecord(const Record& record);
    void Erase() { m_records.clear(); }

    const std::vector<Record>& Records() const { return m_records; }
    // The touches that a station would find: those before an end mark.
    size_t TouchCount() const;

    // The payloads of the memory frames that answer a read. `count` is the number of records that
    // the first frame states. Frames beyond the memory are filled with zeros. Records that do not
    // fit into this many frames are left out.
    std::vector<Bytes> MemoryPayloads(long count, size_t frames) const;

    uint8_t firmware = 0x06;

private:
    // In wire order.
    std::array<uint8_t, 4> m_identifier = {0x01, 0x00, 0x00, 0x00};
    std::vector<Record> m_records;
};

// How many memory frames this many records need: the first holds 58, each further one 60. One for
// a negative count.
size_t FramesForCount(long count);

// The wire bytes, lowest first, of a button code of six hexadecimal digits. Throws ParseError.
std::array<uint8_t, 3> ParseButtonCode(const std::string& code);

} // namespace docksim
