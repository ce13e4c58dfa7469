#pragma once

#include "LockFile.h"

#include <QString>

#include <memory>

/// The process's hold on a store file, kept in a lock file beside it ("main.ldb" for "main.mdb").
/// For a symbolic link that is beside its target. All connections of one process share one hold.
class StoreLock {
public:
    /// Throws RunTimeError: FileInUse when another process holds the store; DiskFull or
    /// PermissionDenied when the lock file cannot be made.
    explicit StoreLock(const QString& storePath);

    /// True for a store that this process holds, and for its lock file, by whatever name.
    static bool IsHeldHere(const QString& path);

    /// Who holds a store, as far as its lock file says.
    static LockFile::Holder HolderOf(const QString& storePath);

private:
    std::shared_ptr<LockFile> m_file;
};
