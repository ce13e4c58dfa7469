#pragma once

#include <QString>

#include <memory>

/// What the program knows of itself and of the folder it runs in.

/// The application folder, without a separator at its end: the folder of the executable, unless
/// the environment variable WARDLOCK_HOME or SetAppPath names another.
QString AppPath();
void SetAppPath(const QString& folder);
/// A file beside the program, in the platform's own separators.
QString AppFile(const QString& name);
/// The user's documents folder, where file dialogs start.
QString GetMyDocumentsPath();
/// The executable's name without its extension.
QString AppExeName();

int AppMajor();
int AppMinor();
int AppRevision();

/// Held by the one running instance on an application folder, be it the station or the command
/// line; released when destroyed, and by the system when the process dies.
class InstanceLock {
public:
    virtual ~InstanceLock() = default;
};
/// Null when another process of this user holds it. (Between users the store's own lock file stands
/// guard.)
std::unique_ptr<InstanceLock> TakeInstanceLock();

/// Writes a file's data and its folder entry through to the disk. Throws RunTimeError.
void SyncFile(const QString& path);
/// Atomically puts `from` in the place of `to`, which must lie in the same folder. `from` is
/// synced first. At every moment `to` is the complete old or the complete new file. Throws
/// RunTimeError.
void ReplaceFile(const QString& from, const QString& to);
