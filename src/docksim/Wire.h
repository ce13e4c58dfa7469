#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// Frames as they stand on the wire, seen from the docking station.
//
//   FF FF FF 55  h h h h h  N  payload (N bytes)  checksum
//
// The checksum is the low byte of the sum of header, N and payload. A station's header is always
// 03 01 03 51 00. A conversation:
//
//   station  11                             detect       80
//            12 88 88 hh mm dd dd           set clock    93 status   (date: high byte first)
//            13 88 88 opt                   set options  80 status
//            72 88 88 FF                    erase        F3 status
//            72 88 88 00 00 00              read         F3 ... memory frames, 252 bytes each
//   docking station, unasked                             24 00 lo mid hi: a button was presented
namespace docksim {

using Bytes = std::vector<uint8_t>;
using Header = std::array<uint8_t, 5>;

inline constexpr Header kStationHeader = {0x03, 0x01, 0x03, 0x51, 0x00};
inline constexpr uint8_t kReplyDetect = 0x80;
inline constexpr uint8_t kReplyClock = 0x93;
inline constexpr uint8_t kReplyOptions = 0x80;
inline constexpr uint8_t kReplyMemory = 0xF3; // to erase and to read
inline constexpr uint8_t kCodeButton = 0x24;

// The payload may have at most 255 bytes.
Bytes BuildFrame(const Header& header, const Bytes& payload);

enum class Command { Detect, Read, Erase, Clock, Options };

// The names that scenarios use, in the order of Command.
inline constexpr std::array<const char*, 5> kCommandWords = {"detect", "read", "erase", "clock",
                                                             "options"};
std::optional<Command> CommandFromWord(const std::string& word);

// The name for the log: "CmdDetect", ...
std::string CommandName(Command command);

// The command in a frame with a right checksum; none when header, length or the fixed bytes are
// not those of any command.
std::optional<Command> DecodeCommand(const Bytes& frame);

// Finds a station's frames in the bytes that arrive, whatever stands between them. After a bad
// frame it looks on from the byte behind the sync, so a good frame inside a bad one is not lost.
class FrameFinder {
public:
    enum class Kind { Frame, Bad, Junk };
    struct Found {
        Kind kind;
        Bytes bytes;
        std::string reason; // of a bad frame
    };

    std::vector<Found> Take(const Bytes& arrived);

    // Gives up the frame that has begun: the rest of it is not coming any more.
    std::vector<Found> GiveUp();

    bool Waiting() const { return !m_pending.empty(); }

private:
    std::vector<Found> Scan();
    void PutAside(std::vector<Found>& found, size_t count);

    Bytes m_pending;
};

} // namespace docksim
