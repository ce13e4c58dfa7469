#include "Command.h"
#include "CommandOptions.h"
#include "ConsoleTools.h"
#include "EventArchive.h"
#include "FileReplacement.h"
#include "mTranslations.h"

#include <QJsonObject>

namespace {

struct Request {
    ArchiveRange range;
    QString path;
    bool json = false;
};

bool Archive(const Request& request) {
    if (!IsFreeName(request.path)) {
        Complain(Translate("That filename is already in use. Please choose another filename"));
        return false;
    }
    if (CountArchived(request.range) == 0) {
        Complain(Translate("There are no stored events within the dates you entered."));
        return false;
    }
    const std::optional<int> events =
        ArchiveEventsOf(request.range, request.path, [](int, int) { return true; });
    if (!events)
        return false;
    if (request.json)
        WriteJson({{QStringLiteral("events"), *events}, {QStringLiteral("file"), request.path}});
    else
        WriteLine(ArchivedText(*events, request.path));
    return true;
}

CommandRun Prepare(CLI::App& options) {
    const auto request = std::make_shared<Request>();
    AddDate(options, "--from", request->range.StartDate, "the first day");
    AddDate(options, "--to", request->range.EndDate, "the last day");
    AddPath(options, "--output", request->path, "the file to write; it must not exist",
            Presence::Required);
    AddRequiredFlag(options, "--yes", "confirms that the events will be deleted from the database");
    AddJson(options, request->json);
    return [request](const ConsoleBoxes&) { return Archive(*request); };
}

} // namespace

Command ArchiveCommand() {
    return {QStringLiteral("archive"),
            QStringLiteral("moves the events of some days into a CSV file"),
            QStringLiteral("--from 2026-01-01 --to 2026-06-30 --output old.csv --yes"),
            Access::MasterOnly, Prepare};
}
