#include "Wire.h"

#include <algorithm>
#include <numeric>

namespace docksim {

namespace {

constexpr std::array<uint8_t, 4> kPreamble = {0xFF, 0xFF, 0xFF, 0x55};
constexpr size_t kHeaderAt = 4;
constexpr size_t kLengthAt = 9;
constexpr size_t kPayloadAt = 10;
constexpr size_t kLongestCommand = 7; // the clock command; a greater N is damage

uint8_t Checksum(Bytes::const_iterator first, Bytes::const_iterator last) {
    return static_cast<uint8_t>(std::accumulate(first, last, 0U));
}

struct CommandShape {
    const char* word; // in scenarios
    const char* name; // in the log
    uint8_t reply;
    size_t length; // of the payload
    Bytes start;   // the fixed bytes that the payload begins with
};

const CommandShape& ShapeOf(Command command) {
    // In the order of Command.
    static const std::array<CommandShape, kCommands.size()> shapes = {{
        {"detect", "CmdDetect", 0x80, 1, {0x11}},
        {"read", "CmdReadMemory", kReplyMemory, 6, {0x72, 0x88, 0x88, 0x00, 0x00, 0x00}},
        {"erase", "CmdEraseMemory", kReplyMemory, 4, {0x72, 0x88, 0x88, 0xFF}},
        {"clock", "CmdSetClock", 0x93, 7, {0x12, 0x88, 0x88}},
        {"options", "CmdSetOptions", 0x80, 4, {0x13, 0x88, 0x88}},
    }};
    return shapes[static_cast<size_t>(command)];
}

} // namespace

Bytes BuildFrame(const Header& header, const Bytes& payload) {
    Bytes frame;
    frame.reserve(kPayloadAt + payload.size() + 1);
    frame.insert(frame.end(), kPreamble.begin(), kPreamble.end());
    frame.insert(frame.end(), header.begin(), header.end());
    frame.push_back(static_cast<uint8_t>(payload.size()));
    frame.insert(frame.end(), payload.begin(), payload.end());
    frame.push_back(Checksum(frame.begin() + kHeaderAt, frame.end()));
    return frame;
}

std::optional<Command> CommandFromWord(const std::string& word) {
    for (const Command command : kCommands)
        if (ShapeOf(command).word == word)
            return command;
    return std::nullopt;
}

std::string CommandName(Command command) { return ShapeOf(command).name; }

uint8_t ReplyCode(Command command) { return ShapeOf(command).reply; }

std::optional<Command> DecodeCommand(const Bytes& frame) {
    if (!std::equal(kStationHeader.begin(), kStationHeader.end(), frame.begin() + kHeaderAt))
        return std::nullopt;
    for (const Command command : kCommands) {
        const CommandShape& shape = ShapeOf(command);
        if (frame[kLengthAt] == shape.length &&
            std::equal(shape.start.begin(), shape.start.end(), frame.begin() + kPayloadAt))
            return command;
    }
    return std::nullopt;
}

std::vector<FrameFinder::Found> FrameFinder::Take(const Bytes& arrived) {
    m_pending.insert(m_pending.end(), arrived.begin(), arrived.end());
    return Scan();
}

std::vector<FrameFinder::Found> FrameFinder::GiveUp() {
    std::vector<Found> found;
    while (m_pending.size() >= kPreamble.size()) {
        found.push_back({Kind::Bad, m_pending, "unfinished frame"});
        m_pending.erase(m_pending.begin(), m_pending.begin() + kPreamble.size());
        const std::vector<Found> inside = Scan();
        found.insert(found.end(), inside.begin(), inside.end());
    }
    PutAside(found, m_pending.size());
    return found;
}

void FrameFinder::PutAside(std::vector<Found>& found, size_t count) {
    if (count == 0)
        return;
    const auto end = m_pending.begin() + static_cast<std::ptrdiff_t>(count);
    found.push_back({Kind::Junk, Bytes(m_pending.begin(), end), ""});
    m_pending.erase(m_pending.begin(), end);
}

std::vector<FrameFinder::Found> FrameFinder::Scan() {
    std::vector<Found> found;
    for (;;) {
        const auto sync =
            std::search(m_pending.begin(), m_pending.end(), kPreamble.begin(), kPreamble.end());
        if (sync == m_pending.end()) {
            // Up to three FF at the end may be the beginning of a preamble.
            size_t keep = 0;
            while (keep < 3 && keep < m_pending.size() &&
                   m_pending[m_pending.size() - 1 - keep] == 0xFF)
                ++keep;
            PutAside(found, m_pending.size() - keep);
            return found;
        }
        PutAside(found, static_cast<size_t>(sync - m_pending.begin()));
        if (m_pending.size() <= kLengthAt)
            return found;

        const size_t length = m_pending[kLengthAt];
        const size_t total = kPayloadAt + length + 1;
        const bool lengthPossible = length >= 1 && length <= kLongestCommand;
        if (lengthPossible && m_pending.size() < total)
            return found;
        if (!lengthPossible) {
            found.push_back({Kind::Bad, Bytes(m_pending.begin(), m_pending.begin() + kPayloadAt),
                             "no command has this length"});
        } else {
            const auto end = m_pending.begin() + static_cast<std::ptrdiff_t>(total);
            if (Checksum(m_pending.begin() + kHeaderAt, end - 1) == *(end - 1)) {
                found.push_back({Kind::Frame, Bytes(m_pending.begin(), end), ""});
                m_pending.erase(m_pending.begin(), end);
                continue;
            }
            found.push_back({Kind::Bad, Bytes(m_pending.begin(), end), "wrong checksum"});
        }
        m_pending.erase(m_pending.begin(), m_pending.begin() + kPreamble.size());
    }
}

} // namespace docksim
