#pragma once

#include <QLockFile>

/// A lock file that tells its holder, and that is cleaned away when its holder is dead, or when it
/// holds nothing that tells one: a process that was killed, or a machine that lost its power, may
/// have left it half written. Its age never makes it stale.
class LockFile {
public:
    enum class Outcome {
        Taken,
        Held,      ///< another process holds it
        Impossible ///< the file cannot be written
    };

    explicit LockFile(const QString& path);
    Outcome Take();

private:
    QLockFile m_file;
};
