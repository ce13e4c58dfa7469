#pragma once

#include <QByteArray>

#include <numeric>

inline QByteArray Hex(const char* digits) { return QByteArray::fromHex(digits); }

/// A frame, made without the code under test.
inline QByteArray FrameOf(const QByteArray& payload) {
    const QByteArray body = Hex("0301035100") + static_cast<char>(payload.size()) + payload;
    return Hex("FFFFFF55") + body + static_cast<char>(std::accumulate(body.begin(), body.end(), 0));
}
