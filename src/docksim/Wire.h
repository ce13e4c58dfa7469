#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The frames on the wire, as the docking station sees them.
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
//   docking station, unasked                             24 00 lo mid hi: a button was held to
//                                                        the reader (its code, low byte first)
namespace docksim {

using Bytes = std::vector<uint8_t>;
using Header = std::array<uint8_t, 5>;

inline constexpr Header kStationHeader = {0x03, 0x01, 0x03, 0x51, 0x00};
inline constexpr uint8_t kReplyMemory = 0xF3; // to erase and to read
inline constexpr uint8_t kCodeButton = 0x24;

// The payload may have at most 255 bytes.
Bytes BuildFrame(const Header& header, const Bytes& payload);

enum class Command { Detect, Read, Erase, Clock, Options };

inline constexpr std::array kCommands = {Command::Detect, Command::Read, Command::Erase,
                                         Command::Clock, Command::Options};

// The command with this name in a scenario, such as "detect".
std::optional<Command> CommandFromWord(const std::string& word);

// The name for the log, such as "CmdDetect".
std::string CommandName(Command command);

// The code that the reply to the command begins with.
uint8_t ReplyCode(Command command);

// The command in a frame whose checksum is right. None if the header, the length or the fixed bytes
// match no command.
std::optional<Command> DecodeCommand(const Bytes& frame);

// Finds the station's frames in the bytes that arrive, with anything between them. After a bad
// frame it searches on from the byte after the preamble, so that a good frame inside a bad one is
// found.
class FrameFinder {
public:
    enum class Kind { Frame, Bad, Junk };
    struct Found {
        Kind kind;
        Bytes bytes;
        std::string reason; // of a bad frame
    };

    std::vector<Found> Take(const Bytes& arrived);

    // Gives up the unfinished frame: the rest of it will not come.
    std::vector<Found> GiveUp();

    // Whether a frame is unfinished.
    bool Waiting() const { return !m_pending.empty(); }

private:
    std::vector<Found> Scan();
    void PutAside(std::vector<Found>& found, size_t count);

    Bytes m_pending;
};

} // namespace docksim
