#pragma once

#include <QByteArray>

#include <vector>

/// One frame of a memory transfer.
struct cPacket {
    QByteArray RawData; ///< the whole frame, preamble and checksum included
    int Tag = 0;        ///< its number, from 1
};

/// The frames of one memory transfer, in order.
class colPackets {
public:
    cPacket& Add(const QByteArray& rawData) { return m_packets.emplace_back(cPacket{rawData, 0}); }
    int Count() const { return static_cast<int>(m_packets.size()); }
    auto begin() const { return m_packets.begin(); }
    auto end() const { return m_packets.end(); }

private:
    std::vector<cPacket> m_packets;
};
