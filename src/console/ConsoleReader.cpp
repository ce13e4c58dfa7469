#include "ConsoleReader.h"

#include "Clock.h"
#include "ConsoleDownload.h"
#include "ConsoleTools.h"
#include "DockingLink.h"
#include "Format.h"
#include "LookUps.h"
#include "MemoryImage.h"
#include "ReaderSignals.h"
#include "mTranslations.h"

#include <QJsonObject>

namespace {

/// Says what the transfer itself has not said.
void ComplainOfTransfer(const ConsoleBoxes& boxes, const char* text) {
    if (boxes.Last().isEmpty())
        Complain(Translate(text));
}

} // namespace

bool IdentifyReader(DockingLink& link, const CommandLine& line, const ConsoleBoxes& boxes) {
    const TransferResult transfer = RunConsoleTransfer(link, TransferPurpose::Identifier);
    if (!transfer.OK) {
        ComplainOfTransfer(boxes, "Reader ID Download Failed");
        return false;
    }
    const std::optional<Reader> reader = FindReader(transfer.PipeID);
    const QString description = reader ? reader->description : QString();
    if (line.json)
        WriteJson({{QStringLiteral("reader"), transfer.PipeID},
                   {QStringLiteral("known"), reader.has_value()},
                   {QStringLiteral("description"), description}});
    else
        WriteLine(transfer.PipeID + (reader ? QStringLiteral(" - ") + description : QString()));
    return true;
}

bool TellFirmware(DockingLink& link, const CommandLine& line, const ConsoleBoxes& boxes) {
    const TransferResult transfer = RunConsoleTransfer(link, TransferPurpose::Firmware);
    const QString& firmware = transfer.tFirmware;
    if (!NamesFirmware(firmware)) {
        ComplainOfTransfer(boxes, transfer.OK ? "The reader does not tell its firmware version."
                                              : "Download Failed");
        return false;
    }
    if (line.json)
        WriteJson({{QStringLiteral("firmware"), firmware}});
    else
        WriteLine(Translate("Firmware Version is") + u' ' + firmware);
    return transfer.OK;
}

bool SetReaderClock(DockingLink& link, const CommandLine& line) {
    const DateTime moment = line.time.value_or(Now());
    if (!ClockDateIsUsable(moment))
        return false;
    if (!link.SetClock(moment)) {
        Complain(Translate("Reader Clock update failed.  Please try again."));
        return false;
    }
    if (line.json)
        WriteJson({{QStringLiteral("clock"), Format(moment, QStringLiteral("yyyy-mm-ddThh:nn"))}});
    else
        WriteLine(Translate("Reader update successful") + QStringLiteral("  ") +
                  Format(moment, QStringLiteral("hh:nn  dd mmm yyyy")));
    return true;
}

bool SetReaderOptions(DockingLink& link, const CommandLine& line) {
    ReaderSignals wanted = SavedReaderSignals();
    wanted.buzzer = line.buzzer.value_or(wanted.buzzer);
    wanted.led = line.led.value_or(wanted.led);
    wanted.vibration = line.vibration.value_or(wanted.vibration);
    wanted.longBuzzer = line.longBuzzer.value_or(wanted.longBuzzer);
    if (!SignalsAreUsable(wanted))
        return false;
    if (!link.TxOptions(wanted.OptionByte())) {
        Complain(Translate("Reader update failed.  Please try again."));
        return false;
    }
    SaveReaderSignals(wanted);
    if (line.json)
        WriteJson({{QStringLiteral("buzzer"), wanted.buzzer},
                   {QStringLiteral("led"), wanted.led},
                   {QStringLiteral("vibration"), wanted.vibration},
                   {QStringLiteral("long"), wanted.longBuzzer}});
    else
        WriteLine(Translate("Reader update successful"));
    return true;
}

bool EraseReader(DockingLink& link, const CommandLine& line) {
    ConsoleDownload view(link);
    MemoryDownload download(link, view);
    bool succeeded = false;
    download.EraseReader(true, succeeded);
    if (!succeeded) {
        if (!download.HasSaidWhyNotErased())
            Complain(Translate("Reader Memory NOT erased!"));
        return false;
    }
    if (line.json)
        WriteJson({{QStringLiteral("erased"), true}});
    else
        WriteLine(Translate("Reader Erased"));
    return true;
}
