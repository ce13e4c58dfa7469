#pragma once

#include "WorkProgress.h"

class DataReport;

/// Shows finished reports: in the station's preview window, or as a file of the command line.
class ReportViewer {
public:
    virtual ~ReportViewer() = default;
    /// Shows a report and returns when the user has closed it. The report and its rows must outlive
    /// the call.
    virtual void Show(DataReport& report) = 0;
    /// To be called while the rows of a report are made (RowProgress). Its window closes when the
    /// last copy of the function is destroyed.
    virtual WorkProgress Progress() {
        return [](int, int) { return true; };
    }
};
