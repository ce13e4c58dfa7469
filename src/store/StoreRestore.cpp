#include "StoreRestore.h"

#include "Connection.h"
#include "Engine.h"
#include "FileReplacement.h"
#include "JournalTrial.h"
#include "OutputFile.h"
#include "StoreCheck.h"
#include "StoreCopy.h"
#include "mErrorHandler.h"
#include "mStore.h"
#include "mTranslations.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>

namespace {

QString CopyOf(const QString& store) { return store + QStringLiteral(".restore"); }

bool IsSameFile(const QString& a, const QString& b) {
    std::error_code error; // if one of them does not exist
    return std::filesystem::equivalent(QFileInfo(a).filesystemFilePath(),
                                       QFileInfo(b).filesystemFilePath(), error);
}

/// Runs the body. What it throws becomes NotRestored.
template <typename Body>
auto Explained(const QString& path, Body&& body) {
    try {
        return body();
    } catch (const RunTimeError& error) {
        throw NotRestored(error, path);
    }
}

[[noreturn]] void Refuse(const QString& reason) {
    throw ExplainedError(RunTimeErrorNumber::FileAccess, reason);
}

} // namespace

bool IsStoreItself(const QString& store, const QString& path) {
    return IsSameFile(store, path) || IsSameFile(CopyOf(FileMeantBy(store)), path);
}

StoreRestore::StoreRestore(const QString& store, const QString& source)
    : m_store(FileMeantBy(store)), m_source(source), m_copy(CopyOf(m_store)) {}

StoreRestore::~StoreRestore() {
    // Another process that held the store meanwhile may have made a copy of its own.
    if (m_checked && StampOf(m_copy) == *m_checked)
        RemoveRestoreCopy(m_store);
}

StoreRestore::Stamp StoreRestore::StampOf(const QString& path) {
    const QFileInfo file(path);
    return {file.size(), file.lastModified()};
}

bool StoreRestore::MakeCopy(const WorkProgress& progress) {
    return Explained(m_source, [&] {
        // The engine follows links, so journal and lock are beside the real file.
        const QFileInfo source(QFileInfo(m_source).canonicalFilePath());
        if (!source.exists())
            Refuse(Translate("The file does not exist."));
        if (IsStoreItself(m_store, m_source))
            Refuse(Translate("This file is the database itself. Please choose a backup of it."));
        if (!source.isFile()) // reading a pipe or a device might never end
            Refuse(Translate("The chosen file is not a database of this program."));
        m_source = source.filePath();
        RemoveRestoreCopy(m_store);
        bool made = false;
        try {
            made = CopySource(progress) && CheckCopy(progress);
        } catch (...) {
            RemoveRestoreCopy(m_store);
            throw;
        }
        if (made)
            m_checked = StampOf(m_copy);
        else
            RemoveRestoreCopy(m_store);
        return made;
    });
}

bool StoreRestore::CopySource(const WorkProgress& progress) {
    if (StoreLock::IsHeldByAnother(m_source))
        throw RunTimeError(RunTimeErrorNumber::FileInUse, {});
    const QString journal = JournalOf(m_source);
    const Stamp before = StampOf(m_source), journalBefore = StampOf(journal);
    const bool unfinished = QFileInfo(journal).isFile() && journalBefore.size > 0;
    if (!CopyFile(m_source, m_copy, progress))
        return false;
    if (!unfinished)
        return true;
    if (!CopyFile(journal, JournalOf(m_copy), progress))
        return false;
    // The two copies belong together only if nothing was written between them.
    if (StampOf(m_source) != before || StampOf(journal) != journalBefore)
        Refuse(Translate("The file was changed while it was read."));
    FinishTransaction();
    return true;
}

bool StoreRestore::CopyFile(const QString& from, const QString& to,
                            const WorkProgress& progress) const {
    QFile file(to);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        ThrowFileError(to);
    KeepOwnerAndMode(m_store, to);
    QFile::setPermissions(to, QFile::permissions(to) | QFile::ReadOwner | QFile::WriteOwner);
    const auto write = [&](const QByteArray& bytes) {
        if (file.write(bytes) != bytes.size())
            OutputFile::Fail(file, to);
    };
    if (!CopyBytes(from, write, progress))
        return false;
    file.close();
    SyncFile(to);
    return true;
}

