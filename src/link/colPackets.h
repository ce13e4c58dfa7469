#pragma once

#include <QByteArray>

#include <vector>

/// One frame of a memory transfer.
struct cPacket {
    QByteArray RawData; ///< the whole frame, preamble and checksum included
    int Tag = 0;        ///< its running number, 1 for the first
};

/// The frames of one memory transfer, in the order in which they came.
class colPackets {
public:
    cPacket& Add(const QByteArray& rawData) { return m_packets.emplace_back(cPacket{rawData, 0}); }
    int Count() const { return static_cast<int>(m_packets.size()); }
    auto begin() const { return m_packets.begin(); }
    auto end() const { return m_packets.end(); }

private:
    std::vector<cPacket> m_packets;
};
