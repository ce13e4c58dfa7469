#pragma once

#include <QString>

class DataReport;
class ReportViewer;

/// What every report prints or does alike. The product title is GetReportsTitle.

/// The four lines of gCompanyInfo, joined; empty lines stay.
QString CompanyText();

/// Today and now, as the head of a report shows the time of printing, `blanks` apart.
QString PrintDateText(int blanks);

/// Shows a report that has its data and its texts. Returns when the viewer is closed.
void ShowLayoutFrame(DataReport& report, ReportViewer& viewer);
