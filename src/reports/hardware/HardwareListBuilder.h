#pragma once

class ReportViewer;

/// What the hardware list shows.
struct HardwareListRequest {
    bool PrintLocation = true; ///< the buttons of sites
    bool PrintEvent = true;    ///< the buttons of event books
    bool PrintReader = true;
};

/// Lists buttons, group by group, and readers, with their codes. The buttons of user groups are
/// always in the list. A failure is shown in a message box instead of the report.
void BuildHardwareListReport(const HardwareListRequest& request, ReportViewer& viewer);
