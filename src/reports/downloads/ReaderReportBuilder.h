#pragma once

#include "DateTime.h"

#include <QString>

class ReportViewer;

/// What the operator asked of the reader download report.
struct ReaderReportRequest {
    DateTime StartDate;
    DateTime EndDate; ///< belongs to the range
    QString ReaderId;
    QString ReaderDesc; ///< empty for a reader that was never taught
};

/// Shows the touches of one reader, in a block for each download. If there are none, or the range
/// ends before it starts, a message box says so. A failure is logged, and a message box says so.
void BuildReaderReport(const ReaderReportRequest& request, ReportViewer& viewer);
