#pragma once

#include "DateTime.h"

#include <QString>

class ReportViewer;

/// What the operator asked of the tour report.
struct TourReportRequest {
    int TourID = 0;
    DateTime StartDate;
    QString ReaderId;
    QString ReaderText; ///< the reader, as the page header shows it
    bool IncludeEvents = false;
    bool ShowAll = false; ///< every tour point, not only the exceptions
};

/// "Tour Report" or "Exception Report", translated.
QString GetReportTitle(bool showAll);

/// Compares what a reader recorded with a tour, writes the report's lines and shows the report. A
/// failure is shown in a message box instead of the report.
void BuildTourReport(const TourReportRequest& request, ReportViewer& viewer);
