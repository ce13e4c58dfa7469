#pragma once

#include "DateTime.h"
#include "LookUps.h"

class Recordset;
class ReportViewer;

/// What the operator asked of the incident report with sites. Each filter has the text that the
/// page shows for it, which is "All", translated, if it does not filter.
struct IncidentSitesRequest {
    DateTime StartDate;
    DateTime EndDate; ///< the last instant of the range
    int EventId = NoFilter;
    QString EventName;
    int SiteId = NoFilter;
    QString SiteName;
    QString ReaderId; ///< empty: all readers
    QString ReaderName;

    static constexpr int NoFilter = -1;
};

/// The entries of the lists of events and readers, in the order in which they were stored. Both
/// throw RunTimeError.
QList<Button> EventFilters();
/// A reader without a description is described by its position, such as "Reader 2".
QList<Reader> ReaderFilters();

/// Drops `tblTempIncident` if it exists, and creates it empty.
void CreateTempIncident();
/// Does nothing if the table is not there.
void DropTempIncident();

/// Writes a line for each touch of the range into `tblTempIncident`, with the location and the site
/// that were touched last, and shows the report. If there is none, a message says so. The caller
/// drops the table.
void BuildIncidentSitesReport(const IncidentSitesRequest& request, ReportViewer& viewer);
