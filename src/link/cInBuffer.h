#pragma once

#include <QByteArray>

#include <cstdint>

/// Collects the bytes that the serial port delivers and cuts frames (mWardlock.h) out of them.
class cInBuffer {
public:
    /// The highest index that the buffer may reach. Bytes that would go beyond purge what is there.
    static constexpr int Limit = 40960;

    void Clear() {
        m_bytes.clear();
        m_lost = 0;
        m_lostMemoryFrames = 0;
    }
    /// The highest index: one less than the number of bytes, and 0 for an empty buffer too.
    int Count() const { return m_bytes.isEmpty() ? 0 : static_cast<int>(m_bytes.size()) - 1; }
    void Append(const QByteArray& data);
    QByteArray Buffer() const { return m_bytes; }

    /// Takes at most one frame out of the buffer. Junk in front of a frame goes with it; a frame
    /// whose checksum does not hold goes without being delivered. `received` tells whether `frame`
    /// holds a frame; if not, it is empty.
    void GetPacket(QByteArray& frame, bool& received);

    /// Throws away a frame that broke off, if one stands in front: its checksum does not hold, and
    /// another frame begins in it, whose beginning GetPacket would throw away along with it.
    void DropBrokenFrame();
    /// True if a memory frame has begun whose end is still to come.
    bool AwaitsMemoryFrame() const;

    /// Bytes since the last Clear that arrived and were thrown away: junk, frames with a wrong
    /// checksum, purged bytes.
    std::int64_t Lost() const { return m_lost; }
    /// Among them, frames as long as a memory frame.
    int LostMemoryFrames() const { return m_lostMemoryFrames; }

private:
    QByteArray Parse();
    void Cut(qsizetype bytes);

    QByteArray m_bytes;
    std::int64_t m_lost = 0;
    int m_lostMemoryFrames = 0;
};
