#include "Command.h"
#include "ConsoleDock.h"
#include "ConsoleTools.h"
#include "mTranslations.h"

Command DetectCommand() {
    return {QStringLiteral("detect"), QStringLiteral("asks whether a docking station answers"),
            QStringLiteral("--device /dev/ttyUSB0"), Access::Everybody, [](CLI::App& options) {
                return DockRun(options, [](DockingLink&, const ConsoleBoxes&) {
                    WriteLine(Translate("Docking Station : OK"));
                    return true;
                });
            }};
}
