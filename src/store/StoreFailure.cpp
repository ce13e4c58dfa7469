#include "StoreFailure.h"

#include "Engine.h"
#include "FileReplacement.h"
#include "StoreLock.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mTranslations.h"

#include <QDir>

namespace {

/// Numbers of the engine's failures.
constexpr int Full = RunTimeErrorNumber::StoreEngine + 13;
constexpr int NoDatabase = RunTimeErrorNumber::StoreEngine + 26;
constexpr int InputOutput = RunTimeErrorNumber::StoreEngine + 10;
constexpr int Busy = RunTimeErrorNumber::StoreEngine + 5;

QString InUse(const LockFile::Holder& holder) {
    if (holder.process == 0)
        return Translate("Another program is using it.");
    const QStringList words = {holder.program, QString::number(holder.process), holder.machine};
    return FormatStr(Translate(holder.machine.isEmpty()
                                   ? "It is in use by %0:s (process %1:s)."
                                   : "It is in use on computer %2:s by %0:s (process %1:s)."),
                     words);
}

} // namespace

QString CauseOf(const RunTimeError& error, const QString& storePath) {
    if (dynamic_cast<const ExplainedError*>(&error))
        return error.Description();
    if (const auto* file = dynamic_cast<const FileError*>(&error))
        return file->Cause(Translated);
    const auto words = [](int number) { return Translate(FileError::WordsFor(number)); };
    switch (error.Number()) {
    case RunTimeErrorNumber::FileInUse:
    case Busy:
        return InUse(StoreLock::HolderOf(storePath));
    case RunTimeErrorNumber::FileNotFound:
        return Translate("The file does not exist.");
    case RunTimeErrorNumber::DiskFull:
    case Full:
        return words(RunTimeErrorNumber::DiskFull);
    case RunTimeErrorNumber::PermissionDenied:
    case RunTimeErrorNumber::StoreReadOnly:
    case RunTimeErrorNumber::StoreCannotOpen:
        return words(RunTimeErrorNumber::PermissionDenied);
    case NoDatabase:
        return Translate("Its password is different, or it is damaged. If it is damaged, please "
                         "restore a backup.");
    case InputOutput:
    case RunTimeErrorNumber::DeviceError:
        return words(RunTimeErrorNumber::DeviceError);
    default:
        if (IsDamage(error.Number()))
            return Translate("It is damaged. Please restore a backup.");
        return error.Description();
    }
}

void TellOfReportFailure(const RunTimeError& error) {
    IvMessageBox(Translate("The report could not be created. See error.log for the reason."),
                 CauseOf(error, gDatabasePath));
}

void TellOfForeignJournal(const QString& journalPath) {
    const QString path = QDir::toNativeSeparators(journalPath);
    WriteLog(QStringLiteral("A journal beside the store belonged to another database. It is now ") +
             path);
    IvMessageBox(Translate("A journal next to the database did not belong to it. The database was "
                           "opened without this journal.") +
                     u'\n' + Translate("It was renamed to:") + u'\n' + path,
                 MessageKind::Warning, MessageButtons::Ok, ShortTitle);
}
