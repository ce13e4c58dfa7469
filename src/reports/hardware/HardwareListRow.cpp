#include "HardwareListRow.h"

#include "CommandOptions.h"
#include "HardwareListBuilder.h"
#include "ShowReportDialog.h"
#include "frmRptHardwareListParam.h"

namespace {

constexpr auto LoadHardwareList = ShowReportDialog<frmRptHardwareListParam>;

std::function<void(ReportViewer&)> AddOptions(CLI::App& options) {
    struct LeftOut {
        bool locations = false, events = false, readers = false;
    };
    const auto leftOut = std::make_shared<LeftOut>();
    AddFlag(options, "--no-locations", leftOut->locations, "leaves out the buttons of sites");
    AddFlag(options, "--no-events", leftOut->events, "leaves out the buttons of event books");
    AddFlag(options, "--no-readers", leftOut->readers, "leaves out the readers");
    return [leftOut](ReportViewer& viewer) {
        BuildHardwareListReport({!leftOut->locations, !leftOut->events, !leftOut->readers}, viewer);
    };
}

} // namespace

ReportRow HardwareListRow() {
    return {.key = "HardwareListReport",
            .name = QT_TR_NOOP("Hardware List Report"),
            .description = QT_TR_NOOP("List all the defined buttons"),
            .needs = ReportNeeds::Nothing,
            .open = LoadHardwareList,
            .openLabel = nullptr,
            .word = "hardware",
            .help = "lists the buttons and readers with their codes",
            .example = "--no-readers --format text",
            .commandNeeds = ReportNeeds::Nothing,
            .addOptions = AddOptions};
}
