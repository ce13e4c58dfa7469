#include "LockFile.h"

#include <QString>

namespace {

/// ms that another process is given to fill a lock file that it has just made.
constexpr int FillingTime = 100;

} // namespace

LockFile::LockFile(const QString& path) : m_file(path) { m_file.setStaleLockTime(0); }

LockFile::Outcome LockFile::Take() {
    if (m_file.tryLock(0))
        return Outcome::Taken;
    if (m_file.error() != QLockFile::LockFailedError)
        return Outcome::Impossible;
    qint64 pid = 0;
    QString host, name;
    if (m_file.getLockInfo(&pid, &host, &name) && pid > 0)
        return Outcome::Held;
    if (m_file.tryLock(FillingTime))
        return Outcome::Taken;
    if (m_file.getLockInfo(&pid, &host, &name) && pid > 0)
        return Outcome::Held;
    // Refused by the system where a living process holds it after all.
    return m_file.removeStaleLockFile() && m_file.tryLock(0) ? Outcome::Taken : Outcome::Held;
}
