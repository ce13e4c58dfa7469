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
    Bytes bytes;
    std::string name; // for the log
    bool isFrame = true;
    bool ofStream = false;    // part of a memory stream
    bool vanishAfter = false; // the device goes away behind it
    Micros pauseBefore = 0;   // counted from the last byte of the item before
    Micros byteTime = 0;      // what each byte takes on the wire; 0: as fast as the line takes them
    bool singleByte = false;  // each byte is written on its own
    size_t cutAt = 0;         // a pause stands before this byte; 0: none
    Micros cutPause = 0;
};

// What is still to be written, and when. Nothing here waits: the owner calls Transmit whenever
// the line takes bytes and DueAt() has come.
class SendQueue {
public:
    void Push(SendItem item);

    // Drops what is left of memory streams and returns whether anything was dropped. A frame that
    // has begun breaks off where it is.
    bool DropStream();

    // When the next byte may be written; none when the queue is empty.
    std::optional<Micros> DueAt() const;

    // Writes what is due to the file descriptor, which must be non-blocking. Returns the items
    // whose last byte has gone, and stops behind one that makes the device vanish. When the line
    // is full, Full() tells so until the next call. Throws std::system_error when writing fails.
    std::vector<SendItem> Transmit(Micros now, int fd);

    bool Full() const { return m_full; }

private:
    void ScheduleNext();

    std::deque<SendItem> m_items;
    size_t m_sent = 0; // bytes of the front item
    Micros m_due = 0;  // of the next byte of the front item
    Micros m_last = 0; // when the byte before it was due
    bool m_full = false;
};

} // namespace docksim
