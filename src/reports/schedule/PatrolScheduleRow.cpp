#include "PatrolScheduleRow.h"

#include "CommandOptions.h"
#include "PatrolScheduleBuilder.h"
#include "ShowReportDialog.h"
#include "frmRptPatrolSchedule.h"

namespace {

constexpr auto LoadPatrolSchedule = ShowReportDialog<frmRptPatrolSchedule>;

std::function<void(ReportViewer&)> AddOptions(CLI::App& options) {
    const auto tour = std::make_shared<int>(0);
    AddNumber(options, "--tour", *tour, "the ID of the tour");
    return [tour](ReportViewer& viewer) { BuildPatrolSchedule(*tour, viewer); };
}

} // namespace

ReportRow PatrolScheduleRow() {
    return {.key = "PatrolSchedule",
            .name = QT_TR_NOOP("Patrol Schedule"),
            .description = QT_TR_NOOP("Lists the times and places for a tour"),
            .needs = ReportNeeds::Tour,
            .open = LoadPatrolSchedule,
            .openLabel = nullptr,
            .word = "schedule",
            .help = "lists the times and places of a tour",
            .example = "--tour 2 --format text",
            .commandNeeds = ReportNeeds::Nothing, // the call names the tour
            .addOptions = AddOptions};
}
