#include "Clock.h"
#include "Command.h"
#include "CommandOptions.h"
#include "ConsoleDock.h"
#include "ConsoleTools.h"
#include "DockingLink.h"
#include "Format.h"
#include "mTranslations.h"

#include <QJsonObject>

namespace {

bool SetClock(DockingLink& link, DateTime moment, bool json) {
    if (!ClockDateIsUsable(moment))
        return false;
    if (!link.SetClock(moment)) {
        Complain(Translate("Reader Clock update failed.  Please try again."));
        return false;
    }
    if (json)
        WriteJson({{QStringLiteral("clock"), Format(moment, QStringLiteral("yyyy-mm-ddThh:nn"))}});
    else
        WriteLine(Translate("Reader update successful") + QStringLiteral("  ") +
                  Format(moment, QStringLiteral("hh:nn  dd mmm yyyy")));
    return true;
}

CommandRun Prepare(CLI::App& options) {
    const auto time = std::make_shared<std::optional<DateTime>>();
    CommandRun run =
        JsonDockRun(options, [time](DockingLink& link, const ConsoleBoxes&, bool json) {
            return SetClock(link, time->value_or(Now()), json);
        });
    AddMoment(options, "--time", *time, "the time to set (default: this computer's time)");
    return run;
}

} // namespace

Command SetClockCommand() {
    return {QStringLiteral("reader set-clock"),
            QStringLiteral("sets the clock of the docked reader"),
            QStringLiteral("--device COM1 --time 2026-11-21T23:15"), Access::MasterOnly, Prepare};
}
