#pragma once

#include "DateTime.h"

#include <QByteArray>
#include <QString>

#include <cstdint>

/// The wire format between the station and a docking station with its reader.
///
///     station                                        dock
///     FF FF FF 55 03 01 03 51 00 01 11 6A  ------->        detect
///                <-------  FF FF FF 55 h0 h1 h2 h3 h4 N 80 ... sum
///
/// Every frame, in both directions: preamble FF FF FF, sync 55, five header bytes, N, N payload
/// bytes, and the sum of all bytes from the first header byte to the last payload byte, modulo 256.
/// Payload byte 0 is the command code or the reply code. In a reply, byte 1 is 00 for success.
///
///     detect          11                          -> 80
///     set clock       12 88 88 hh mm MSB LSB      -> 93 status
///     set options     13 88 88 opt                -> 80 status
///     erase memory    72 88 88 FF                 -> F3 status
///     read memory     72 88 88 00 00 00           -> memory frames, or a status frame
///     (without a command, when a button is presented to the docked reader)  24 . b0 b1 b2
namespace Wire {

constexpr std::uint8_t Header0 = 0x03, Header1 = 0x01, Header2 = 0x03, Header3 = 0x51,
                       Header4 = 0x00;
/// Frame offsets.
constexpr int LengthOffset = 9, PayloadOffset = 10;
/// The bytes of a frame that are not payload.
constexpr int Overhead = 11;
constexpr int LeastFrame = 12;

constexpr std::uint8_t ReplyDetect = 0x80, ReplyClock = 0x93, ReplyOptions = 0x80,
                       ReplyMemory = 0xF3, ReplyButton = 0x24;

/// The highest index of a memory frame is at least this. A shorter frame is a status.
constexpr int LeastMemoryIndex = 251;
/// Fewer bytes than half a memory frame are noise. More may be the rest of one.
constexpr int MostNoise = LeastMemoryIndex / 2;
/// Memory frame 1: record count (2 bytes, low first), identifier (4 bytes), firmware, first record.
constexpr int CountOffset = 11, IdentifierOffset = 13, FirmwareOffset = 17, FirstRecordOffset = 19,
              FirstFrameRecords = 58;
/// All other memory frames.
constexpr int RecordOffset = 11, FrameRecords = 60;
constexpr int RecordBytes = 4;
constexpr std::uint8_t MarkerByte = 0xAA;
/// A status frame has eight equal bytes from here on.
constexpr int StatusOffset = 11, StatusBytes = 8;
constexpr std::uint8_t StatusTransferFault = 0x01, StatusNoReader = 0xFF;

/// Day 0 of a date code, 1 January 2000, in days since 30 December 1899.
constexpr int DateCodeZero = 36526;

} // namespace Wire

/// The meaning of a status frame.
enum class FrameStatus { None, TransferFault, NoReader };
FrameStatus StatusOf(const QByteArray& frame);
/// True for a frame that is as long as a memory frame, with any code. Shorter frames are replies,
/// buttons or statuses.
inline bool IsMemoryLong(const QByteArray& frame) { return frame.size() > Wire::LeastMemoryIndex; }

/// The commands, as payloads.
QByteArray CmdDetect();
QByteArray CmdSetClock(int hour, int minute, std::uint8_t dateMsb, std::uint8_t dateLsb);
QByteArray CmdSetOptions(std::uint8_t options);
QByteArray CmdEraseMemory();
QByteArray CmdReadMemory();

/// The frame for a payload. Throws RunTimeError (Overflow) if the payload is longer than 255 bytes,
/// or if its length and the header bytes together are above 255.
QByteArray BuildPacket(std::uint8_t header0, std::uint8_t header1, std::uint8_t header2,
                       std::uint8_t header3, std::uint8_t header4, const QByteArray& data);

/// Two upper-case hexadecimal digits.
QString Hex00(std::uint8_t value);
/// The two digits of each byte, and a blank after each.
QString BytesToHex(const QByteArray& bytes);
/// Sets a bit; 0 is the lowest. An index outside 0 to 7 shows a message box and changes nothing.
void SetBit(std::uint8_t& target, int index);

/// The date of a date code, in days since 30 December 1899.
int DecodeDateCode(int high, int low);
/// Date codes go from 1 January 2000 to 6 June 2179. False for any other date.
bool HasDateCode(DateTime date);
/// The date code of a date, 16 bits. The time of day is ignored.
std::uint16_t DateCodeOf(DateTime date);

/// The byte at an offset, as a number.
inline std::uint8_t ByteAt(const QByteArray& bytes, int offset) {
    return static_cast<std::uint8_t>(bytes[offset]);
}
