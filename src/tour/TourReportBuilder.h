#pragma once

#include "DateTime.h"

#include <QString>

class ReportViewer;

/// What the operator asked of the tour report.
struct TourReportRequest {
    int TourID = 0;
    DateTime StartDate;
    QString ReaderId;
    QString ReaderText; ///< the reader as the page header names it
    bool IncludeEvents = false;
    bool ShowAll = false; ///< every tour point, not only the exceptions
};

/// "Tour Report" or "Exception Report", translated.
QString GetReportTitle(bool showAll);

/// Holds what a reader recorded against a tour, writes the report's lines and shows it. Every
/// failure is told in a message box; then no report is shown.
void BuildTourReport(const TourReportRequest& request, ReportViewer& viewer);
