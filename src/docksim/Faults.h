#pragma once

#include "TextParsing.h"
#include "Wire.h"

#include <map>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace docksim {

// What the docking station does wrong. Without any fault set it behaves well.
//
// Frames of a memory stream are numbered from 1, its bytes from 0. "After frame 0" is before the
// first one. Noise is not part of the stream's bytes. Where a fault names a frame or a command,
// the number means that frame of each memory stream, the command its short reply.
struct Faults {
    struct Refusal {
        long times = 0;
        uint8_t status = 0x01;
    };
    struct Cut {
        long pauseMs = 0;
        std::optional<size_t> at; // bytes in the first piece; half of the frame when not given
    };
    // A set of places at which a fault strikes: frames of the memory stream, and short replies.
    template <typename Value>
    struct Places {
        std::map<long, Value> frames;
        std::map<Command, Value> replies;
    };

    std::map<Command, long> silent; // commands still to be left without an answer; -1: all of them
    std::map<Command, Refusal> refusals;
    Places<long> noise; // bytes of noise before the frame
    Places<bool> badChecksum;
    std::optional<long> noReaderAfter;
    std::optional<long> transferFaultAfter;
    std::optional<long> stopAfter;
    std::optional<long> vanishAfterFrame;
    std::optional<size_t> vanishAfterBytes;
    std::vector<std::pair<size_t, size_t>> droppedBytes; // first byte and how many
    std::map<size_t, uint8_t> damagedBytes;              // byte and what it is XORed with
    std::optional<uint8_t> wrongCode; // a reply of this code before the right one
    std::optional<Command> wrongCodeOnlyFor;
    bool singleByte = false;
    long singleByteGapUs = 0;
    std::optional<long> bitsPerSecond;
    long gapMs = 0;
    std::optional<Cut> cut;

    // Sets the fault that the line names, or clears all of them for "none". Throws ParseError.
    void Set(const Words& line);

    bool Dropped(size_t streamByte) const;
};

} // namespace docksim
