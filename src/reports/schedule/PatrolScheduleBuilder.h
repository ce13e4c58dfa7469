#pragma once

class ReportViewer;

/// Shows the plan of a tour: its points, numbered, each with its time and the time of its
/// tolerance. If there is no such tour, a message box says so. A failure is logged and shown in the
/// error dialog. A tolerance that is not from 0 to 59 minutes is one.
void BuildPatrolSchedule(int tourId, ReportViewer& viewer);
