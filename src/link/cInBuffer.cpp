#include "cInBuffer.h"

#include "Trace.h"
#include "mWardlock.h"

namespace {

constexpr char PreambleByte = '\xFF';
constexpr char SyncByte = '\x55';
constexpr int PreambleLength = 3;
const QByteArray FrameStart = QByteArrayLiteral("\xFF\xFF\xFF\x55");
/// Frames with a payload of this many bytes or more are not taken: no dock sends them, and the
/// length byte may be damaged.
constexpr int TooLong = 245;

bool IsOfMemory(int length) {
    return length + Wire::Overhead > Wire::LeastMemoryIndex && length < TooLong;
}

bool ChecksumHolds(const QByteArray& frame) {
    std::uint32_t sum = 0;
    for (qsizetype i = PreambleLength + 1; i < frame.size() - 1; ++i)
        sum += static_cast<std::uint8_t>(frame[i]);
    const auto calculated = static_cast<std::uint8_t>(sum % 256);
    const auto stored = static_cast<std::uint8_t>(frame.back());
    if (calculated != stored)
        Trace(QStringLiteral("ChkSum Failed: Calc=") + Hex00(calculated) +
              QStringLiteral(",  Data=") + Hex00(stored));
    return calculated == stored;
}

} // namespace

void cInBuffer::Append(const QByteArray& data) {
    if (data.isEmpty())
        return;
    if (m_bytes.size() + data.size() - 1 > Limit && !m_bytes.isEmpty()) {
        Trace(QStringLiteral("*** CInBuffer.AppendBuffer : Buffer exceeds %1 bytes, purging old "
                             "data...")
                  .arg(Limit));
        m_lost += m_bytes.size();
        m_bytes = data;
        return;
    }
    m_bytes += data;
}

void cInBuffer::GetPacket(QByteArray& frame, bool& received) {
    frame = Parse();
    received = !frame.isEmpty();
}

void cInBuffer::Cut(qsizetype bytes) { m_bytes.remove(0, bytes); }

QByteArray cInBuffer::Parse() {
    int matched = 0;
    qsizetype start = -1;
    for (qsizetype i = 0; i < m_bytes.size() && start < 0; ++i) {
        if (matched < PreambleLength) {
            matched = m_bytes[i] == PreambleByte ? matched + 1 : 0;
        } else if (m_bytes[i] == SyncByte) {
            start = i - PreambleLength;
        } else {
            // This is not a frame. The next call starts from the second preamble byte.
            m_lost += i - 2;
            Cut(i - 2);
            return {};
        }
    }
    if (start < 0)
        return {};

    const qsizetype highest = m_bytes.size() - 1;
    if (highest < start + Wire::LeastFrame - 1) {
        Trace(QStringLiteral("The buffer is too short to hold a packet of minimum length (12)"));
        return {};
    }
    const int length = ByteAt(m_bytes, static_cast<int>(start) + Wire::LengthOffset);
    if (highest < start + length + Wire::Overhead - 1) {
        Trace(QStringLiteral("The buffer is too short to hold a packet where N = %1").arg(length));
        return {};
    }
    if (length >= TooLong)
        return {};
    QByteArray frame = m_bytes.mid(start, length + Wire::Overhead);
    Cut(start + frame.size());
    m_lost += start;
    if (m_bytes.size() == 1) { // a single byte after a frame is always dropped
        m_lost += 1;
        m_bytes.clear();
    }
    if (ChecksumHolds(frame))
        return frame;
    m_lost += frame.size();
    m_lostMemoryFrames += IsOfMemory(length);
    return {};
}

void cInBuffer::DropBrokenFrame() {
    const qsizetype start = m_bytes.indexOf(FrameStart);
    const qsizetype next = start < 0 ? -1 : m_bytes.indexOf(FrameStart, start + FrameStart.size());
    if (next < 0 || m_bytes.size() <= start + Wire::LengthOffset)
        return;
    const int length = ByteAt(m_bytes, static_cast<int>(start) + Wire::LengthOffset);
    QByteArray frame = m_bytes.mid(start, length + Wire::Overhead);
    const bool arriving = frame.size() < length + Wire::Overhead && length < TooLong;
    if (next >= start + frame.size() || arriving || ChecksumHolds(frame))
        return;
    Cut(next);
    m_lost += next;
    m_lostMemoryFrames += IsOfMemory(length);
}

bool cInBuffer::AwaitsMemoryFrame() const {
    const qsizetype start = m_bytes.indexOf(FrameStart);
    return start >= 0 && m_bytes.size() > start + Wire::LengthOffset &&
           IsOfMemory(ByteAt(m_bytes, static_cast<int>(start) + Wire::LengthOffset));
}
