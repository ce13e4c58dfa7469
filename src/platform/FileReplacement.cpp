#include "FileReplacement.h"

#include "RunTimeError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

[[noreturn]] void Throw(int number, const QString& path, const QString& reason) {
    throw RunTimeError(number, QDir::toNativeSeparators(path) + QStringLiteral(": ") + reason);
}

} // namespace

QString FileMeantBy(const QString& path) {
    const QFileInfo given(path);
    if (given.exists())
        return given.canonicalFilePath();
    return given.isSymLink() ? given.symLinkTarget() : path;
}

#ifdef Q_OS_WIN

void ThrowFileError(const QString& path) {
    const DWORD error = GetLastError();
    const int number = error == ERROR_DISK_FULL       ? RunTimeErrorNumber::DiskFull
                       : error == ERROR_ACCESS_DENIED ? RunTimeErrorNumber::PermissionDenied
                                                      : RunTimeErrorNumber::FileNotFound;
    Throw(number, path, qt_error_string(static_cast<int>(error)));
}

namespace {

const wchar_t* Name(const QString& path) { return reinterpret_cast<const wchar_t*>(path.utf16()); }

void Move(const QString& from, const QString& to, DWORD flags) {
    SyncFile(from);
    if (!MoveFileExW(Name(from), Name(to), flags | MOVEFILE_WRITE_THROUGH))
        ThrowFileError(to);
}

} // namespace

void SyncFile(const QString& path) {
    const HANDLE file =
        CreateFileW(Name(path), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        ThrowFileError(path);
    const bool ok = FlushFileBuffers(file);
    CloseHandle(file);
    if (!ok)
        ThrowFileError(path);
}

void ReplaceFile(const QString& from, const QString& to) {
    Move(from, to, MOVEFILE_REPLACE_EXISTING);
}

void PlaceNewFile(const QString& from, const QString& to) { Move(from, to, 0); }

void KeepOwnerAndMode(const QString&, const QString&) {}

#else

void ThrowFileError(const QString& path) {
    const int error = errno;
    const bool full = error == ENOSPC || error == EDQUOT;
    const bool denied = error == EACCES || error == EPERM || error == EROFS;
    Throw(full     ? RunTimeErrorNumber::DiskFull
          : denied ? RunTimeErrorNumber::PermissionDenied
                   : RunTimeErrorNumber::FileNotFound,
          path, qt_error_string(error));
}

namespace {

void SyncPath(const QString& path, int flags) {
    const int file = ::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC);
    if (file < 0)
        ThrowFileError(path);
    if (::fsync(file) != 0) {
        const int error = errno;
        ::close(file);
        errno = error;
        ThrowFileError(path);
    }
    ::close(file);
}

void SyncFolderOf(const QString& path) {
    SyncPath(QFileInfo(path).absolutePath(), O_RDONLY | O_DIRECTORY);
}

} // namespace

void SyncFile(const QString& path) {
    SyncPath(path, O_RDONLY);
    SyncFolderOf(path);
}

void ReplaceFile(const QString& from, const QString& to) {
    SyncPath(from, O_RDONLY);
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0)
        ThrowFileError(to);
    SyncFolderOf(to);
}

void PlaceNewFile(const QString& from, const QString& to) {
    SyncPath(from, O_RDONLY);
    const QByteArray source = QFile::encodeName(from), target = QFile::encodeName(to);
    if (::renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) !=
        0) {
        // A file system without this call may have hard links.
        if (errno != EINVAL || ::link(source.constData(), target.constData()) != 0)
            ThrowFileError(to);
        ::unlink(source.constData());
    }
    SyncFolderOf(to);
}

void KeepOwnerAndMode(const QString& from, const QString& to) {
    struct stat old {};
    const QByteArray target = QFile::encodeName(to);
    if (::stat(QFile::encodeName(from).constData(), &old) != 0)
        return;
    mode_t mode = old.st_mode & 07777;
    // Setting the owner may fail where setting the group succeeds.
    if (::chown(target.constData(), old.st_uid, old.st_gid) != 0 &&
        ::chown(target.constData(), static_cast<uid_t>(-1), old.st_gid) != 0)
        mode &= ~static_cast<mode_t>(S_IRWXG);
    if (::chmod(target.constData(), mode) != 0)
        ThrowFileError(to);
}

#endif
