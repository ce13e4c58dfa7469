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
/// Every frame, either way: preamble FF FF FF, sync 55, five header bytes, N, N payload bytes, and
/// the sum of all bytes from the first header byte to the last payload byte, modulo 256. Payload
/// byte 0 is the command or reply code; byte 1 of a reply is 00 for success.
///
///     detect          11                          -> 80
///     set clock       12 88 88 hh mm MSB LSB      -> 93 status
///     set options     13 88 88 opt                -> 80 status
///     erase memory    72 88 88 FF                 -> F3 status
///     read memory     72 88 88 00 00 00           -> memory frames, or a status frame
///     (unasked: a button is presented to the docked reader)  24 . b0 b1 b2
namespace Wire {

constexpr std::uint8_t Header0 = 0x03, Header1 = 0x01, Header2 = 0x03, Header3 = 0x51,
                       Header4 = 0x00;
/// Frame offsets.
constexpr int LengthOffset = 9, PayloadOffset = 10;
/// What a frame has besides its payload.
constexpr int Overhead = 11;
constexpr int LeastFrame = 12;

constexpr std::uint8_t ReplyDetect = 0x80, ReplyClock = 0x93, ReplyOptions = 0x80,
                       ReplyMemory = 0xF3, ReplyButton = 0x24;

/// A memory frame has at least this highest index; anything shorter tells a status.
constexpr int LeastMemoryIndex = 251;
/// Fewer bytes than half a memory frame are taken for noise, not for what is left of one.
constexpr int MostNoise = LeastMemoryIndex / 2;
/// Memory frame 1: record count (2 bytes, low first), identifier (4 bytes), firmware, first record.
constexpr int CountOffset = 11, IdentifierOffset = 13, FirmwareOffset = 17, FirstRecordOffset = 19,
              FirstFrameRecords = 58;
/// All further memory frames.
constexpr int RecordOffset = 11, FrameRecords = 60;
constexpr int RecordBytes = 4;
constexpr std::uint8_t MarkerByte = 0xAA;
/// Status frames carry eight equal bytes from here on.
constexpr int StatusOffset = 11, StatusBytes = 8;
constexpr std::uint8_t StatusTransferFault = 0x01, StatusNoReader = 0xFF;

/// Day 0 of a date code, 1 January 2000, in days since 30 December 1899.
constexpr int DateCodeZero = 36526;

} // namespace Wire

/// What a status frame says.
enum class FrameStatus { None, TransferFault, NoReader };
FrameStatus StatusOf(const QByteArray& frame);
/// True for a frame as long as the memory frames are, whatever its code. Anything shorter is a
/// reply, a button or a status.
inline bool IsMemoryLong(const QByteArray& frame) { return frame.size() > Wire::LeastMemoryIndex; }

/// The commands, as payloads.
QByteArray CmdDetect();
QByteArray CmdSetClock(int hour, int minute, std::uint8_t dateMsb, std::uint8_t dateLsb);
QByteArray CmdSetOptions(std::uint8_t options);
QByteArray CmdEraseMemory();
QByteArray CmdReadMemory();

/// A whole frame around a payload. Throws RunTimeError (Overflow) for more than 255 bytes, or more
/// than the header leaves room for in the first part of the sum.
QByteArray BuildPacket(std::uint8_t header0, std::uint8_t header1, std::uint8_t header2,
                       std::uint8_t header3, std::uint8_t header4, const QByteArray& data);

/// Two upper-case hexadecimal digits.
QString Hex00(std::uint8_t value);
/// Each byte's digits and a blank.
QString BytesToHex(const QByteArray& bytes);
/// Sets a bit, 0 the lowest. An index beyond 7 shows a box and changes nothing.
void SetBit(std::uint8_t& target, int index);

/// Days since 30 December 1899 of a date code.
int DecodeDateCode(int high, int low);
/// False for a day that no date code can hold: before 1 January 2000, or after 6 June 2179.
bool HasDateCode(DateTime date);
/// The date code of a day, 16 bits; the time of day is dropped.
std::uint16_t DateCodeOf(DateTime date);

/// The byte at an offset, as a number.
inline std::uint8_t ByteAt(const QByteArray& bytes, int offset) {
    return static_cast<std::uint8_t>(bytes[offset]);
}
