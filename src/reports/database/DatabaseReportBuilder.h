#pragma once

#include "DateTime.h"
#include "Value.h"
#include "WorkProgress.h"

#include <QString>

#include <functional>

class Recordset;
class ReportViewer;

/// What the operator asked of the database report. Both ends belong to the range. A range that ends
/// before it starts holds no event.
struct DatabaseReportRequest {
    DateTime StartDate;
    DateTime EndDate;
};

/// The statement that reads the events of a report, in three parts, so that they can be counted
/// too.
struct EventQuery {
    QString columns; ///< "SELECT ..."
    QString source;  ///< "FROM ... WHERE ..."
    QString order;   ///< "ORDER BY ..."
    Values values;
};

enum class CopyResult { Failed, Cancelled, NoEvents, Copied };

/// Copies the events into tblCustom as formatted text, in one transaction, and opens `rows` on the
/// table. If it fails or is cancelled, tblCustom stays as it was. If there are no events,
/// tblCustom is empty. A failure is logged, except one that tables in memory would avoid
/// (ScratchTable.h): that one is thrown.
CopyResult CopyEvents(const EventQuery& query, Recordset& rows, const WorkProgress& show);

/// Calls CopyEvents and shows the operator its progress and outcome. True if the report can be
/// shown.
using CopyStep = std::function<bool(const EventQuery& query, Recordset& rows)>;

/// Copies the events of a range with `copy`, and shows them. A failure is logged, and a
/// message box says so.
void BuildDatabaseReport(const DatabaseReportRequest& request, const CopyStep& copy,
                         ReportViewer& viewer);
