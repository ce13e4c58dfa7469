#pragma once

#include "Value.h"

#include <cstdint>
#include <memory>
#include <vector>

/// Packed rows of values: for each value one tag byte and only as many bytes as it needs, in blocks
/// that never move. So a million rows take little more memory than their bare values.
class RowStore {
public:
    void Clear();
    qsizetype Count() const { return static_cast<qsizetype>(m_rows.size()); }

    /// A row is appended between these two calls, value by value, from the first column to the
    /// last.
    void BeginRow();
    void EndRow();
    void AppendNull();
    void AppendNumber(qint64 number);
    void AppendReal(double number);
    void AppendText(const char* utf8, std::size_t bytes);
    void AppendValue(const Value& value);
    /// Replaces row `row` by the row that was appended last.
    void MoveLastTo(qsizetype row);

    /// Fast if the columns of a row are read in order.
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
    /// The row that is being appended. It is kept here until its length is known, so that no row
    /// spans two blocks.
    std::vector<unsigned char> m_building;

    mutable qsizetype m_cursorRow = -1;
    mutable int m_cursorColumn = 0;
    mutable const unsigned char* m_cursor = nullptr;
};
