#include "FuzzBodies.h"

#include "Frames.h"
#include "MemoryImage.h"
#include "TestHome.h"
#include "cInBuffer.h"
#include "mWardlock.h"

#include <cstdio>
#include <cstdlib>

namespace {

void Promise(bool kept, const char* promise) {
    if (kept)
        return;
    std::fprintf(stderr, "broken: %s\n", promise);
    std::abort();
}

/// Takes bytes from the front of an input. Single bytes are zero after its end.
class Input {
public:
    Input(const std::uint8_t* data, std::size_t size) : m_data(data), m_size(size) {}
    bool Empty() const { return m_size == 0; }
    std::uint8_t Byte() {
        if (Empty())
            return 0;
        --m_size;
        return *m_data++;
    }
    QByteArray Bytes(std::size_t count) {
        count = std::min(count, m_size);
        const QByteArray bytes(reinterpret_cast<const char*>(m_data),
                               static_cast<qsizetype>(count));
        m_data += count;
        m_size -= count;
        return bytes;
    }

private:
    const std::uint8_t* m_data;
    std::size_t m_size;
};

void CheckFrame(const QByteArray& frame) {
    Promise(frame.size() >= 11 && frame.size() <= 255, "a frame has 11 to 255 bytes");
    Promise(frame.startsWith("\xFF\xFF\xFF\x55"), "a frame begins with the preamble");
    Promise(frame.size() == ByteAt(frame, 9) + 11, "a frame is as long as it says");
    unsigned sum = 0;
    for (qsizetype i = 4; i < frame.size() - 1; ++i)
        sum += ByteAt(frame, static_cast<int>(i));
    Promise(sum % 256 == static_cast<std::uint8_t>(frame.back()), "the checksum holds");
}

/// The script's next chunk: junk, a frame, or a frame with one fault.
QByteArray Chunk(Input& input) {
    const std::uint8_t kind = input.Byte() % 8;
    if (kind == 0)
        return input.Bytes(input.Byte());
    if (kind == 1) // long enough to fill the buffer after a few
        return QByteArray(input.Byte() * 64, static_cast<char>(input.Byte()));
    QByteArray frame = FrameOf(input.Bytes(input.Byte() % 246));
    const qsizetype at = input.Byte() % frame.size();
    switch (kind) {
    case 2:
        frame[at] = static_cast<char>(frame[at] ^ input.Byte());
        break;
    case 3:
        frame.remove(at, 1 + input.Byte() % 16);
        break;
    case 4:
        frame.insert(at, input.Bytes(1 + input.Byte() % 4));
        break;
    case 5:
        frame.insert(0, QByteArray(input.Byte() % 8, '\xFF'));
        break;
    default:
        break;
    }
    return frame;
}

} // namespace

void FuzzReceiveBuffer(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    cInBuffer buffer;
    std::int64_t appended = 0, delivered = 0;
    while (!input.Empty()) {
        const QByteArray chunk = Chunk(input);
        buffer.Append(chunk);
        appended += chunk.size();
        for (int looks = input.Byte() % 4; looks > 0; --looks) {
            const QByteArray before = buffer.Buffer();
            QByteArray frame = "old";
            bool received = false;
            buffer.GetPacket(frame, received);
            Promise(received == !frame.isEmpty(),
                    "a frame is delivered exactly if the buffer says so");
            if (received) {
                CheckFrame(frame);
                Promise(before.contains(frame), "a frame is a piece of what arrived");
            }
            Promise(before.endsWith(buffer.Buffer()),
                    "the rest is the end of what was in the buffer");
            delivered += frame.size();
        }
        Promise(buffer.Count() <= cInBuffer::Limit, "the buffer stays within its limit");
        Promise(delivered + buffer.Lost() + buffer.Buffer().size() == appended,
                "every byte is delivered, lost or waiting");
    }
}

void FuzzMemoryImage(const std::uint8_t* data, std::size_t size) {
    static const TestHome home(TestHome::DemoSite);
    static ButtonDirectory directory;
    Input input(data, size);
    colPackets packets;
    std::int64_t records = 0;
    while (!input.Empty() && packets.Count() < 12) {
        const std::uint8_t length = input.Byte();
        QByteArray bytes = input.Bytes(length % 16 == 0 ? 240 : length % 64);
        // The store is queried once for each code, so keep their number low.
        for (qsizetype i = 0; i < bytes.size(); ++i)
            if (i % 4 != 3)
                bytes[i] = static_cast<char>(bytes[i] & 0x03);
        const QByteArray frame = FrameOf('\xF3' + bytes);
        const int tag = packets.Count() + 1;
        packets.Add(frame).Tag = tag;
        records += std::max<qsizetype>(0, frame.size() - 1 - (tag == 1 ? 19 : 11)) / 4;
    }
    if (packets.Count() == 0)
        return;

    std::size_t decoded = 0;
    const colRawButtons touches = DecodeImage(packets, directory, [&] { ++decoded; });
    Promise(touches.size() == decoded, "each touch is reported");
    Promise(static_cast<std::int64_t>(decoded) <= records, "no touch beyond the frames' records");
    for (const cRawButton& touch : touches) {
        const auto day = touch.DateAndTime.WholeDays();
        Promise(day == 0 || (day >= 36526 && day <= 36526 + 65535), "a day of the date code");
        Promise(touch.DateAndTime.TimePart().Milliseconds() % 60'000 == 0, "whole minutes");
        Promise(touch.ButtonCode.size() == 6, "a code of six digits");
        Promise(!touch.Name.isEmpty(), "every button has a name");
    }
}
