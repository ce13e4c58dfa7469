#include "Connection.h"

#include "Engine.h"
#include "JournalTrial.h"
#include "Recordset.h"
#include "RunTimeError.h"
#include "SqlTranslator.h"
#include "StoreLock.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sqlcipher/sqlite3.h>

namespace {

const QString PasswordProperty = QStringLiteral("jet oledb:database password");
const QString SourceProperty = QStringLiteral("data source");

/// In KiB, as a negative number: enough for a store of about two million events.
constexpr char CacheForTwoPasses[] = "PRAGMA cache_size = -262144";

/// The end of the part of a connection text that begins at `at`: the next ";" outside quotes.
qsizetype EndOfPart(const QString& text, qsizetype at) {
    bool quoted = false;
    for (; at < text.size() && (quoted || text[at] != u';'); ++at)
        if (text[at] == u'"')
            quoted = !quoted;
    return at;
}

QString WithoutQuotes(const QString& value) {
    if (value.size() < 2 || !value.startsWith(u'"') || !value.endsWith(u'"'))
        return value;
    return value.mid(1, value.size() - 2).replace(QStringLiteral("\"\""), QStringLiteral("\""));
}

/// The parts of "Key=value;Key = value", with the keys in lower case and without blanks around
/// them.
QHash<QString, QString> PartsOf(const QString& connectionText) {
    QHash<QString, QString> parts;
    for (qsizetype start = 0; start < connectionText.size();) {
        const qsizetype end = EndOfPart(connectionText, start);
        const QString part = connectionText.mid(start, end - start);
        const qsizetype equals = part.indexOf(u'=');
        if (equals > 0)
            parts[part.left(equals).trimmed().toLower()] =
                WithoutQuotes(part.mid(equals + 1).trimmed());
        start = end + 1;
    }
    return parts;
}

void RequireStoreFile(const QString& path) {
    const QFileInfo file(path);
    if (!file.exists())
        throw RunTimeError(
            RunTimeErrorNumber::FileNotFound,
            QStringLiteral("Could not find file '%1'.").arg(QDir::toNativeSeparators(path)));
    // The engine would take a short file for a new store and write to it.
    if (!file.isFile() || file.size() < LeastStoreBytes)
        throw RunTimeError(RunTimeErrorNumber::StoreEngine + SQLITE_NOTADB,
                           QStringLiteral("Unrecognized database format '%1'.")
                               .arg(QDir::toNativeSeparators(path)));
}

void RunOn(const std::shared_ptr<Engine>& engine, const char* engineSql,
           const Values& values = {}) {
    Statement statement(engine, engineSql);
    statement.Bind(values);
    statement.Run();
}

[[noreturn]] void ThrowClosed() {
    throw RunTimeError(RunTimeErrorNumber::ObjectClosed,
                       QStringLiteral("Operation is not allowed when the object is closed."));
}

} // namespace

