#include "LockFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

/// Process, program and machine, one line each.
QByteArray Introduction() {
    const QString program =
        QCoreApplication::instance()
            ? QFileInfo(QCoreApplication::applicationFilePath()).completeBaseName()
            : QString();
    return QStringLiteral("%1\n%2\n%3\n")
        .arg(QString::number(QCoreApplication::applicationPid()), program,
             QSysInfo::machineHostName())
        .toUtf8();
}

} // namespace

LockFile::Holder LockFile::HolderOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QList<QByteArray> lines = file.read(1000).split('\n');
    Holder holder{lines.value(0).toLongLong(), QString::fromUtf8(lines.value(1)).simplified(),
                  QString::fromUtf8(lines.value(2)).simplified()};
    if (holder.machine == QSysInfo::machineHostName())
        holder.machine.clear();
    return holder;
}

#ifdef Q_OS_WIN

LockFile::Outcome LockFile::Take() {
    // Others may read the holder. The system removes the file when its last handle is closed.
    const HANDLE file =
        CreateFileW(reinterpret_cast<const wchar_t*>(m_path.utf16()), GENERIC_READ | GENERIC_WRITE,
                    FILE_SHARE_READ, nullptr, CREATE_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        const DWORD error = GetLastError();
        return error == ERROR_SHARING_VIOLATION ? Outcome::Held
               : error == ERROR_DISK_FULL       ? Outcome::DiskFull
                                                : Outcome::Impossible;
    }
    const QByteArray text = Introduction();
    DWORD written = 0;
    WriteFile(file, text.constData(), static_cast<DWORD>(text.size()), &written, nullptr);
    m_file = file;
    return Outcome::Taken;
}

bool LockFile::IsHeld(const QString& path) {
    const HANDLE file =
        CreateFileW(reinterpret_cast<const wchar_t*>(path.utf16()), GENERIC_WRITE,
                    FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file != INVALID_HANDLE_VALUE)
        CloseHandle(file);
    return file == INVALID_HANDLE_VALUE && GetLastError() == ERROR_SHARING_VIOLATION;
}

LockFile::~LockFile() {
    if (m_file)
        CloseHandle(m_file);
}

#else

namespace {

/// Another process may remove the file after it was opened and before it is locked. Then the next
/// try opens a new one.
constexpr int MostTries = 100;

int OpenForLocking(const QByteArray& path) {
    const int flags = O_CREAT | O_CLOEXEC | O_NOFOLLOW;
    const int file = ::open(path.constData(), O_RDWR | flags, 0666);
    // If a dead process of another user left it, it cannot be written, but it can be locked.
    return file < 0 && errno == EACCES ? ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW)
                                       : file;
}

bool IsStillAt(const QByteArray& path, int file) {
    struct stat here {
    }, there{};
    return ::fstat(file, &here) == 0 && ::stat(path.constData(), &there) == 0 &&
           here.st_ino == there.st_ino && here.st_dev == there.st_dev;
}

} // namespace

LockFile::Outcome LockFile::Take() {
    const QByteArray path = QFile::encodeName(m_path);
    for (int tries = 0; tries < MostTries; ++tries) {
        const int file = OpenForLocking(path);
        if (file < 0)
            return errno == ENOSPC || errno == EDQUOT ? Outcome::DiskFull : Outcome::Impossible;
        if (::flock(file, LOCK_EX | LOCK_NB) != 0) {
            const bool held = errno == EWOULDBLOCK;
            ::close(file);
            return held ? Outcome::Held : Outcome::Impossible;
        }
        if (!IsStillAt(path, file)) {
            ::close(file);
            continue;
        }
        // This only says who holds the file. On a full disk it fails, and the lock still holds.
        const QByteArray text = Introduction();
        if (::ftruncate(file, 0) == 0)
            (void)!::pwrite(file, text.constData(), static_cast<std::size_t>(text.size()), 0);
        m_file = file;
        return Outcome::Taken;
    }
    return Outcome::Held;
}

bool LockFile::IsHeld(const QString& path) {
    const int file =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOFOLLOW);
    if (file < 0)
        return false;
    const bool held = ::flock(file, LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    ::close(file);
    return held;
}

LockFile::~LockFile() {
    if (m_file < 0)
        return;
    ::unlink(QFile::encodeName(m_path).constData()); // while it is locked: no one else can hold it
    ::close(m_file);
}

#endif
