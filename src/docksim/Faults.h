#pragma once

#include "TextParsing.h"
#include "Wire.h"

#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace docksim {

// What the docking station does wrong. Without any fault set it works correctly.
//
// The frames of a memory stream are numbered from 1, its bytes from 0. "After frame 0" means before
// the first frame. Noise does not count as bytes of the stream. If a fault names a place, a number
// means that frame of each memory stream, and a command means the short reply to it.
struct Faults {
    struct Refusal {
        long times = 0;
        uint8_t status = 0x01;
    };
    struct Cut {
        long pauseMs = 0;
        std::optional<size_t> at; // bytes in the first piece; by default half of the frame
    };
    // The places where a fault strikes: frames of the memory stream, and short replies.
    template <typename Value>
    struct Places {
        std::map<long, Value> frames;
        std::map<Command, Value> replies;
    };

    std::map<Command, long> silent; // how many more of these to ignore; -1: all
    std::map<Command, Refusal> refusals;
    Places<long> noise; // bytes of noise before the frame
    Places<bool> badChecksum;
    std::optional<long> noReaderAfter;
    std::optional<long> transferFaultAfter;
    std::optional<long> stopAfter;
    std::optional<long> vanishAfterFrame;
    std::optional<size_t> vanishAfterBytes;
    std::vector<std::pair<size_t, size_t>> droppedBytes; // first byte and how many
    std::map<size_t, uint8_t> damagedBytes;              // byte, and the value to XOR it with
    std::optional<uint8_t> wrongCode;                    // of a reply before the right one
    std::optional<Command> wrongCodeOnlyFor;
    bool singleByte = false;
    long singleByteGapUs = 0;
    std::optional<long> bitsPerSecond;
    long gapMs = 0;
    std::optional<Cut> cut;

    // Sets the fault that the line names, or clears all for "none". Throws ParseError.
    void Set(const Words& line);

    bool Dropped(size_t streamByte) const;
};

} // namespace docksim
