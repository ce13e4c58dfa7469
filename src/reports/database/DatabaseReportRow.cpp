#include "DatabaseReportRow.h"

#include "CommandOptions.h"
#include "DatabaseReportBuilder.h"
#include "ReportViewer.h"
#include "ShowReportDialog.h"
#include "frmRptCustomParam.h"
#include "mReports.h"
#include "mTranslations.h"

namespace {

constexpr auto LoadCustomReport = ShowReportDialog<frmRptCustomParam>;

std::function<void(ReportViewer&)> AddOptions(CLI::App& options) {
    const auto request = std::make_shared<DatabaseReportRequest>();
    AddRange(options, request->StartDate, request->EndDate, LastMinute::FirstSecond);
    return [request](ReportViewer& viewer) {
        const auto copy = [&](const EventQuery& query, Recordset& rows) {
            const CopyResult result = CopyEvents(query, rows, viewer.Progress());
            if (result == CopyResult::NoEvents)
                IvMessageBox(Translate("No Data on the report"),
                             SearchedText({}, request->StartDate, request->EndDate));
            return result == CopyResult::Copied;
        };
        BuildDatabaseReport(*request, copy, viewer);
    };
}

} // namespace

ReportRow DatabaseReportRow() {
    return {.key = "CustomReport",
            .name = QT_TR_NOOP("Database Report"),
            .description = QT_TR_NOOP("Raw data from database"),
            .needs = ReportNeeds::Nothing,
            .open = LoadCustomReport,
            .openLabel = nullptr,
            .word = "database",
            .help = "lists all touches in a range of time",
            .example = "--from 2026-11-21T00:00 --to 2026-11-22T23:59 --format csv",
            .commandNeeds = ReportNeeds::Nothing,
            .addOptions = AddOptions};
}
