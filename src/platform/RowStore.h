#pragma once

#include "Value.h"

#include <cstdint>
#include <memory>
#include <vector>

/// Rows of values, packed: a tag byte a value and no more bytes than the value needs, in blocks
/// that never move. A million rows so take little more than their bare values.
class RowStore {
public:
    void Clear();
    qsizetype Count() const { return static_cast<qsizetype>(m_rows.size()); }

    /// A row is appended value by value, from the first column to the last, between these two.
    void BeginRow();
    void EndRow();
    void AppendNull();
    void AppendNumber(qint64 number);
    void AppendReal(double number);
    void AppendText(const char* utf8, std::size_t bytes);
    void AppendValue(const Value& value);
    /// The row appended last takes the place of row `row`.
    void MoveLastTo(qsizetype row);

    /// Reading the columns of a row in turn costs one step each.
    Value At(qsizetype row, int column) const;

    std::size_t MemoryBytes() const;

private:
    static constexpr std::size_t FirstBlockBytes = 4096;
    static constexpr std::size_t BlockBytes = std::size_t{1} << 20;
    struct Block {
        std::unique_ptr<unsigned char[]> bytes;
        std::size_t size;
        std::size_t used;
    };

    std::vector<Block> m_blocks;
    std::vector<const unsigned char*> m_rows;
    /// The row being appended, kept until its length is known so that no row spans two blocks.
    std::vector<unsigned char> m_building;

    mutable qsizetype m_cursorRow = -1;
    mutable int m_cursorColumn = 0;
    mutable const unsigned char* m_cursor = nullptr;
};
