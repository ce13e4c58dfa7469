#include "StoreLock.h"

#include "RunTimeError.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

namespace {

QString LockPathOf(const QString& storePath) {
    const QFileInfo given(storePath);
    const QFileInfo store(given.exists() ? given.canonicalFilePath() : given.absoluteFilePath());
    return store.dir().filePath(store.completeBaseName() + QStringLiteral(".ldb"));
}

} // namespace

StoreLock::StoreLock(const QString& storePath) {
    static QHash<QString, std::weak_ptr<LockFile>> held;
    const QString path = LockPathOf(storePath);
    m_file = held.value(path).lock();
    if (m_file)
        return;
    auto file = std::make_shared<LockFile>(path);
    const auto fail = [](int number, const char* text, const QString& about) {
        throw RunTimeError(number, QString::fromLatin1(text).arg(QDir::toNativeSeparators(about)));
    };
    switch (file->Take()) {
    case LockFile::Outcome::Taken:
        break;
    case LockFile::Outcome::Held:
        fail(RunTimeErrorNumber::FileInUse, "Could not use '%1'; file already in use.", storePath);
        break;
    case LockFile::Outcome::DiskFull:
        fail(RunTimeErrorNumber::DiskFull, "Could not make file '%1'; disk full.", path);
        break;
    case LockFile::Outcome::Impossible:
        fail(RunTimeErrorNumber::PermissionDenied, "Could not lock file '%1'.", path);
        break;
    }
    m_file = file;
    held.insert(path, file);
}

LockFile::Holder StoreLock::HolderOf(const QString& storePath) {
    return LockFile::HolderOf(LockPathOf(storePath));
}
