#pragma once

#include <QString>

/// Rows by position, as a report reads them. The source must outlive the report.
class RowSource {
public:
    virtual ~RowSource() = default;

    virtual qsizetype RowCount() const = 0;
    /// The position of a column, by its name in any case. Throws RunTimeError (NoSuchItem) if there
    /// is no such column.
    virtual int Column(QStringView name) const = 0;
    /// A value as text; empty for null. `row` is from 0 to RowCount() - 1.
    virtual QString TextAt(qsizetype row, int column) const = 0;
    /// False if the source has no nulls.
    virtual bool IsNullAt(qsizetype, int) const { return false; }
};
