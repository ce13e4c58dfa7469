#include "Command.h"
#include "CommandOptions.h"
#include "ConsoleTable.h"
#include "Format.h"
#include "LookUps.h"
#include "ReportCatalogue.h"
#include "mTranslations.h"

namespace {

ConsoleTable TourTable() {
    ConsoleTable table{{"id", "name", "description", "start", "tolerance"}, {}};
    for (const Tour& tour : ToursByName())
        table.rows += {tour.id, tour.name, tour.description,
                       Format(tour.startTime, QStringLiteral("hh:nn")), tour.tolerance};
    return table;
}

ConsoleTable ReaderTable() {
    ConsoleTable table{{"id", "description"}, {}};
    for (const Reader& reader : ReadersByDescription())
        table.rows += {reader.id, reader.description};
    return table;
}

ConsoleTable SiteTable() {
    ConsoleTable table{{"id", "name", "description"}, {}};
    for (const Group& site : SitesByName())
        table.rows += {site.id, site.name, site.description};
    return table;
}

ConsoleTable EventTable() {
    ConsoleTable table{{"id", "code", "name", "group"}, {}};
    for (const EventButton& event : EventButtons())
        table.rows += {event.id, event.code, event.name, event.groupName};
    return table;
}

ConsoleTable ReportTable() {
    ConsoleTable table{{"word", "name", "description"}, {}};
    for (const ReportRow& row : ReportCatalogue())
        table.rows +=
            {QString::fromUtf8(row.word), Translate(row.name), Translate(row.description)};
    return table;
}

Command ListOf(const char* words, const char* description, ConsoleTable (*table)()) {
    return {QString::fromUtf8(words), QString::fromUtf8(description), QStringLiteral("--json"),
            Access::Everybody, [table](CLI::App& options) {
                const auto json = std::make_shared<bool>(false);
                AddJson(options, *json);
                return [table, json](const ConsoleBoxes&) {
                    WriteTable(table(), *json);
                    return true;
                };
            }};
}

} // namespace

/// The commands that print what a call of another command can name.
std::vector<Command> ListCommands() {
    return {ListOf("list tours", "lists the tours with their IDs", TourTable),
            ListOf("list readers", "lists the readers", ReaderTable),
            ListOf("list sites", "lists the sites", SiteTable),
            ListOf("list events", "lists the events with their codes", EventTable),
            ListOf("report list", "lists the reports", ReportTable)};
}
