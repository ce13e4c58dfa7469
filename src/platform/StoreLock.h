#pragma once

#include <QString>

#include <memory>

class LockFile;

/// The process's hold on a store file, kept in a lock file beside it ("main.ldb" for "main.mdb").
/// All connections of one process share one hold. A lock file left by a process that died is
/// cleaned away.
class StoreLock {
public:
    /// Throws RunTimeError (FileInUse) when another process holds the store, or when the lock file
    /// cannot be written.
    explicit StoreLock(const QString& storePath);
    ~StoreLock();
    StoreLock(const StoreLock&) = delete;
    StoreLock& operator=(const StoreLock&) = delete;

private:
    std::shared_ptr<LockFile> m_file;
};
