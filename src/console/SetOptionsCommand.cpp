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
    CommandRun run =
        JsonDockRun(options, [wanted](DockingLink& link, const ConsoleBoxes&, bool json) {
            return SetOptions(link, *wanted, json);
        });
    AddYesNo(options, "--buzzer", "--no-buzzer", wanted->buzzer, "buzz at each touch",
             "do not buzz");
    AddYesNo(options, "--led", "--no-led", wanted->led, "light up at each touch",
             "do not light up");
    AddYesNo(options, "--vibration", "--no-vibration", wanted->vibration, "vibrate at each touch",
             "do not vibrate");
    AddYesNo(options, "--long", "--short", wanted->longBuzzer, "buzz for long", "buzz briefly");
    return run;
}

} // namespace

Command SetOptionsCommand() {
    return {
        QStringLiteral("reader set-options"),
        QStringLiteral("sets the signals of the docked reader; those not given stay as they are"),
        QStringLiteral("--device COM1 --no-buzzer --led"), Access::MasterOnly, Prepare};
}
