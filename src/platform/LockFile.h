#pragma once

#include <QString>

/// A file that one process at a time holds. The operating system's own file lock decides who holds
/// it; the content only says who that is. A file that a dead process, another machine or a copied
/// folder has left does no harm.
class LockFile {
public:
    enum class Outcome {
        Taken,
        Held,      ///< another process holds it
        DiskFull,  ///< the file cannot be made for want of space
        Impossible ///< the file cannot be made or locked for another reason
    };
    /// As far as the file says; all empty where it says nothing.
    struct Holder {
        qint64 process = 0;
        QString program;
        QString machine; ///< empty for this one
    };

    explicit LockFile(const QString& path) : m_path(path) {}
    /// Lets go and removes the file.
    ~LockFile();
    LockFile(const LockFile&) = delete;
    LockFile& operator=(const LockFile&) = delete;

    Outcome Take();
    static Holder HolderOf(const QString& path);

private:
    QString m_path;
#ifdef Q_OS_WIN
    void* m_file = nullptr;
#else
    int m_file = -1;
#endif
};
