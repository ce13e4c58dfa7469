#pragma once

#include "DateTime.h"
#include "WorkProgress.h"

#include <QStringList>

/// Copies the open store to a new file. The copy is made beside its place under another name,
/// written to the disk, opened with the store's password, checked, and compared with the store: the
/// same tables with the same numbers of rows. Only then does it get its name. An existing file is
/// never replaced. The copy has the store's owner and mode, as far as the disk can keep them.
///
/// False if `progress` has cancelled it. Throws RunTimeError, which says why in the operator's
/// words. In both cases no file is left.
bool BackUpStore(const QString& target, const WorkProgress& progress);

/// The name of a backup that a scheduler makes: "WK_Backup_2026-11-23_0215.mdb".
QString ScheduledBackupName(DateTime now);

/// What RemoveOldBackups did, in paths.
struct OldBackups {
    QStringList removed;
    QStringList notRemoved; ///< each with the cause
};
/// Keeps the `keep` newest backups in the folder of `newest`, by the times in their names, and
/// removes the others. Only files with exactly such a name count, no links, and no files that are
/// too short to be a store. `newest` is kept whatever its name says: the clock may have been set
/// back. The open store is kept too.
OldBackups RemoveOldBackups(const QString& newest, int keep);
