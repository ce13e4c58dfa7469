#include "ReaderReportRow.h"

#include "CommandOptions.h"
#include "LookUps.h"
#include "ReaderReportBuilder.h"
#include "ShowReportDialog.h"
#include "frmRptReaderReport.h"

namespace {

constexpr auto LoadReaderReport = ShowReportDialog<frmRptReaderReport>;

std::function<void(ReportViewer&)> AddOptions(CLI::App& options) {
    const auto request = std::make_shared<ReaderReportRequest>();
    AddReader(options, "--reader", request->ReaderId, "the identifier of the reader");
    AddRange(options, request->StartDate, request->EndDate, LastMinute::FirstSecond);
    return [request](ReportViewer& viewer) {
        if (const std::optional<Reader> reader = FindReader(request->ReaderId))
            request->ReaderDesc = reader->description;
        BuildReaderReport(*request, viewer);
    };
}

} // namespace

ReportRow ReaderReportRow() {
    return {.key = "ReaderReport",
            .name = QT_TR_NOOP("Reader Download Report"),
            .description = QT_TR_NOOP("Lists details of each download to the PC for a reader"),
            .needs = ReportNeeds::Reader,
            .open = LoadReaderReport,
            .openLabel = nullptr,
            .word = "downloads",
            .help = "lists the touches of a reader, download by download",
            .example = "--reader 4B5831A7 --from 2026-11-21T00:00 --to 2026-11-22T23:59 "
                       "--format text",
            // A reader that was never taught can have been downloaded.
            .commandNeeds = ReportNeeds::Nothing,
            .addOptions = AddOptions};
}
