#include "StoreBackup.h"

#include "Connection.h"
#include "Engine.h"
#include "Format.h"
#include "OutputFile.h"
#include "OwnFiles.h"
#include "RunTimeError.h"
#include "StoreCopy.h"
#include "StoreFailure.h"
#include "mDeclareGlobals.h"
#include "mTranslations.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

bool IsScheduledBackupName(const QString& name) {
    static const QRegularExpression form(
        QStringLiteral("\\AWK_Backup_(\\d{4})-(\\d\\d)-(\\d\\d)_(\\d\\d)(\\d\\d)\\.mdb\\z"));
    const auto match = form.match(name);
    const auto number = [&](int group) { return match.captured(group).toInt(); };
    return match.hasMatch() && QDate::isValid(number(1), number(2), number(3)) &&
           QTime::isValid(number(4), number(5), 0);
}

/// One half of the work, as progress of the whole.
WorkProgress Half(int half, const WorkProgress& progress) {
    return [half, &progress](int done, int all) { return progress(half * all + done, 2 * all); };
}

bool Copy(const QString& target, const WorkProgress& progress) {
    OutputFile file(target, OutputFile::Older::Keep);
    file.TakeRightsOf(gDatabasePath);
    const auto write = [&](const QByteArray& bytes) { file.Write(bytes); };
    if (!CopyBytes(gDatabasePath, write, Half(0, progress)) ||
        !ProveCopy(file.Finish(), RowsPerTable(*gConn), Half(1, progress)))
        return false;
    file.Commit();
    return true;
}

} // namespace

bool BackUpStore(const QString& target, const WorkProgress& progress) {
    try {
        return Copy(target, progress);
    } catch (const RunTimeError& error) {
        const QString cause = IsDamage(error.Number()) && !gConn->FullCheck().isEmpty()
                                  ? Translate("The database itself is damaged.")
                                  : CauseOfCopyFailure(error, target);
        throw RunTimeError(error.Number(),
                           Translate("The database was not copied.") + u'\n' + cause);
    }
}

QString ScheduledBackupName(DateTime now) {
    return QStringLiteral("WK_Backup_") + Format(now, QStringLiteral("yyyy-MM-dd")) + u'_' +
           Format(now, QStringLiteral("hhnn")) + QStringLiteral(".mdb");
}

OldBackups RemoveOldBackups(const QString& newest, int keep) {
    const QFileInfo made(newest);
    QStringList others;
    for (const QFileInfo& file : made.dir().entryInfoList(QDir::Files | QDir::Hidden, QDir::Name))
        if (IsScheduledBackupName(file.fileName()) && !file.isSymLink() &&
            file.fileName() != made.fileName() && !IsOwnFile(file.filePath()))
            others += file.filePath();
    OldBackups old;
    for (const QString& path : others.mid(0, std::max<qsizetype>(0, others.size() - (keep - 1)))) {
        QFile file(path);
        if (file.remove())
            old.removed += path;
        else
            old.notRemoved += path + QStringLiteral(": ") + file.errorString();
    }
    return old;
}
