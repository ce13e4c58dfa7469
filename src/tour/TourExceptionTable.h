#pragma once

#include "Recordset.h"

#include <QString>

#include <functional>

/// The scratch table of the tour report. A row is one line of the report and fills only the columns
/// of its kind. It exists while a report is built and shown.
class TourExceptionTable {
public:
    /// The eleven columns, in their order.
    static const QStringList& ColumnNames();

    ~TourExceptionTable();

    /// Drops the table if it exists, and creates it. A failure is logged and gives false.
    static bool ResetTempTourTable();
    /// Drops the table if it exists.
    static void Drop();

    /// `make` creates the table; `write` then writes the lines. All of it is one transaction. If
    /// one of the two gives false, nothing is left of it, and the result is false.
    bool Fill(const std::function<bool()>& make, const std::function<bool()>& write);
    /// A separator, then the tour line.
    void WriteTourLine(int item, const QString& time, const QString& range, const QString& place,
                       const QString& status);
    void WriteDetailLine(const QString& time, const QString& status, const QString& details);
    /// A text across the whole page.
    void WriteNote(const QString& text);
    void WriteSeparator();
    void Close();

    /// The rows written.
    Recordset& Rows() { return m_rows; }

private:
    Recordset m_rows;
};
