#include "ReportCatalogue.h"

#include "DatabaseReportRow.h"
#include "HardwareListRow.h"
#include "IncidentReportRow.h"
#include "IncidentSitesRow.h"
#include "LookUps.h"
#include "PatrolScheduleRow.h"
#include "ReaderReportRow.h"
#include "TourReportRow.h"
#include "mTranslations.h"

const std::vector<ReportRow>& ReportCatalogue() {
    static const std::vector<ReportRow> rows = {
        TourReportRow(),   IncidentReportRow(), IncidentSitesRow(),  ReaderReportRow(),
        HardwareListRow(), PatrolScheduleRow(), DatabaseReportRow(),
    };
    return rows;
}

bool ReportNeedsAreMet(ReportNeeds needs) {
    const bool needsReader = needs == ReportNeeds::Reader || needs == ReportNeeds::ReaderThenTour;
    const bool needsTour = needs == ReportNeeds::Tour || needs == ReportNeeds::ReaderThenTour;
    if (needsReader && CountReaders() < 1) {
        IvMessageBox(Translate("You must add at least one reader before this report can be used"));
        return false;
    }
    if (needsTour && CountTours() < 1) {
        IvMessageBox(Translate("You must add at least one tour before this report can be used"));
        return false;
    }
    return true;
}
