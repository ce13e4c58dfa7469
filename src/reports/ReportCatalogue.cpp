#include "ReportCatalogue.h"

#include "DatabaseReportRow.h"
#include "HardwareListRow.h"
#include "IncidentReportRow.h"
#include "IncidentSitesRow.h"
#include "PatrolScheduleRow.h"
#include "ReaderReportRow.h"
#include "TourReportRow.h"

const std::vector<ReportRow>& ReportCatalogue() {
    static const std::vector<ReportRow> rows = {
        TourReportRow(),   IncidentReportRow(), IncidentSitesRow(),  ReaderReportRow(),
        HardwareListRow(), PatrolScheduleRow(), DatabaseReportRow(),
    };
    return rows;
}
