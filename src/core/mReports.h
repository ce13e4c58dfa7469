#pragma once

#include "DateTime.h"

#include <QList>
#include <QStringList>

#include <utility>

class DataReport;
class ReportViewer;
class darReport;

/// What all reports print or do in the same way. The product title is GetReportsTitle.

/// The four lines of gCompanyInfo, joined. Empty lines are kept.
QString CompanyText();

/// A date and its time in hours and minutes, `blanks` apart.
QString MomentText(DateTime moment, int blanks);
/// The time of printing in the head of a report.
QString PrintDateText(int blanks);
/// "Date Range:   From ... to ...", translated.
QString DateRangeText(DateTime from, DateTime to);

/// What a report was asked for, and what to check if it has no data: the advice of the box that
/// says so. A filter is a title, in English, and its value; one without a value is left out.
using ReportFilter = std::pair<const char*, QString>;
QString SearchedText(const QList<ReportFilter>& filters, DateTime from, DateTime to);

/// Gives a report, which has its title, its document name: the title, what it is about (such as
/// tour and reader), and its dates. Long parts are cut, so that the dates stay.
void NameDocument(DataReport& report, const QStringList& about, DateTime from, DateTime to);

/// Sets the labels that every layout has, under names of its own: the title of the print date, the
/// product title, the title of the page number, and the end of the report.
void SetFrameText(darReport& report, QStringView printDate, QStringView product, QStringView page,
                  QStringView endOfReport);

/// Shows a report that has its rows and its texts. Returns when the viewer is closed.
void ShowLayoutFrame(DataReport& report, ReportViewer& viewer);
