#pragma once

#include "DateTime.h"
#include "LookUps.h"

class ReportViewer;

/// What the operator asked of the incident report.
struct IncidentReportRequest {
    DateTime StartDate;
    DateTime EndDate; ///< the last instant of the range
    QList<Reader> Readers;
    QList<int> Events; ///< IDs of buttons, in the order of the report
};

/// An event as the dialog and the headings show it: "Door found open [7E0001] -- Incidents".
QString IncidentText(const EventButton& event);

/// True if all is there. Otherwise a message says what is missing.
bool IncidentsAreSelected(const IncidentReportRequest& request);

/// The button of that ID. Nothing if there is none, or if it cannot be read; that is logged.
std::optional<EventButton> GetIncidentHeader(int id);

/// Writes the lines of each event into `tblReportTemp` and shows the report: for each incident, the
/// location that was touched before it, and when that location was touched. True if the report was
/// shown. If it was not, a message has said why, unless no reader is given or the operator
/// cancelled.
bool BuildIncidentReport(const IncidentReportRequest& request, ReportViewer& viewer);
