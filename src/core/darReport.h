#pragma once

#include "DataReport.h"

#include <utility>
#include <vector>

/// Controls of a layout, by name, and the text that each shows.
using ReportTexts = std::vector<std::pair<QStringView, QString>>;

/// What all report layouts have in common. A layout is a class derived from this one; it names its
/// file and translates nothing. The author of a report is the first company line; its language is
/// the program's.
class darReport : public DataReport {
public:
    /// `layout` is the name of the file in the program's resources. Throws RunTimeError if it is
    /// missing or faulty.
    explicit darReport(const QString& layout);

    /// The values of this one report. They are printed as they are, even with a "%" in them. The
    /// one for "lblReportTitle" is also the report's Caption. Throws RunTimeError (NoSuchItem) for
    /// a name that the layout does not have.
    void SetReportParam(const ReportTexts& values);

    /// The fixed labels, translated. Throws as SetReportParam does.
    void SetText(const ReportTexts& labels);
};
