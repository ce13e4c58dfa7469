#include "Command.h"
#include "CommandOptions.h"
#include "RunTimeError.h"
#include "SetupFile.h"

#include <QFile>
#include <QFileInfo>

namespace {

constexpr qint64 LargestDocument = qint64{64} * 1024 * 1024;

[[noreturn]] void Refuse(const QString& path, const QString& reason) {
    throw RunTimeError(RunTimeErrorNumber::FileAccess, path + QStringLiteral(": ") + reason);
}

/// No more than the size that the file has now: some files of the system have no end.
bool ImportFrom(const QString& path) {
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) // reading a pipe or a device might never end
        Refuse(path, QStringLiteral("not a file"));
    if (info.size() > LargestDocument)
        Refuse(path, QStringLiteral("larger than 64 MB"));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        Refuse(path, file.errorString());
    ImportSetup(file.read(info.size()));
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
