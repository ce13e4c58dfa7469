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
    /// False only if somebody holds it: where no lock can be kept, none is missed.
    bool Take() { return m_file.Take() != LockFile::Outcome::Held; }

private:
    LockFile m_file;
};

} // namespace

std::unique_ptr<InstanceLock> TakeInstanceLock() {
    // Not in the application folder, which may not be writable, but named after it: two folders
    // are two installations. In the user's own folder, for in a shared one anybody could make the
    // file first and so shut the program out.
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
