#include "JournalTrial.h"

#include "Engine.h"
#include "RunTimeError.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace {

/// The size of a page in the store's format.
constexpr qint64 PageBytes = 1024;

/// The number of pages that the store had when the journal's transaction began; 0 if the journal
/// has no header. In the header it follows the magic number, the count of records and a random
/// number.
qint64 PagesBefore(const QString& journalPath) {
    QFile file(journalPath);
    const QByteArray head = file.open(QIODevice::ReadOnly) ? file.read(20) : QByteArray();
    if (head.size() < 20 || !head.startsWith("\xd9\xd5\x05\xf9\x20\xa1\x63\xd7"))
        return 0;
    return qFromBigEndian<quint32>(head.constData() + 16);
}

/// A copy of the store, beside it. It is removed when the trial ends.
class Trial {
public:
    explicit Trial(const QString& storePath)
        : m_storePath(storePath), m_path(storePath + QStringLiteral(".trial")) {
        Remove();
    }
    ~Trial() { Remove(); }
    Trial(const Trial&) = delete;
    Trial& operator=(const Trial&) = delete;

    bool Copy(bool withJournal) {
        Remove();
        return QFile::copy(m_storePath, m_path) &&
               (!withJournal || QFile::copy(JournalOf(m_storePath), JournalOf(m_path)));
    }
    bool IsSound(const QString& password) const {
        try {
            const auto copy =
                std::make_shared<Engine>(m_path, password, Engine::Opening::MustExist);
            return FirstFault(copy, Check::Full).isEmpty();
        } catch (const RunTimeError&) {
            return false;
        }
    }

private:
    void Remove() {
        QFile::remove(m_path); // may also be one that a killed program left
        QFile::remove(JournalOf(m_path));
    }

    QString m_storePath;
    QString m_path;
};

} // namespace

QString JournalOf(const QString& storePath) { return storePath + QStringLiteral("-journal"); }

QString SetForeignJournalAside(const QString& storePath, const QString& password) {
    const QFileInfo store(storePath);
    const QString path = store.canonicalFilePath();
    Trial trial(path);
    if (QFileInfo(JournalOf(path)).size() == 0 || !trial.Copy(true))
        return {};
    const bool tooShort = store.size() < PagesBefore(JournalOf(path)) * PageBytes;
    if ((!tooShort && trial.IsSound(password)) || !trial.Copy(false) || !trial.IsSound(password))
        return {};
    QString aside = JournalOf(path) + u'.' +
                    QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    if (!QFile::rename(JournalOf(path), aside))
        throw RunTimeError(RunTimeErrorNumber::PermissionDenied,
                           QStringLiteral("Could not move file '%1'.").arg(JournalOf(path)));
    return aside;
}
