#pragma once

#include "Wire.h"

#include <cstdint>
#include <deque>
#include <optional>
#include <string>

namespace docksim {

// Microseconds of the monotonic clock.
using Micros = int64_t;
Micros MicrosNow();

// One frame, or a run of noise, on its way to the station.
struct SendItem {
    Bytes bytes = {};
    std::string name = {}; // for the log
    bool isFrame = true;
    bool ofStream = false;    // part of a memory stream
    bool vanishAfter = false; // the device disappears after it
    Micros pauseBefore = 0;   // counted from the last byte of the previous item
    Micros byteTime = 0;      // of each byte; 0: as fast as the line accepts them
    bool singleByte = false;  // each byte is written on its own
    size_t cutAt = 0;         // cutPause comes before this byte; 0: no pause
    Micros cutPause = 0;
};

// What is still to be written, and when. Nothing here waits: the owner calls Transmit when the line
// accepts bytes and DueAt() has come.
class SendQueue {
public:
    void Push(SendItem item);

    // Drops the rest of the memory streams and returns whether there was any. A frame that is being
    // sent breaks off.
    bool DropStream();

    // When the next byte may be written; none if the queue is empty.
    std::optional<Micros> DueAt() const;

    // Writes what is due to the file descriptor, which must be non-blocking. Returns the items
    // whose last byte was written, and stops after one that makes the device disappear. Throws
    // std::system_error if writing fails.
    std::vector<SendItem> Transmit(Micros now, int fd);

    // Whether the last call of Transmit found the line full.
    bool Full() const { return m_full; }

private:
    void ScheduleNext();

    std::deque<SendItem> m_items;
    size_t m_sent = 0; // bytes of the front item
    Micros m_due = 0;  // of the next byte of the front item
    Micros m_last = 0; // when the previous byte was due
    bool m_full = false;
};

} // namespace docksim
