#include "Clock.h"
#include "Command.h"
#include "CommandOptions.h"
#include "ConsoleTools.h"
#include "StoreBackup.h"
#include "mTranslations.h"

#include <QDir>

namespace {

struct Backup {
    QString file;
    QString folder;
    int keep = 0;
};

bool Run(const Backup& backup) {
    const QString path = backup.folder.isEmpty()
                             ? backup.file
                             : QDir(backup.folder).filePath(ScheduledBackupName(Now()));
    BackUpStore(path, [](int, int) { return true; });
    WriteLine(Translate("Successfully copied the database to :") + u' ' +
              QDir::toNativeSeparators(path));
    if (backup.folder.isEmpty())
        return true;
    const OldBackups old = RemoveOldBackups(path, backup.keep);
    for (const QString& removed : old.removed)
        WriteLine(Translate("Removed:") + u' ' + QDir::toNativeSeparators(removed));
    for (const QString& fault : old.notRemoved)
        Complain(Translate("Not removed:") + u' ' + fault);
    return old.notRemoved.isEmpty();
}

CommandRun Prepare(CLI::App& options) {
    const auto backup = std::make_shared<Backup>();
    AddFile(options, backup->file, "the file to write; it must not exist", Presence::Optional);
    AddPath(options, "--into", backup->folder,
            "writes \"WK_Backup_\" with date and time into this folder");
    AddCount(options, "--keep", backup->keep,
             "how many such backups stay in the folder; the oldest are removed");
    RequireEither(options, "FILE", {QStringLiteral("--into"), QStringLiteral("--keep")});
    return [backup](const ConsoleBoxes&) { return Run(*backup); };
}

} // namespace

Command BackupCommand() {
    return {QStringLiteral("backup"),
            QStringLiteral("copies the store to a new file and checks it"),
            QStringLiteral("WK_Backup.mdb"), Access::MasterOnly, Prepare};
}
