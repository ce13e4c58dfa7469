#include "Application.h"

#include "LockFile.h"
#include "RunTimeError.h"
#include "Version.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

QString& ChosenPath() {
    static QString path;
    return path;
}

class LockFileInstance : public InstanceLock {
public:
    explicit LockFileInstance(const QString& path) : m_file(path) {}
    /// False only if somebody holds it: where no lock can be kept, none is missed.
    bool Take() { return m_file.Take() != LockFile::Outcome::Held; }

private:
    LockFile m_file;
};

[[noreturn]] void ThrowFileError(const QString& path, const QString& reason) {
    throw RunTimeError(RunTimeErrorNumber::FileNotFound,
                       QDir::toNativeSeparators(path) + QStringLiteral(": ") + reason);
}

#ifndef Q_OS_WIN
void SyncPath(const QString& path, int flags) {
    const int file = ::open(QFile::encodeName(path).constData(), flags);
    if (file < 0)
        ThrowFileError(path, qt_error_string(errno));
    const int result = ::fsync(file);
    const int error = errno;
    ::close(file);
    if (result != 0)
        ThrowFileError(path, qt_error_string(error));
}
#endif

} // namespace

QString AppPath() {
    if (!ChosenPath().isEmpty())
        return ChosenPath();
    const QString home = qEnvironmentVariable("WARDLOCK_HOME");
    return home.isEmpty() ? QCoreApplication::applicationDirPath() : QDir(home).absolutePath();
}

void SetAppPath(const QString& folder) {
    ChosenPath() = folder.isEmpty() ? folder : QDir(folder).absolutePath();
}

QString AppFile(const QString& name) {
    return QDir::toNativeSeparators(QDir(AppPath()).filePath(name));
}

QString GetMyDocumentsPath() {
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

QString AppExeName() {
    return QFileInfo(QCoreApplication::applicationFilePath()).completeBaseName();
}

int AppMajor() { return WARDLOCK_VERSION_MAJOR; }
int AppMinor() { return WARDLOCK_VERSION_MINOR; }
int AppRevision() { return WARDLOCK_VERSION_REVISION; }

std::unique_ptr<InstanceLock> TakeInstanceLock() {
    // Not in the application folder, which may not be writable, but named after it: two folders
    // are two installations.
    const QByteArray folder = QFileInfo(AppPath()).canonicalFilePath().toUtf8();
    const QByteArray user = QDir::homePath().toUtf8();
    const QByteArray name =
        QCryptographicHash::hash(folder + '\n' + user, QCryptographicHash::Sha1).toHex().left(16);
    auto lock = std::make_unique<LockFileInstance>(
        QDir::temp().filePath(QStringLiteral("wardlock-%1.lock").arg(QLatin1String(name))));
    if (!lock->Take())
        return nullptr;
    return lock;
}

#ifdef Q_OS_WIN

void SyncFile(const QString& path) {
    const HANDLE file = CreateFileW(reinterpret_cast<const wchar_t*>(path.utf16()), GENERIC_WRITE,
                                    FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        ThrowFileError(path, qt_error_string());
    const bool ok = FlushFileBuffers(file);
    CloseHandle(file);
    if (!ok)
        ThrowFileError(path, qt_error_string());
}

void ReplaceFile(const QString& from, const QString& to) {
    SyncFile(from);
    if (!MoveFileExW(reinterpret_cast<const wchar_t*>(from.utf16()),
                     reinterpret_cast<const wchar_t*>(to.utf16()),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        ThrowFileError(to, qt_error_string());
}

#else

void SyncFile(const QString& path) {
    SyncPath(path, O_RDWR);
    SyncPath(QFileInfo(path).absolutePath(), O_RDONLY | O_DIRECTORY);
}

void ReplaceFile(const QString& from, const QString& to) {
    SyncPath(from, O_RDWR);
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0)
        ThrowFileError(to, qt_error_string(errno));
    SyncPath(QFileInfo(to).absolutePath(), O_RDONLY | O_DIRECTORY);
}

#endif
