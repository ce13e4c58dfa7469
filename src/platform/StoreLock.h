#pragma once

#include "LockFile.h"

#include <QStringList>

#include <memory>

/// The process's lock on a store file, held by a lock file beside it ("main.ldb" for "main.mdb").
/// If the store is a symbolic link, the lock file is beside its target. All connections of one
/// process share the lock.
class StoreLock {
public:
    /// Throws RunTimeError: FileInUse if another process holds the store; DiskFull or
    /// PermissionDenied if the lock file cannot be made.
    explicit StoreLock(const QString& storePath);

    /// True for a store that this process holds, and for its lock file, also by another path.
    static bool IsHeldHere(const QString& path);
    /// True if another process holds the store, as far as this can be seen without a lock file of
    /// one's own: for a file that is only read.
    static bool IsHeldByAnother(const QString& storePath);
    /// The real paths of the stores that this process holds.
    static QStringList StoresHeldHere();

    /// The holder of a store, as its lock file says.
    static LockFile::Holder HolderOf(const QString& storePath);

private:
    std::shared_ptr<LockFile> m_file;
};
