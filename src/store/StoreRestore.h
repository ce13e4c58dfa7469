#pragma once

#include "StoreFailure.h"
#include "StoreLock.h"
#include "WorkProgress.h"

#include <QDateTime>

#include <optional>

/// True if `path` is the store itself, by whatever name or link, or the copy that a restore makes
/// of its source.
bool IsStoreItself(const QString& store, const QString& path);

/// Replaces the store by a copy of another store file, such as a backup. At every moment there is
/// one complete store: the copy is made beside it, synced and checked, and then replaces it in one
/// rename. If the store is a symbolic link, its target is replaced. The store may also be damaged
/// or missing.
///
/// A failure throws ExplainedError: that the store is as it was, and why.
class StoreRestore {
public:
    StoreRestore(const QString& store, const QString& source);
    /// Without Replace, no copy is left.
    ~StoreRestore();
    StoreRestore(const StoreRestore&) = delete;
    StoreRestore& operator=(const StoreRestore&) = delete;

    /// Copies the source beside the store, under the store's name and ".restore", and checks the
    /// copy from its first page to its last. If the source has an unfinished transaction, it is
    /// rolled back in the copy; the source itself is only read. The store must be open or locked
    /// here. False if `progress` has cancelled it.
    bool MakeCopy(const WorkProgress& progress);
    /// The checked copy, for reading.
    const QString& CopyPath() const { return m_copy; }

    /// Tries to lock the store until this object goes. False while another process holds it, or
    /// while something in this process still has it open.
    bool LockStore();
    /// Who holds the store, for the operator.
    QString Holder() const;

    /// Puts the copy in place. Needs LockStore, and nothing may have the store open.
    void Replace();

private:
    /// Says whether a file has changed: we assume that a file that was written to or exchanged has
    /// another size, or another time to the precision of the disk.
    struct Stamp {
        qint64 size = 0;
        QDateTime modified;
        bool operator==(const Stamp&) const = default;
    };
    static Stamp StampOf(const QString& path);

    bool CopySource(const WorkProgress& progress);
    bool CopyFile(const QString& from, const QString& to, const WorkProgress& progress) const;
    void FinishTransaction() const;
    bool CheckCopy(const WorkProgress& progress) const;
    void RollBackOldStore() const;
    bool PutCopyInPlace() const;

    QString m_store; ///< its real path
    QString m_source;
    QString m_copy;
    std::optional<Stamp> m_checked; ///< of the copy
    std::optional<StoreLock> m_lock;
};

/// A failure of a restore, for the operator: that the store is as it was, and why. `path`: the
/// store, in case another program uses it.
ExplainedError NotRestored(const RunTimeError& error, const QString& path);

/// Removes what a killed restore has left beside the store. The store must be open or locked here.
void RemoveRestoreCopy(const QString& store);
