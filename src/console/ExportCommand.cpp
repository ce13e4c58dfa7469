#include "Command.h"
#include "CommandOptions.h"
#include "ConsoleTools.h"
#include "SetupFile.h"

Command ExportCommand() {
    return {QStringLiteral("setup export"),
            QStringLiteral("writes all sites, event books, readers and tours as JSON"),
            QStringLiteral("site.json"), Access::MasterOnly, [](CLI::App& options) {
                const auto path = std::make_shared<QString>();
                AddFile(options, *path, "the file to write");
                return [path](const ConsoleBoxes&) {
                    WriteOut(ExportSetup(), *path);
                    return true;
                };
            }};
}
