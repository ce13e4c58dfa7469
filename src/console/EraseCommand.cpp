#include "Command.h"
#include "CommandOptions.h"
#include "ConsoleDock.h"
#include "ConsoleTools.h"
#include "mTranslations.h"

#include <QJsonObject>

namespace {

bool Erase(DockingLink& link, const ConsoleBoxes&, bool json) {
    ConsoleDownload view(link);
    MemoryDownload download(link, view);
    bool succeeded = false;
    download.EraseReader(true, succeeded);
    if (!succeeded) {
        if (!download.HasSaidWhyNotErased())
            Complain(Translate("Reader Memory NOT erased!"));
        return false;
    }
    if (json)
        WriteJson({{QStringLiteral("erased"), true}});
    else
        WriteLine(Translate("Reader Erased"));
    return true;
}

CommandRun Prepare(CLI::App& options) {
    CommandRun run = JsonDockRun(options, Erase);
    AddRequiredFlag(options, "--yes", "confirms that the touches in the reader will be lost");
    return [run](const ConsoleBoxes& boxes) {
        CheckStoreBeforeErasing();
        return run(boxes);
    };
}

} // namespace

Command EraseCommand() {
    return {QStringLiteral("reader erase"),
            QStringLiteral("erases the docked reader, whether its touches were read or not"),
            QStringLiteral("--device COM1 --yes"), Access::MasterOnly, Prepare};
}
