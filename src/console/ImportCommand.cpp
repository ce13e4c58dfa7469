#include "Command.h"
#include "CommandOptions.h"
#include "RunTimeError.h"
#include "SetupFile.h"

#include <QFile>

namespace {

bool ImportFrom(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw RunTimeError(RunTimeErrorNumber::FileNotFound,
                           path + QStringLiteral(": ") + file.errorString());
    ImportSetup(file.readAll());
    return true;
}

} // namespace

Command ImportCommand() {
    return {QStringLiteral("setup import"),
            QStringLiteral("adds the definitions from such an export; if one is wrong, adds none"),
            QStringLiteral("site.json"), Access::MasterOnly, [](CLI::App& options) {
                const auto path = std::make_shared<QString>();
                AddFile(options, *path, "the file to read");
                return [path](const ConsoleBoxes&) { return ImportFrom(*path); };
            }};
}
