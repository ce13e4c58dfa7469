#include "Command.h"
#include "ConsoleDock.h"
#include "ConsoleTools.h"
#include "LookUps.h"

#include <QJsonObject>

namespace {

bool Identify(DockingLink& link, const ConsoleBoxes& boxes, bool json) {
    const TransferResult transfer = RunConsoleTransfer(link, TransferPurpose::Identifier);
    if (!transfer.OK) {
        ComplainUnlessSaid(boxes, QT_TR_NOOP("Reader ID Download Failed"));
        return false;
    }
    const std::optional<Reader> reader = FindReader(transfer.PipeID);
    if (json)
        WriteJson({{QStringLiteral("reader"), transfer.PipeID},
                   {QStringLiteral("known"), reader.has_value()},
                   {QStringLiteral("description"), reader ? reader->description : QString()}});
    else
        WriteLine(reader ? ReaderText(*reader) : transfer.PipeID);
    return true;
}

} // namespace

Command IdentifyCommand() {
    return {QStringLiteral("reader identify"),
            QStringLiteral("prints the identifier and description of the docked reader"),
            QStringLiteral("--device COM1"), Access::MasterOnly,
            [](CLI::App& options) { return JsonDockRun(options, Identify); }};
}
