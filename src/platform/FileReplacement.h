#pragma once

#include "RunTimeError.h"

#include <functional>

/// The file that a symbolic link means, or the path itself. The file need not exist.
QString FileMeantBy(const QString& path);

/// True if nothing has this name: no file, no folder, and no link, even one that leads nowhere.
bool IsFreeName(const QString& path);

/// A failure with a file. Its description has the file's name and the cause.
class FileError : public RunTimeError {
public:
    FileError(int number, const QString& path, const QString& description)
        : RunTimeError(number, description), m_path(path) {}

    /// For the operator: the words for its number, translated, and the path beneath. If there are
    /// no such words, the description.
    QString Cause(const std::function<QString(const QString&)>& translate) const;
    /// In English; null if the number has none.
    static const char* WordsFor(int number);

private:
    QString m_path;
};

/// Files that must survive a killed program and a power cut. Everything that fails throws
/// FileError, with the number of FileErrorNumber.

/// Called when a program starts: a file that would become larger than the user may make it is then
/// a failure of the write. Without this the system kills the program.
void SurviveFileSizeLimit();

/// Writes a file's data and its folder entry to the disk. The entry is left to the system if its
/// file system cannot sync a folder.
void SyncFile(const QString& path);
/// Atomically replaces `to` by `from`, which must be in the same folder. `from` is synced first. At
/// every moment, `to` is the complete old or the complete new file. If only the folder cannot be
/// synced, it throws although the new file is in place.
void ReplaceFile(const QString& from, const QString& to);
/// The same, but throws if `to` exists: an existing file is never replaced. If it throws, there is
/// no new file: one whose folder could not be synced is removed again.
void PlaceNewFile(const QString& from, const QString& to);
/// Gives `to` the owner, group and mode of `from`, as far as the system and the disk allow. If the
/// group cannot be set, the group gets no rights.
void KeepOwnerAndMode(const QString& from, const QString& to);

/// The number of the operating system's current error (errno): DiskFull, PermissionDenied,
/// DeviceError, PathNotFound, or FileAccess for any other.
int FileErrorNumber();
/// After a failed call of the operating system: throws its current error.
[[noreturn]] void ThrowFileError(const QString& path);
