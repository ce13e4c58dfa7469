#pragma once

#include "Recordset.h"

#include <QString>

/// The scratch table of the tour report. A row is one line of the report and fills only the columns
/// of its kind. It exists while a report is built and shown.
class TourExceptionTable {
public:
    /// The eleven columns, in their order.
    static const QStringList& ColumnNames();

    ~TourExceptionTable();

    /// Makes the table afresh; false, logged, where that fails.
    static bool ResetTempTourTable();
    /// Drops it; that it is not there does not matter.
    static void Drop();

    void Open();
    /// A separator, then the tour line.
    void WriteTourLine(int item, const QString& time, const QString& range, const QString& place,
                       const QString& status);
    void WriteDetailLine(const QString& time, const QString& status, const QString& details);
    /// A line of its own across the page.
    void WriteNote(const QString& text);
    void WriteSeparator();
    void Close();

    /// All rows written, once none is pending.
    Recordset& Rows() { return m_rows; }

private:
    Recordset m_rows;
};
