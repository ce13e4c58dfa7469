#include "FileReplacement.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

[[noreturn]] void Throw(int number, const QString& path, const QString& reason) {
    throw FileError(number, path, QDir::toNativeSeparators(path) + QStringLiteral(": ") + reason);
}

} // namespace

QString FileError::Cause(const std::function<QString(const QString&)>& translate) const {
    const char* words = WordsFor(Number());
    return words ? translate(QString::fromUtf8(words)) + u'\n' + QDir::toNativeSeparators(m_path)
                 : Description();
}

const char* FileError::WordsFor(int number) {
    switch (number) {
    case RunTimeErrorNumber::UsedByProgram:
        return QT_TR_NOOP("The program itself uses this file. Please choose another filename.");
    case RunTimeErrorNumber::DeviceError:
        return QT_TR_NOOP(
            "The disk or the network reported an error. Please check it and try again.");
    case RunTimeErrorNumber::FileExists:
        return QT_TR_NOOP("That filename is already in use. Please choose another filename");
    case RunTimeErrorNumber::DiskFull:
        return QT_TR_NOOP("The disk is full.");
    case RunTimeErrorNumber::PermissionDenied:
        return QT_TR_NOOP("You do not have permission to write to this file or its folder.");
    case RunTimeErrorNumber::PathNotFound:
        return QT_TR_NOOP("The file or its folder does not exist.");
    default:
        return nullptr;
    }
}

QString FileMeantBy(const QString& path) {
    const QFileInfo given(path);
    if (given.exists())
        return given.canonicalFilePath();
    return given.isSymLink() ? given.symLinkTarget() : path;
}

bool IsFreeName(const QString& path) {
    const QFileInfo file(path);
    return !file.exists() && !file.isSymLink();
}

#ifdef Q_OS_WIN

void SurviveFileSizeLimit() {}

int FileErrorNumber() {
    const DWORD error = GetLastError();
    return error == ERROR_DISK_FULL       ? RunTimeErrorNumber::DiskFull
           : error == ERROR_ACCESS_DENIED ? RunTimeErrorNumber::PermissionDenied
           : error == ERROR_IO_DEVICE     ? RunTimeErrorNumber::DeviceError
           : error == ERROR_PATH_NOT_FOUND || error == ERROR_FILE_NOT_FOUND
               ? RunTimeErrorNumber::PathNotFound
               : RunTimeErrorNumber::FileAccess;
}

void ThrowFileError(const QString& path) {
    Throw(FileErrorNumber(), path, qt_error_string(static_cast<int>(GetLastError())));
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

void SurviveFileSizeLimit() { std::signal(SIGXFSZ, SIG_IGN); }

int FileErrorNumber() {
    switch (errno) {
    case ENOSPC:
    case EDQUOT:
        return RunTimeErrorNumber::DiskFull;
    case EACCES:
    case EPERM:
    case EROFS:
        return RunTimeErrorNumber::PermissionDenied;
    case EIO:
        return RunTimeErrorNumber::DeviceError;
    case ENOENT:
    case ENOTDIR:
        return RunTimeErrorNumber::PathNotFound;
    default:
        return RunTimeErrorNumber::FileAccess;
    }
}

void ThrowFileError(const QString& path) {
    const int error = errno;
    Throw(FileErrorNumber(), path, qt_error_string(error));
}

namespace {

void SyncPath(const QString& path, int flags) {
    const int file = ::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC);
    if (file < 0)
        ThrowFileError(path);
    // Some file systems cannot sync a folder. They say so with EINVAL.
    const bool isFolder = (flags & O_DIRECTORY) != 0;
    if (::fsync(file) != 0 && !(isFolder && errno == EINVAL)) {
        const int error = errno;
        ::close(file);
        errno = error;
        ThrowFileError(path);
    }
    ::close(file);
}

/// Takes the new name with an empty file, which fails if there is a file already, and replaces that
/// one. If the program is killed in between, the empty file is left.
void RenameOverOwn(const QByteArray& source, const QByteArray& target, const QString& to) {
    const int own = ::open(target.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (own < 0)
        ThrowFileError(to);
    ::close(own);
    if (std::rename(source.constData(), target.constData()) != 0) {
        const int error = errno;
        ::unlink(target.constData());
        errno = error;
        ThrowFileError(to);
    }
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
        if (errno != EINVAL)
            ThrowFileError(to);
        if (::link(source.constData(), target.constData()) == 0)
            ::unlink(source.constData());
        else if (errno == EPERM || errno == EOPNOTSUPP)
            RenameOverOwn(source, target, to);
        else
            ThrowFileError(to);
    }
    try {
        SyncFolderOf(to);
    } catch (...) {
        ::unlink(target.constData());
        throw;
    }
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
    // A disk that knows no rights, such as most USB sticks, answers EPERM.
    if (::chmod(target.constData(), mode) != 0 && errno != EPERM && errno != EOPNOTSUPP)
        ThrowFileError(to);
}

#endif
