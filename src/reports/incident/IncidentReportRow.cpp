#include "IncidentReportRow.h"

#include "CommandOptions.h"
#include "IncidentReportBuilder.h"
#include "ReportNeeds.h"
#include "ShowReportDialog.h"
#include "frmRptIncidentNew.h"
#include "mTranslations.h"

namespace {

constexpr auto LoadIncidentReport = ShowReportDialog<frmRptIncidentNew>;

/// The options of the command.
struct Selection {
    DateTime from, to;
    QStringList readers, codes;
};

/// Readers in the dialog's order, then those that have not been taught. All readers if none is
/// named.
QList<Reader> SelectedReaders(QStringList named) {
    QList<Reader> readers = ReadersById();
    if (named.isEmpty())
        return readers;
    readers.removeIf([&](const Reader& reader) { return named.removeAll(reader.id) == 0; });
    for (const QString& id : named)
        readers += {id, {}};
    return readers;
}

/// The IDs of the events in the dialog's order; all events if none is named. A code that two events
/// share means both. Nothing if a code belongs to no event; a message has then named it.
std::optional<QList<int>> SelectedEvents(const QStringList& named) {
    QList<int> ids;
    QStringList unknown = named;
    for (const EventButton& event : EventButtons()) {
        unknown.removeAll(event.code);
        if (named.isEmpty() || named.contains(event.code))
            ids += event.id;
    }
    if (unknown.isEmpty())
        return ids;
    IvMessageBox(FormatStr(Translate("No event has the code %0:s."), {unknown.first()}));
    return {};
}

std::function<void(ReportViewer&)> AddOptions(CLI::App& options) {
    const auto selection = std::make_shared<Selection>();
    AddRange(options, selection->from, selection->to, LastMinute::Whole);
    AddReaders(options, "--reader", selection->readers, "a reader; all readers if none is named");
    AddCodes(options, "--event", selection->codes, "an event's code; all events if none is named");
    return [selection](ReportViewer& viewer) {
        // A reader that is named need not have been taught: it can have been downloaded.
        if (selection->readers.isEmpty() && !ReportNeedsAreMet(ReportNeeds::Reader))
            return;
        const std::optional<QList<int>> events = SelectedEvents(selection->codes);
        if (!events)
            return;
        const IncidentReportRequest request{selection->from, selection->to,
                                            SelectedReaders(selection->readers), *events};
        if (IncidentsAreSelected(request))
            BuildIncidentReport(request, viewer);
    };
}

} // namespace

ReportRow IncidentReportRow() {
    return {.key = "IncidentReport",
            .name = QT_TR_NOOP("Incident Report"),
            .description = QT_TR_NOOP("List Incidents for a range of dates and readers"),
            .needs = ReportNeeds::Reader,
            .open = LoadIncidentReport,
            .openLabel = "LoadIncidentReport of Form frmMdiReports",
            .word = "incident",
            .help = "lists where the guard was at each incident",
            .example = "--from 2026-11-21T00:00 --to 2026-11-22T23:59 --format text",
            .commandNeeds = ReportNeeds::Nothing, // AddOptions asks for a reader if it needs one
            .addOptions = AddOptions};
}
