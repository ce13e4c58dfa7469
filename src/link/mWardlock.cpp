#include "mWardlock.h"

#include "MessageBox.h"
#include "RunTimeError.h"

namespace {

constexpr char PcCode = '\x88';

QByteArray Command(std::uint8_t code, std::initializer_list<int> fields) {
    QByteArray payload;
    payload += static_cast<char>(code);
    payload += PcCode;
    payload += PcCode;
    for (const int field : fields)
        payload += static_cast<char>(field);
    return payload;
}

[[noreturn]] void ThrowOverflow() {
    throw RunTimeError(RunTimeErrorNumber::Overflow, QStringLiteral("Overflow"));
}

} // namespace

FrameStatus StatusOf(const QByteArray& frame) {
    const int statusEnd = Wire::StatusOffset + Wire::StatusBytes;
    if (IsMemoryLong(frame) || frame.size() - 1 < statusEnd) // the last byte is the checksum
        return FrameStatus::None;
    const QByteArray status = frame.mid(Wire::StatusOffset, Wire::StatusBytes);
    const auto allAre = [&](std::uint8_t value) {
        return status.count(static_cast<char>(value)) == Wire::StatusBytes;
    };
    if (allAre(Wire::StatusTransferFault))
        return FrameStatus::TransferFault;
    return allAre(Wire::StatusNoReader) ? FrameStatus::NoReader : FrameStatus::None;
}

QByteArray CmdDetect() { return QByteArray(1, '\x11'); }

QByteArray CmdSetClock(int hour, int minute, std::uint8_t dateMsb, std::uint8_t dateLsb) {
    return Command(0x12, {hour, minute, dateMsb, dateLsb});
}

QByteArray CmdSetOptions(std::uint8_t options) { return Command(0x13, {options}); }

QByteArray CmdEraseMemory() { return Command(0x72, {0xFF}); }

QByteArray CmdReadMemory() { return Command(0x72, {0, 0, 0}); }

QByteArray BuildPacket(std::uint8_t header0, std::uint8_t header1, std::uint8_t header2,
                       std::uint8_t header3, std::uint8_t header4, const QByteArray& data) {
    const qsizetype count = data.size();
    if (count - 1 > 255)
        MsgBox(QStringLiteral("Illegal value in Build packet : Data too long"), {},
               MessageKind::Warning);
    if (count > 255)
        ThrowOverflow();
    const int headerSum = header0 + header1 + header2 + header3 + header4 + static_cast<int>(count);
    if (headerSum > 255)
        ThrowOverflow();
    QByteArray frame("\xFF\xFF\xFF\x55", 4);
    for (const std::uint8_t byte : {header0, header1, header2, header3, header4})
        frame += static_cast<char>(byte);
    frame += static_cast<char>(count);
    frame += data;
    int sum = headerSum;
    for (const char byte : data)
        sum += static_cast<std::uint8_t>(byte);
    frame += static_cast<char>(sum % 256);
    return frame;
}

QString Hex00(std::uint8_t value) {
    return QStringLiteral("%1").arg(value, 2, 16, QLatin1Char('0')).toUpper();
}

QString BytesToHex(const QByteArray& bytes) {
    return bytes.isEmpty() ? QString()
                           : QString::fromLatin1(bytes.toHex(' ').toUpper()) + QLatin1Char(' ');
}

void SetBit(std::uint8_t& target, int index) {
    if (index < 0 || index > 7) {
        MsgBox(QStringLiteral("Error"), {}, MessageKind::Warning);
        return;
    }
    target = static_cast<std::uint8_t>(target | 1U << index);
}

int DecodeDateCode(int high, int low) { return high * 256 + low + Wire::DateCodeZero; }

bool HasDateCode(DateTime date) {
    const auto days = date.WholeDays() - Wire::DateCodeZero;
    return days >= 0 && days <= 0xFFFF;
}

std::uint16_t DateCodeOf(DateTime date) {
    return static_cast<std::uint16_t>(date.WholeDays() - Wire::DateCodeZero);
}
