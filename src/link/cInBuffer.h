#pragma once

#include <QByteArray>

#include <cstdint>

/// Collects the bytes from the serial port and takes frames (mWardlock.h) out of them.
class cInBuffer {
public:
    /// The highest index that the buffer may reach. If new bytes would go beyond it, all older
    /// bytes are dropped.
    static constexpr int Limit = 40960;

    void Clear() {
        m_bytes.clear();
        m_lost = 0;
        m_lostMemoryFrames = 0;
    }
    /// The highest index: one less than the number of bytes, but 0 for an empty buffer.
    int Count() const { return m_bytes.isEmpty() ? 0 : static_cast<int>(m_bytes.size()) - 1; }
    void Append(const QByteArray& data);
    QByteArray Buffer() const { return m_bytes; }

    /// Takes at most one frame out of the buffer, together with any junk before it. A frame with a
    /// wrong checksum is dropped. `received` says whether `frame` holds a frame; if not, it is
    /// empty.
    void GetPacket(QByteArray& frame, bool& received);

    /// Drops an incomplete frame at the front if the next frame begins within it. GetPacket would
    /// drop the beginning of that next frame together with the incomplete one.
    void DropBrokenFrame();
    /// True if a memory frame has begun but is not complete yet.
    bool AwaitsMemoryFrame() const;

    /// The number of bytes that were dropped since the last Clear: junk, frames with a wrong
    /// checksum, older bytes of a buffer that was full.
    std::int64_t Lost() const { return m_lost; }
    /// The number of dropped frames that were as long as a memory frame.
    int LostMemoryFrames() const { return m_lostMemoryFrames; }

private:
    QByteArray Parse();
    void Cut(qsizetype bytes);

    QByteArray m_bytes;
    std::int64_t m_lost = 0;
    int m_lostMemoryFrames = 0;
};
