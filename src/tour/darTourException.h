#pragma once

#include "DataReport.h"

/// The layout of the tour report: rule, tour line and what was touched, line by line. The same one
/// prints the full report and the exceptions alone. It translates nothing.
class darTourException : public DataReport {
public:
    /// Throws RunTimeError where the program's layout is missing or faulty.
    darTourException();

    /// The values of this report. The title is also the caption of the preview.
    void SetReportParam(const QString& printDate, const QString& tourDate, const QString& tourName,
                        const QString& reader, const QString& title, const QString& tolerance,
                        const QString& companyInfo, const QString& showEvents);

    /// The fixed labels, translated.
    void SetText(const QString& printDate, const QString& productTitle, const QString& page,
                 const QString& readerId, const QString& tourDate, const QString& tourName,
                 const QString& tolerance, const QString& time, const QString& siteLocation,
                 const QString& status, const QString& endOfReport, const QString& showEvents);
};
