#pragma once

#include <QString>

/// Rows by position, as a report reads them. The source must outlive whoever holds it.
class RowSource {
public:
    virtual ~RowSource() = default;

    virtual qsizetype RowCount() const = 0;
    /// Position of a column by its name, whose case does not count. Throws RunTimeError
    /// (NoSuchItem) for an unknown name.
    virtual int Column(QStringView name) const = 0;
    /// A value as text; null is the empty text. `row` counts from 0 and must be below RowCount().
    virtual QString TextAt(qsizetype row, int column) const = 0;
    /// False for a source that knows no nulls.
    virtual bool IsNullAt(qsizetype, int) const { return false; }
};
