#include "Command.h"
#include "CommandOptions.h"
#include "ConsoleDock.h"
#include "ConsoleTools.h"
#include "Format.h"
#include "mTranslations.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

void WriteOutcomeAsJson(const MemoryDownload::Outcome& outcome) {
    QJsonArray touches;
    for (const cRawButton& touch : outcome.touches)
        touches += QJsonObject{{QStringLiteral("time"),
                                Format(touch.DateAndTime, QStringLiteral("yyyy-mm-ddThh:nn:ss"))},
                               {QStringLiteral("code"), touch.ButtonCode},
                               {QStringLiteral("name"), touch.Name},
                               {QStringLiteral("group"), touch.GroupName},
                               {QStringLiteral("type"), touch.EventType}};
    WriteJson({{QStringLiteral("reader"), outcome.readerId},
               {QStringLiteral("touches"), touches},
               {QStringLiteral("stored"), outcome.rowsStored},
               {QStringLiteral("erased"), outcome.erased}});
}

/// A line for each touch, then the reader and the message.
void WriteOutcome(const MemoryDownload::Outcome& outcome, const QString& message) {
    QString text;
    int number = 0;
    for (const cRawButton& touch : outcome.touches)
        text += QString::number(++number).rightJustified(6) + QStringLiteral("  ") +
                Format(touch.DateAndTime, QStringLiteral("Short Date")) + QStringLiteral("  ") +
                Format(touch.DateAndTime, QStringLiteral("hh:mm")) + QStringLiteral("  ") +
                touch.ButtonCode + QStringLiteral("  ") + touch.Name.leftJustified(28) +
                QStringLiteral("  ") + touch.GroupName + u'\n';
    WriteLine(text + Translate("Reader ID:") + u' ' + outcome.readerId + u'\n' + message);
}

bool Download(DockingLink& link, const ConsoleBoxes& boxes, bool json, bool keep) {
    ConsoleDownload view(link);
    MemoryDownload download(link, view);
    download.EraseAfterwards = !keep;
    download.Run();
    const MemoryDownload::Outcome& outcome = download.LastOutcome();
    if (!outcome.read) {
        if (boxes.Last().isEmpty()) // else the transfer has said what went wrong
            Complain(view.MessageText());
        return false;
    }
    if (json)
        WriteOutcomeAsJson(outcome);
    else if (outcome.stored)
        WriteOutcome(outcome, view.MessageText());
    if (!outcome.stored)
        return false;
    if (!keep && !outcome.erased && !download.HasSaidWhyNotErased())
        Complain(Translate("Reader Memory NOT erased!"));
    return (keep || outcome.erased) && outcome.clockSet;
}

CommandRun Prepare(CLI::App& options) {
    const auto keep = std::make_shared<bool>(false);
    const CommandRun run =
        JsonDockRun(options, [keep](DockingLink& link, const ConsoleBoxes& boxes, bool json) {
            return Download(link, boxes, json, *keep);
        });
    AddFlag(options, "--keep", *keep, "does not erase the reader");
    return [keep, run](const ConsoleBoxes& boxes) {
        if (!*keep)
            CheckStoreBeforeErasing();
        return run(boxes);
    };
}

} // namespace

Command DownloadCommand() {
    return {QStringLiteral("download"),
            QStringLiteral("stores the touches of the docked reader, erases it and sets its clock"),
            QStringLiteral("--device COM1 --json"), Access::Everybody, Prepare};
}
