#include "Command.h"
#include "ConsoleDock.h"
#include "ConsoleTools.h"
#include "MemoryImage.h"
#include "mTranslations.h"

#include <QJsonObject>

namespace {

bool WriteFirmware(DockingLink& link, const ConsoleBoxes& boxes, bool json) {
    const TransferResult transfer = RunConsoleTransfer(link, TransferPurpose::Firmware);
    const QString& firmware = transfer.tFirmware;
    if (!NamesFirmware(firmware)) {
        ComplainUnlessSaid(
            boxes, transfer.OK ? QT_TR_NOOP("The reader did not report its firmware version.")
                               : "Download Failed");
        return false;
    }
    if (json)
        WriteJson({{QStringLiteral("firmware"), firmware}});
    else
        WriteLine(Translate("Firmware Version is") + u' ' + firmware);
    return transfer.OK;
}

} // namespace

Command FirmwareCommand() {
    return {QStringLiteral("reader firmware"),
            QStringLiteral("prints the firmware version of the docked reader"),
            QStringLiteral("--device COM1"), Access::MasterOnly,
            [](CLI::App& options) { return JsonDockRun(options, WriteFirmware); }};
}