QString ConnectionValue(const QString& value) {
    const bool plain = !value.contains(u';') && !value.contains(u'"') && value == value.trimmed();
    if (plain)
        return value;
    return u'"' + QString(value).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

Connection::Connection() = default;

Connection::~Connection() = default;

void Connection::Open(const QString& connectionString) {
    if (m_engine)
        throw RunTimeError(RunTimeErrorNumber::ObjectOpen,
                           QStringLiteral("Operation is not allowed when the object is open."));
    if (!connectionString.isEmpty())
        ConnectionString = connectionString;
    const auto parts = PartsOf(ConnectionString);
    const QString path = parts.value(SourceProperty);
    const QString password = parts.value(PasswordProperty, m_properties.value(PasswordProperty));
    RequireStoreFile(path);
    if (Mode == adModeRead) {
        m_engine = std::make_shared<Engine>(path, password, Engine::Opening::ReadOnly);
        return;
    }
    const StoreLock lock(path);
    m_foreignJournal = SetForeignJournalAside(path, password);
    m_engine = std::make_shared<Engine>(path, password, Engine::Opening::MustExist, lock);
}

void Connection::Close() { m_engine.reset(); }

int Connection::Execute(const QString& statement, const Values& values) {
    if (!m_engine)
        ThrowClosed();
    const EngineSql sql = TranslateSql(statement);
    if (sql.text.isEmpty())
        return 0;
    const int before = sqlite3_total_changes(m_engine->Handle());
    RunOn(m_engine, sql.text.constData(), values);
    return sqlite3_total_changes(m_engine->Handle()) - before;
}

void Connection::OnlyRead(const QString& hiddenTable) { m_engine->OnlyRead(hiddenTable); }

QString Connection::QuickCheck() const {
    if (!m_engine)
        ThrowClosed();
    return FirstFault(m_engine, Check::Quick);
}

QString Connection::FullCheck(const std::function<bool()>& goOn) const {
    if (!m_engine)
        ThrowClosed();
    const Supervision supervision(*this, goOn);
    return FirstFault(m_engine, Check::Full);
}

void Connection::BeginTrans() { Execute(QStringLiteral("BEGIN IMMEDIATE")); }

void Connection::CommitTrans() { Execute(QStringLiteral("COMMIT")); }

void Connection::RollbackTrans() { Execute(QStringLiteral("ROLLBACK")); }

bool Connection::InTransaction() const { return m_engine && m_engine->InTransaction(); }

std::unique_ptr<Recordset> Connection::OpenSchema() {
    auto schema = std::make_unique<Recordset>();
    schema->CursorLocation = adUseClient;
    schema->Open(QStringLiteral("SELECT name AS TABLE_NAME, type AS TABLE_TYPE FROM sqlite_master "
                                "WHERE type = 'table' OR type = 'view'"),
                 *this, adOpenStatic, adLockReadOnly);
    return schema;
}

Transaction::~Transaction() {
    if (!m_open || !m_connection.InTransaction())
        return;
    try {
        m_connection.RollbackTrans();
    } catch (const RunTimeError&) {
        // The file is gone, so there is nothing to undo.
    }
}

void Transaction::Commit() {
    m_connection.CommitTrans();
    m_open = false;
}

Supervision::Supervision(const Connection& connection, std::function<bool()> goOn)
    : m_engine(connection.OpenEngine()) {
    m_engine->WhileRunning(std::move(goOn));
}

Supervision::~Supervision() { m_engine->WhileRunning({}); }

void CreateStoreFile(const QString& path, const QString& password) {
    if (QFileInfo::exists(path))
        throw RunTimeError(
            RunTimeErrorNumber::FileInUse,
            QStringLiteral("The file '%1' already exists.").arg(QDir::toNativeSeparators(path)));
    try {
        const auto engine = std::make_shared<Engine>(path, password, Engine::Opening::MayCreate);
        // An empty store has no page. Creating a table and dropping it makes the first one.
        RunOn(engine, "CREATE TABLE tblNone (ID INTEGER)");
        RunOn(engine, "DROP TABLE tblNone");
    } catch (...) {
        QFile::remove(path); // never leave half a store
        QFile::remove(JournalOf(path));
        throw;
    }
}

void CompactDatabase(const QString& source, const QString& destination) {
    Connection connection;
    connection.Open(source);
    const auto& engine = connection.OpenEngine();
    // The check and the copying read the same pages. With this cache they are decrypted only once.
    RunOn(engine, CacheForTwoPasses);
    const QString fault = connection.QuickCheck();
    if (!fault.isEmpty())
        throw RunTimeError(RunTimeErrorNumber::StoreEngine + SQLITE_CORRUPT, fault);
    const auto target = PartsOf(destination);
    // The engine attaches only an existing file. It treats an empty one as a new store.
    QFile file(target.value(SourceProperty));
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        throw RunTimeError(RunTimeErrorNumber::FileNotFound,
                           file.fileName() + QStringLiteral(": ") + file.errorString());
    file.close();
    RunOn(engine, "ATTACH DATABASE ? AS compacted KEY ?",
          {target.value(SourceProperty), target.value(PasswordProperty)});
    // The copy is useless until it is complete, so it needs no journal and no sync at each step. It
    // is synced as a whole when it is put in place.
    RunOn(engine, "PRAGMA compacted.journal_mode = OFF");
    RunOn(engine, "PRAGMA compacted.synchronous = OFF");
    RunOn(engine, "SELECT sqlcipher_export('compacted')");
    RunOn(engine, "DETACH DATABASE compacted");
}
