#include "JournalTrial.h"

#include "Engine.h"
#include "RunTimeError.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

namespace {

/// A copy of the store beside it, while it lives.
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
                std::make_shared<Engine>(m_path, password, Engine::Creation::MustExist);
            return FirstFault(copy, Check::Full).isEmpty();
        } catch (const RunTimeError&) {
            return false;
        }
    }

private:
    void Remove() {
        QFile::remove(m_path); // one of a killed program, too
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
    if (QFileInfo(JournalOf(path)).size() == 0)
        return {};
    Trial trial(path);
    if (!trial.Copy(true) || trial.IsSound(password) || !trial.Copy(false) ||
        !trial.IsSound(password))
        return {};
    const QString aside = JournalOf(path) + u'.' +
                          QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    if (!QFile::rename(JournalOf(path), aside))
        throw RunTimeError(RunTimeErrorNumber::PermissionDenied,
                           QStringLiteral("Could not move file '%1'.").arg(JournalOf(path)));
    return aside;
}
