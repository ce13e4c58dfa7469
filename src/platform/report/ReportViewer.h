#pragma once

class DataReport;

/// Whoever shows finished reports: the preview window of the station, or a file of the command
/// line.
class ReportViewer {
public:
    virtual ~ReportViewer() = default;
    /// Shows a report and returns when it has been looked at. The report and its rows must outlive
    /// the call.
    virtual void Show(DataReport& report) = 0;
};
