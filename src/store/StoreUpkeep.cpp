#include "StoreUpkeep.h"

#include "Engine.h"
#include "FileReplacement.h"
#include "StoreLock.h"
#include "StoreRestore.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mTranslations.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

/// Where the copy of a store is made: in the store's own folder, because only there can it replace
/// the store. If the store is a symbolic link, that is not the temporary file's folder.
QString CopyBeside(const QString& store, const QString& tempPath) {
    return QFileInfo(store).dir().filePath(QFileInfo(tempPath).fileName());
}

void RemoveCopy(const QString& copy) {
    QFile::remove(copy);
    QFile::remove(copy + QStringLiteral("-journal"));
}

} // namespace

void CompactStore(const QString& provider, const QString& path, const QString& tempPath,
                  const QString& password) {
    gStoreDamaged = false;
    const auto compact = [&] {
        // Held until the new file is in place: a program that opened the old one before that would
        // write to a file that no longer exists.
        const StoreLock hold(path);
        const QString store = QFileInfo(path).canonicalFilePath();
        const QString copy = CopyBeside(store, tempPath);
        RemoveCopy(copy);
        const QString passwordPart =
            QStringLiteral("; Jet OLEDB:Database Password=") + ConnectionValue(password);
        const auto replace = [&] {
            CompactDatabase(provider + ConnectionValue(store) + passwordPart,
                            provider + ConnectionValue(copy) +
                                QStringLiteral(";Jet OLEDB:Engine Type=5") + passwordPart);
            KeepOwnerAndMode(store, copy);
            ReplaceFile(copy, store);
        };
        try {
            replace();
        } catch (...) {
            RemoveCopy(copy);
            throw;
        }
    };
    Trapped(compact, [](const RunTimeError& error) {
        WriteLog(QStringLiteral("The database was not compacted. Error #%1: ").arg(error.Number()) +
                 error.Description());
        gStoreDamaged = IsDamage(error.Number());
    });
}

void RemoveLeftoverCopies(const QString& tempPath) {
    RemoveRestoreCopy(gDatabasePath);
    RemoveCopy(CopyBeside(QFileInfo(gDatabasePath).canonicalFilePath(), tempPath));
}

void CheckStore() {
    const QString fault = gConn->QuickCheck();
    gStoreDamaged = !fault.isEmpty();
    if (gStoreDamaged)
        WriteLog(QStringLiteral("The database is damaged: ") + fault);
}

void TellOfDamage() {
    if (gStoreDamaged)
        IvMessageBox(Translate("The database is damaged. Some of its events can no longer be "
                               "read.") +
                         u'\n' +
                         Translate("Please restore a backup. Until then, no reader is erased."),
                     MessageKind::Critical, MessageButtons::Ok, ShortTitle);
}
