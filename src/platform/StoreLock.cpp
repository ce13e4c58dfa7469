#include "StoreLock.h"

#include "FileReplacement.h"
#include "RunTimeError.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

namespace {

using Holds = QHash<QString, std::weak_ptr<LockFile>>;

/// The locks of this process, by the path of the lock file and by the path of the store.
Holds& Held() {
    static Holds held;
    return held;
}
Holds g_stores;

/// One name for each file, whether it exists or not.
QString RealPath(const QString& path) { return QFileInfo(FileMeantBy(path)).absoluteFilePath(); }

QString LockPathOf(const QString& storePath) {
    const QFileInfo store(RealPath(storePath));
    return store.dir().filePath(store.completeBaseName() + QStringLiteral(".ldb"));
}

} // namespace

StoreLock::StoreLock(const QString& storePath) {
    const QString path = LockPathOf(storePath);
    m_file = Held().value(path).lock();
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
    Held().insert(path, file);
    g_stores.insert(RealPath(storePath), file);
}

bool StoreLock::IsHeldHere(const QString& path) {
    const QString file = RealPath(path);
    return !Held().value(file).expired() || !g_stores.value(file).expired();
}

QStringList StoreLock::StoresHeldHere() {
    QStringList stores;
    for (auto store = g_stores.cbegin(); store != g_stores.cend(); ++store)
        if (!store.value().expired())
            stores += store.key();
    return stores;
}

bool StoreLock::IsHeldByAnother(const QString& storePath) {
    const QString path = LockPathOf(storePath); // "main.mdb" and "main.bak" have the same one
    return Held().value(path).expired() && LockFile::IsHeld(path);
}

LockFile::Holder StoreLock::HolderOf(const QString& storePath) {
    return LockFile::HolderOf(LockPathOf(storePath));
}
