#include "StoreLock.h"

#include "LockFile.h"
#include "RunTimeError.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

StoreLock::StoreLock(const QString& storePath) {
    static QHash<QString, std::weak_ptr<LockFile>> held;
    const QFileInfo store(storePath);
    const QString path = QDir(QFileInfo(store.absolutePath()).canonicalFilePath())
                             .filePath(store.completeBaseName() + QStringLiteral(".ldb"));
    m_file = held.value(path).lock();
    if (m_file)
        return;
    auto file = std::make_shared<LockFile>(path);
    const LockFile::Outcome outcome = file->Take();
    if (outcome != LockFile::Outcome::Taken) {
        const QString native = QDir::toNativeSeparators(storePath);
        throw RunTimeError(
            RunTimeErrorNumber::FileInUse,
            outcome == LockFile::Outcome::Held
                ? QStringLiteral("Could not use '%1'; file already in use.").arg(native)
                : QStringLiteral("Could not lock file '%1'.").arg(native));
    }
    m_file = file;
    held.insert(path, file);
}

StoreLock::~StoreLock() = default;
