#pragma once

class ReportViewer;

/// Shows the plan of a tour: its points, numbered, each with its time and its earliest and latest
/// time. If there is no such tour, a message box says so. A failure is logged and shown in the
/// error dialog. A tolerance outside 0 to 59 minutes counts as a failure.
void BuildPatrolSchedule(int tourId, ReportViewer& viewer);
