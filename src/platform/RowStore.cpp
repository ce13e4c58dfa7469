#include "RowStore.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace {

// The first byte of a value. The length of a text follows in groups of 7 bits, the lowest first;
// the high bit is set if another group follows.
enum Tag : unsigned char { TagNull, TagByte, TagInt32, TagInt64, TagReal, TagText };

template <typename T>
T Read(const unsigned char* from) {
    T value;
    std::memcpy(&value, from, sizeof value);
    return value;
}

std::size_t ReadLength(const unsigned char*& at) {
    std::size_t length = 0;
    int shift = 0;
    unsigned char byte;
    do {
        byte = *at++;
        length |= static_cast<std::size_t>(byte & 0x7f) << shift;
        shift += 7;
    } while (byte & 0x80);
    return length;
}

const unsigned char* EndOf(const unsigned char* at) {
    switch (*at++) {
    case TagByte:
        return at + 1;
    case TagInt32:
        return at + 4;
    case TagInt64:
    case TagReal:
        return at + 8;
    case TagText: {
        const std::size_t length = ReadLength(at);
        return at + length;
    }
    default:
        return at;
    }
}

Value Decode(const unsigned char* at) {
    switch (*at++) {
    case TagByte:
        return Value(qint64{*at});
    case TagInt32:
        return Value(qint64{Read<std::int32_t>(at)});
    case TagInt64:
        return Value(Read<qint64>(at));
    case TagReal:
        return Value(Read<double>(at));
    case TagText: {
        const std::size_t length = ReadLength(at);
        return Value(
            QString::fromUtf8(reinterpret_cast<const char*>(at), static_cast<qsizetype>(length)));
    }
    default:
        return {};
    }
}

template <typename T>
void Put(std::vector<unsigned char>& row, Tag tag, T value) {
    const std::size_t at = row.size();
    row.resize(at + 1 + sizeof value);
    row[at] = tag;
    std::memcpy(row.data() + at + 1, &value, sizeof value);
}

} // namespace

void RowStore::Clear() {
    m_blocks.clear();
    m_rows.clear();
    m_cursorRow = -1;
}

void RowStore::BeginRow() { m_building.clear(); }

void RowStore::AppendNull() { m_building.push_back(TagNull); }

void RowStore::AppendNumber(qint64 number) {
    if (number >= 0 && number <= 255)
        Put(m_building, TagByte, static_cast<unsigned char>(number));
    else if (number >= std::numeric_limits<std::int32_t>::min() &&
             number <= std::numeric_limits<std::int32_t>::max())
        Put(m_building, TagInt32, static_cast<std::int32_t>(number));
    else
        Put(m_building, TagInt64, number);
}

void RowStore::AppendReal(double number) { Put(m_building, TagReal, number); }

void RowStore::AppendText(const char* utf8, std::size_t bytes) {
    m_building.push_back(TagText);
    std::size_t length = bytes;
    do {
        const auto low = static_cast<unsigned char>(length & 0x7f);
        length >>= 7;
        m_building.push_back(length ? static_cast<unsigned char>(low | 0x80) : low);
    } while (length);
    m_building.insert(m_building.end(), utf8, utf8 + bytes);
}

void RowStore::AppendValue(const Value& value) {
    if (const auto* number = std::get_if<qint64>(&value.Data())) {
        AppendNumber(*number);
    } else if (const auto* real = std::get_if<double>(&value.Data())) {
        AppendReal(*real);
    } else if (const auto* text = std::get_if<QString>(&value.Data())) {
        const QByteArray utf8 = text->toUtf8();
        AppendText(utf8.constData(), static_cast<std::size_t>(utf8.size()));
    } else {
        AppendNull();
    }
}

void RowStore::EndRow() {
    const std::size_t bytes = m_building.size();
    if (m_blocks.empty() || m_blocks.back().size - m_blocks.back().used < bytes) {
        // Most results have few rows, so the first block is small.
        const std::size_t size = std::max(bytes, m_blocks.empty() ? FirstBlockBytes : BlockBytes);
        m_blocks.push_back({std::make_unique_for_overwrite<unsigned char[]>(size), size, 0});
    }
    Block& block = m_blocks.back();
    unsigned char* row = block.bytes.get() + block.used;
    std::copy(m_building.begin(), m_building.end(), row);
    block.used += bytes;
    m_rows.push_back(row);
}

void RowStore::MoveLastTo(qsizetype row) {
    m_rows[static_cast<std::size_t>(row)] = m_rows.back();
    m_rows.pop_back();
    m_cursorRow = -1;
}

Value RowStore::At(qsizetype row, int column) const {
    if (row != m_cursorRow || column < m_cursorColumn) {
        m_cursorRow = row;
        m_cursorColumn = 0;
        m_cursor = m_rows[static_cast<std::size_t>(row)];
    }
    for (; m_cursorColumn < column; ++m_cursorColumn)
        m_cursor = EndOf(m_cursor);
    return Decode(m_cursor);
}

std::size_t RowStore::MemoryBytes() const {
    std::size_t bytes = m_rows.capacity() * sizeof m_rows[0];
    for (const Block& block : m_blocks)
        bytes += block.size;
    return bytes;
}
