#include "StoreLock.h"

#include "RunTimeError.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QLockFile>

StoreLock::StoreLock(const QString& storePath) {
    static QHash<QString, std::weak_ptr<QLockFile>> held;
    const QFileInfo store(storePath);
    const QString path =
        QDir(QFileInfo(store.absolutePath()).canonicalFilePath()).filePath(store.completeBaseName() + QStringLiteral(".ldb"));
    m_file = held.value(path).lock();
    if (m_file)
        return;
    auto file = std::make_shared<QLockFile>(path);
    file->setStaleLockTime(0); // its age never makes a lock stale, only its owner's death
    if (!file->tryLock(0)) {
        const QString native = QDir::toNativeSeparators(storePath);
        throw RunTimeError(RunTimeErrorNumber::FileInUse,
                           file->error() == QLockFile::LockFailedError
                               ? QStringLiteral("Could not use '%1'; file already in use.")
                                     .arg(native)
                               : QStringLiteral("Could not lock file '%1'.").arg(native));
    }
    m_file = file;
    held.insert(path, file);
}

StoreLock::~StoreLock() = default;
