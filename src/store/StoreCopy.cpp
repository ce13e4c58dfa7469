#include "StoreCopy.h"

#include "Connection.h"
#include "Engine.h"
#include "FileReplacement.h"
#include "JournalTrial.h"
#include "StoreFailure.h"
#include "StorePassword.h"
#include "TableExists.h"
#include "mStore.h"
#include "mTranslations.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

namespace {

constexpr qint64 CopiedAtOnce = qint64{64} * 1024;

[[noreturn]] void Throw(int number, const QString& path, const QString& cause) {
    throw ExplainedError(number, QDir::toNativeSeparators(path) + QStringLiteral(": ") + cause);
}

[[noreturn]] void ThrowReadFailure(const QString& path) {
    if (FileErrorNumber() == RunTimeErrorNumber::PermissionDenied)
        Throw(RunTimeErrorNumber::PermissionDenied, path,
              Translate("You do not have permission to read this file."));
    ThrowFileError(path);
}

QString CauseOfNotReading(const RunTimeError& error, const QString& path) {
    if (IsDamage(error.Number()))
        return Translate("It is not a database of this program, or it is damaged.");
    if (error.Number() != RunTimeErrorNumber::StoreReadOnly &&
        error.Number() != RunTimeErrorNumber::StoreCannotOpen)
        return CauseOf(error, path);
    return QFileInfo(JournalOf(path)).size() > 0
               ? Translate("A program was killed while it wrote to this file. Its journal is still "
                           "beside it.")
               : Translate("You do not have permission to read this file.");
}

} // namespace

QMap<QString, int> RowsPerTable(Connection& store) {
    QMap<QString, int> rows;
    for (const QString& table : TablesOf(store))
        rows[table] = CountRows(table, store);
    return rows;
}

bool CopyBytes(const QString& from, const std::function<void(const QByteArray&)>& write,
               const WorkProgress& progress) {
    QFile file(from);
    const QFileInfo before(from);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        ThrowReadFailure(from);
    const int all = static_cast<int>(before.size() / CopiedAtOnce) + 1;
    // Not to its end: some files of the system have none.
    for (int done = 0; file.pos() < before.size(); ++done) {
        if (!progress(done, std::max(done, all)))
            return false;
        const QByteArray bytes = file.read(CopiedAtOnce);
        if (bytes.isEmpty())
            break;
        write(bytes);
    }
    if (file.error() != QFileDevice::NoError)
        ThrowReadFailure(from);
    const QFileInfo after(from);
    if (after.size() != before.size() || file.pos() != before.size() ||
        after.lastModified() != before.lastModified())
        Throw(RunTimeErrorNumber::FileAccess, from,
              Translate("The file was changed while it was read."));
    return true;
}

void OpenCopy(Connection& copy, const QString& path) {
    copy.Mode = adModeRead;
    try {
        copy.Open(ConnectionText(path, StorePassword));
    } catch (const RunTimeError& error) {
        Throw(error.Number(), path, CauseOfNotReading(error, path));
    }
}

std::optional<QString> FaultOf(Connection& store, const WorkProgress& progress) {
    bool cancelled = false;
    const QString fault = store.FullCheck([&] {
        cancelled = !progress(0, 0); // the engine does not say how far it is
        return !cancelled;
    });
    return cancelled ? std::optional<QString>() : fault;
}

bool ProveCopy(const QString& path, const QMap<QString, int>& original,
               const WorkProgress& progress) {
    Connection copy;
    OpenCopy(copy, path);
    const auto fault = FaultOf(copy, progress);
    if (!fault)
        return false;
    if (!fault->isEmpty())
        throw ExplainedError(RunTimeErrorNumber::StoreDamaged,
                             FormatStr(Translate("The copy is damaged: %0:s"), {*fault}));
    if (RowsPerTable(copy) != original)
        throw ExplainedError(RunTimeErrorNumber::StoreEngine,
                             Translate("The copy does not have the rows of the database."));
    return true;
}
