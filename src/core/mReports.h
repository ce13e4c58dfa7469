#pragma once

#include <QString>

class DataReport;
class ReportViewer;

/// What all reports print or do in the same way. The product title is GetReportsTitle.

/// The four lines of gCompanyInfo, joined. Empty lines are kept.
QString CompanyText();

/// The time of printing in the head of a report: today's date and the time, `blanks` apart.
QString PrintDateText(int blanks);

/// Shows a report that has its rows and its texts. Returns when the viewer is closed.
void ShowLayoutFrame(DataReport& report, ReportViewer& viewer);
