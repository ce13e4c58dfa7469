#include "TourReportRow.h"

#include "CommandOptions.h"
#include "LookUps.h"
#include "ShowReportDialog.h"
#include "TourReportBuilder.h"
#include "frmRptTour.h"

namespace {

constexpr auto LoadTourReport = ShowReportDialog<frmRptTour>;

std::function<void(ReportViewer&)> AddOptions(CLI::App& options) {
    const auto request = std::make_shared<TourReportRequest>();
    AddNumber(options, "--tour", request->TourID, "the ID of the tour");
    AddReader(options, "--reader", request->ReaderId, "the identifier of the reader");
    AddDate(options, "--date", request->StartDate, "the day on which the tour starts");
    AddFlag(options, "--all", request->ShowAll, "shows every tour point, not only exceptions");
    AddFlag(options, "--events", request->IncludeEvents, "shows the incidents too");
    return [request](ReportViewer& viewer) {
        const std::optional<Reader> reader = FindReader(request->ReaderId);
        request->ReaderText = reader ? ReaderText(*reader) : request->ReaderId;
        BuildTourReport(*request, viewer);
    };
}

} // namespace

ReportRow TourReportRow() {
    return {.key = "NewException",
            .name = QT_TR_NOOP("Tour / Exception Report"),
            .description = QT_TR_NOOP("Exception Report"),
            .needs = ReportNeeds::ReaderThenTour,
            .open = LoadTourReport,
            .openLabel = nullptr,
            .word = "tour",
            .help = "compares what a reader recorded with a tour",
            .example = "--tour 2 --reader 4B5831A7 --date 2026-11-21 --format text",
            // The call names both. A reader that was never taught can have been downloaded.
            .commandNeeds = ReportNeeds::Nothing,
            .addOptions = AddOptions};
}
