#include "Command.h"
#include "CommandOptions.h"
#include "ConsoleDock.h"
#include "ConsoleTools.h"
#include "DockingLink.h"
#include "ReaderSignals.h"
#include "mTranslations.h"

#include <QJsonObject>

namespace {

/// What is not given stays as it was chosen last.
struct WantedSignals {
    std::optional<bool> buzzer, led, vibration, longBuzzer;
};

bool SetOptions(DockingLink& link, const WantedSignals& wanted, bool json) {
    ReaderSignals all = SavedReaderSignals();
    all.buzzer = wanted.buzzer.value_or(all.buzzer);
    all.led = wanted.led.value_or(all.led);
    all.vibration = wanted.vibration.value_or(all.vibration);
    all.longBuzzer = wanted.longBuzzer.value_or(all.longBuzzer);
    if (!SignalsAreUsable(all))
        return false;
    if (!link.TxOptions(all.OptionByte())) {
        Complain(Translate("Reader update failed.  Please try again."));
        return false;
    }
    SaveReaderSignals(all);
    if (json)
        WriteJson({{QStringLiteral("buzzer"), all.buzzer},
                   {QStringLiteral("led"), all.led},
                   {QStringLiteral("vibration"), all.vibration},
                   {QStringLiteral("long"), all.longBuzzer}});
    else
        WriteLine(Translate("Reader update successful"));
    return true;
}

CommandRun Prepare(CLI::App& options) {
    const auto wanted = std::make_shared<WantedSignals>();
    const CommandRun run =
        JsonDockRun(options, [wanted](DockingLink& link, const ConsoleBoxes&, bool json) {
            return SetOptions(link, *wanted, json);
        });
    AddYesNo(options, "--buzzer", "--no-buzzer", wanted->buzzer, "sounds at a touch",
             "stays silent");
    AddYesNo(options, "--led", "--no-led", wanted->led, "lights up at a touch", "stays dark");
    AddYesNo(options, "--vibration", "--no-vibration", wanted->vibration, "vibrates at a touch",
             "does not vibrate");
    AddYesNo(options, "--long", "--short", wanted->longBuzzer, "gives long signals",
             "gives short signals");
    return run;
}

} // namespace

Command SetOptionsCommand() {
    return {QStringLiteral("reader set-options"),
            QStringLiteral("sets how the docked reader answers a touch; the rest stays as it was"),
            QStringLiteral("--device COM1 --no-buzzer --led"), Access::MasterOnly, Prepare};
}
