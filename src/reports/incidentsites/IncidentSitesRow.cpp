#include "IncidentSitesRow.h"

#include "CommandOptions.h"
#include "IncidentSitesBuilder.h"
#include "ShowReportDialog.h"
#include "frmRptIncidentParam.h"
#include "mTranslations.h"

#include <algorithm>

namespace {

constexpr auto LoadIncidentReportOld = ShowReportDialog<frmRptIncidentParam>;

/// The options of the command.
struct Selection {
    DateTime from, to;
    QString code, site, reader;
};

/// The first entry whose `member` has that value; null if there is none.
template <typename Entry, typename Base>
const Entry* Find(const QList<Entry>& entries, QString Base::*member, const QString& value) {
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const Entry& entry) { return entry.*member == value; });
    return found == entries.end() ? nullptr : &*found;
}

/// The request of a call. Nothing if the event or the site does not exist; a message has then said
/// so.
std::optional<IncidentSitesRequest> RequestOf(const Selection& selection) {
    const QString all = Translate("All");
    IncidentSitesRequest request{.StartDate = selection.from,
                                 .EndDate = selection.to,
                                 .EventName = all,
                                 .SiteName = all,
                                 .ReaderId = selection.reader,
                                 .ReaderName = all};
    if (!selection.code.isEmpty()) {
        const QList<Button> events = EventFilters();
        const Button* event = Find(events, &Button::code, selection.code);
        if (!event) {
            IvMessageBox(FormatStr(Translate("No event has the code %0:s."), {selection.code}));
            return {};
        }
        request.EventId = event->id;
        request.EventName = event->name;
    }
    if (!selection.site.isEmpty()) {
        const QList<Group> sites = GroupsOf(SiteGroup);
        const Group* site = Find(sites, &Group::name, selection.site);
        if (!site) {
            IvMessageBox(FormatStr(Translate("There is no site named %0:s."), {selection.site}));
            return {};
        }
        request.SiteId = site->id;
        request.SiteName = site->name;
    }
    if (!selection.reader.isEmpty()) {
        const QList<Reader> readers = ReaderFilters();
        const Reader* reader = Find(readers, &Reader::id, selection.reader);
        request.ReaderName = reader ? reader->description : selection.reader;
    }
    return request;
}

std::function<void(ReportViewer&)> AddOptions(CLI::App& options) {
    const auto selection = std::make_shared<Selection>();
    AddRange(options, selection->from, selection->to, LastMinute::Whole);
    AddOptionalCode(options, "--event", selection->code,
                    "only the event of this code; the first one if two share it");
    AddOptionalText(options, "--site", selection->site,
                    "only touches made while this site was the last one touched");
    AddOptionalReader(options, "--reader", selection->reader, "only the touches of this reader");
    return [selection](ReportViewer& viewer) {
        if (const std::optional<IncidentSitesRequest> request = RequestOf(*selection)) {
            BuildIncidentSitesReport(*request, viewer);
            DropTempIncident();
        }
    };
}

} // namespace

ReportRow IncidentSitesRow() {
    return {.key = "IncidentReportOld",
            .name = QT_TR_NOOP("Incident Report with Sites"),
            .description = QT_TR_NOOP("List Incidents for a range of dates and readers with sites"),
            .needs = ReportNeeds::Reader,
            .open = LoadIncidentReportOld,
            .openLabel = "LoadIncidentReportOld of Form frmMdiReports",
            .word = "incident-sites",
            .help = "lists all touches with their sites and locations",
            .example = "--from 2026-11-21T00:00 --to 2026-11-22T23:59 --format text",
            .commandNeeds = ReportNeeds::Reader,
            .addOptions = AddOptions};
}
