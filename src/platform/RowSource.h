#pragma once

#include "Value.h"

#include <QStringList>

/// Rows by position, as a report reads them. The source must outlive the report.
class RowSource {
public:
    virtual ~RowSource() = default;

    virtual qsizetype RowCount() const = 0;
    /// The names of the columns, in their order.
    virtual const QStringList& Columns() const = 0;
    /// `row` counts from 0 and must be below RowCount().
    virtual Value ValueAt(qsizetype row, int column) const = 0;

    /// A value as text; null is the empty text.
    QString TextAt(qsizetype row, int column) const { return ValueAt(row, column).Text(); }
    /// Position of a column by its name; upper and lower case are the same. Throws RunTimeError
    /// (NoSuchItem) if there is no such column.
    int Column(QStringView name) const;
};
