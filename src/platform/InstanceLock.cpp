#include "InstanceLock.h"

#include "Application.h"
#include "LockFile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

class LockFileInstance : public InstanceLock {
public:
    explicit LockFileInstance(const QString& path) : m_file(path) {}
    /// False only if another process holds it. If no lock file can be made, the program goes on
    /// without one.
    bool Take() { return m_file.Take() != LockFile::Outcome::Held; }

private:
    LockFile m_file;
};

} // namespace

std::unique_ptr<InstanceLock> TakeInstanceLock() {
    // The application folder may not be writable. So the file is in the user's own folder and named
    // after the application folder: two folders are two installations. In a shared folder another
    // user could make the file first and lock the program out.
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
                      QStringLiteral("/wardlock"));
    folder.mkpath(QStringLiteral("."));
    const QByteArray installation = QFileInfo(AppPath()).canonicalFilePath().toUtf8();
    const QByteArray name =
        QCryptographicHash::hash(installation, QCryptographicHash::Sha1).toHex().left(16);
    auto lock = std::make_unique<LockFileInstance>(
        folder.filePath(QLatin1String(name) + QStringLiteral(".lock")));
    if (!lock->Take())
        return nullptr;
    return lock;
}
