#include "StoreBackup.h"

#include "Connection.h"
#include "Engine.h"
#include "Format.h"
#include "OutputFile.h"
#include "OwnFiles.h"
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

bool Copy(const QString& target, const WorkProgress& progress) {
    OutputFile file(target, OutputFile::Older::Keep);
    file.TakeRightsOf(gDatabasePath);
    const auto write = [&](const QByteArray& bytes) { file.Write(bytes); };
    if (!CopyBytes(gDatabasePath, write, progress) ||
        !ProveCopy(file.Finish(), RowsPerTable(*gConn), progress))
        return false;
    file.Commit();
    return true;
}

} // namespace

bool BackUpStore(const QString& target, const WorkProgress& progress) {
    try {
        return Copy(target, progress);
    } catch (const RunTimeError& error) {
        const bool damaged =
            IsDamage(error.Number()) && !FaultOf(*gConn, progress).value_or(QString()).isEmpty();
        throw ExplainedError(error.Number(),
                             Translate("The database was not copied.") + u'\n' +
                                 (damaged ? Translate("The database itself is damaged.")
                                          : CauseOf(error, gDatabasePath)));
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
            file.size() >= LeastStoreBytes && file.fileName() != made.fileName() &&
            !IsOwnFile(file.filePath()))
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
