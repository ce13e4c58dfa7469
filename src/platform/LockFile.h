#pragma once

#include <QString>

/// Records its holder: one process at a time can hold the file. The operating system's file lock
/// decides who holds it; the content only says who that is. So a file left by a dead process, by
/// another machine or in a copied folder does no harm.
class LockFile {
public:
    enum class Outcome {
        Taken,
        Held,      ///< another process holds it
        DiskFull,  ///< there is no room to make the file
        Impossible ///< the file cannot be made or locked for another reason
    };
    /// As the file says. What it does not say is empty.
    struct Holder {
        qint64 process = 0;
        QString program;
        QString machine; ///< empty for this machine
    };

    explicit LockFile(const QString& path) : m_path(path) {}
    /// Releases and removes the file.
    ~LockFile();
    LockFile(const LockFile&) = delete;
    LockFile& operator=(const LockFile&) = delete;

    Outcome Take();
    /// True if a process holds the file. Makes none.
    static bool IsHeld(const QString& path);
    static Holder HolderOf(const QString& path);

private:
    QString m_path;
#ifdef Q_OS_WIN
    void* m_file = nullptr;
#else
    int m_file = -1;
#endif
};