/// Opening the copy for writing rolls its journal back, or sets it aside if it belongs to another
/// file.
void StoreRestore::FinishTransaction() const {
    Connection copy;
    try {
        copy.Open(ConnectionText(m_copy, StorePassword));
    } catch (const RunTimeError& error) {
        if (!IsDamage(error.Number()))
            throw;
        return; // the check will say so
    }
    if (!copy.ForeignJournal().isEmpty()) {
        WriteLog(QStringLiteral("A journal beside the file to restore belonged to another "
                                "database and was not used: ") +
                 JournalOf(m_source));
        QFile::remove(copy.ForeignJournal());
    }
}

bool StoreRestore::CheckCopy(const WorkProgress& progress) const {
    Connection copy;
    try {
        OpenCopy(copy, m_copy);
    } catch (const RunTimeError& error) {
        if (!IsDamage(error.Number()))
            throw;
        Refuse(Translate("The chosen file is not a database of this program, its password is "
                         "different, or it is damaged."));
    }
    const auto fault = FaultOf(copy, progress);
    if (fault && !fault->isEmpty())
        Refuse(FormatStr(Translate("The chosen file is damaged: %0:s"), {*fault}));
    const QStringList missing = MissingParts(copy);
    if (!missing.isEmpty())
        Refuse(FormatStr(
            Translate("The chosen file is not a complete database of this program. It lacks %0:s."),
            {missing.join(QStringLiteral(", "))}));
    return fault.has_value();
}

bool StoreRestore::LockStore() {
    if (!m_lock && StoreLock::IsHeldHere(m_store))
        return false;
    return Explained(m_store, [this] {
        try {
            m_lock.emplace(m_store);
        } catch (const RunTimeError& error) {
            if (error.Number() != RunTimeErrorNumber::FileInUse)
                throw;
        }
        return m_lock.has_value();
    });
}

QString StoreRestore::Holder() const {
    return CauseOf(RunTimeError(RunTimeErrorNumber::FileInUse, {}), m_store);
}

void StoreRestore::Replace() {
    const bool certain = Explained(m_store, [&] {
        if (!m_checked || StampOf(m_copy) != *m_checked)
            Refuse(Translate("Another program has used the database meanwhile. Please try again."));
        RollBackOldStore();
        return PutCopyInPlace();
    });
    m_checked.reset();
    if (!certain)
        throw ExplainedError(RunTimeErrorNumber::DeviceError,
                             Translate("The database was restored, but the disk reported an error. "
                                       "Please check it."));
}

/// The old store's journal must not stay beside the new one. But until the new one is in place, the
/// old store needs it.
void StoreRestore::RollBackOldStore() const {
    if (!QFileInfo::exists(JournalOf(m_store)) || !QFileInfo::exists(m_store))
        return;
    Trapped(
        [&] {
            Connection old;
            OpenStore(old, m_store, StorePassword);
        },
        [](const RunTimeError& error) {
            MsgBox(QStringLiteral("Error : %1 - ").arg(error.Number()) + error.Description(), {},
                   MessageKind::Warning);
        });
}

/// A journal that could not be rolled back is removed only after the old store is gone. False if
/// the copy is in place, but perhaps not yet on the disk.
bool StoreRestore::PutCopyInPlace() const {
    const QString journal = JournalOf(m_store), aside = journal + QStringLiteral(".old");
    const bool unfinished = QFileInfo::exists(journal);
    try {
        if (unfinished)
            ReplaceFile(journal, aside);
        ReplaceFile(m_copy, m_store);
    } catch (const RunTimeError&) {
        if (StampOf(m_store) == *m_checked)
            return false; // only the folder could not be synced
        if (unfinished)
            QFile::rename(aside, journal);
        throw;
    }
    QFile::remove(aside);
    return true;
}

ExplainedError NotRestored(const RunTimeError& error, const QString& path) {
    return {error.Number(), Translate("The database was not restored. It is as it was before.") +
                                u'\n' + CauseOf(error, path)};
}

void RemoveRestoreCopy(const QString& store) {
    const QFileInfo copy(CopyOf(FileMeantBy(store)));
    // With what the engine, its lock and the trial of a journal make beside it.
    const QString name = copy.fileName(), lock = copy.completeBaseName() + QStringLiteral(".ldb");
    for (const QString& file :
         copy.dir().entryList(QDir::Files | QDir::System | QDir::Hidden, QDir::NoSort))
        if (file == name || file == lock || file.startsWith(name + QStringLiteral("-journal")) ||
            file.startsWith(name + QStringLiteral(".trial")))
            QFile::remove(copy.dir().filePath(file));
}
