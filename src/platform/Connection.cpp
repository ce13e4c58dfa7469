#include "Connection.h"

#include "Recordset.h"
#include "RunTimeError.h"
#include "SqlTranslator.h"
#include "StoreLock.h"

#include <QCollator>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <sqlcipher/sqlite3.h>

namespace {

constexpr int BusyMilliseconds = 5000;
const QString PasswordProperty = QStringLiteral("jet oledb:database password");
const QString SourceProperty = QStringLiteral("data source");

/// "Key=value;Key = value": the keys in lower case, blanks around both sides dropped.
QHash<QString, QString> PartsOf(const QString& connectionText) {
    QHash<QString, QString> parts;
    for (const QString& part : connectionText.split(u';', Qt::SkipEmptyParts)) {
        const qsizetype equals = part.indexOf(u'=');
        if (equals > 0)
            parts[part.left(equals).trimmed().toLower()] = part.mid(equals + 1).trimmed();
    }
    return parts;
}

QString QuotedForEngine(QString text) {
    return u'\'' + text.replace(u'\'', QStringLiteral("''")) + u'\'';
}

int ComparePeople(void* collator, int leftBytes, const void* left, int rightBytes,
                  const void* right) {
    const auto text = [](const void* data, int bytes) {
        return QString::fromUtf8(static_cast<const char*>(data), bytes);
    };
    return static_cast<QCollator*>(collator)->compare(text(left, leftBytes),
                                                      text(right, rightBytes));
}

[[noreturn]] void ThrowEngine(sqlite3* database, int code) {
    const QString text = database ? QString::fromUtf8(sqlite3_errmsg(database))
                                  : QString::fromUtf8(sqlite3_errstr(code));
    throw RunTimeError(RunTimeErrorNumber::StoreEngine + (code & 0xff), text);
}

void Run(sqlite3* database, const QString& engineSql) {
    const int code =
        sqlite3_exec(database, engineSql.toUtf8().constData(), nullptr, nullptr, nullptr);
    if (code != SQLITE_OK)
        ThrowEngine(database, code);
}

/// Makes an engine newer than this format's read and write it all the same. The format is that of
/// the third major version, which older engines have as their only one.
void KeepFileFormat(sqlite3* database) {
    Run(database, QStringLiteral("PRAGMA cipher_default_compatibility = 3"));
    Run(database, QStringLiteral("PRAGMA cipher_compatibility = 3"));
}

sqlite3* OpenFile(const QString& path, const QString& password, int flags) {
    sqlite3* database = nullptr;
    try {
        const QByteArray name = QDir::toNativeSeparators(path).toUtf8();
        int code = sqlite3_open_v2(name.constData(), &database, flags, nullptr);
        if (code != SQLITE_OK)
            ThrowEngine(database, code);
        sqlite3_busy_timeout(database, BusyMilliseconds);
        const QByteArray key = password.toUtf8();
        code = sqlite3_key(database, key.constData(), static_cast<int>(key.size()));
        if (code != SQLITE_OK)
            ThrowEngine(database, code);
        KeepFileFormat(database);
        Run(database, QStringLiteral("PRAGMA synchronous = FULL"));
        // The first page is only read, and the password so tried, by a first question.
        Run(database, QStringLiteral("SELECT count(*) FROM sqlite_master"));
        auto* collator = new QCollator(QLocale());
        collator->setCaseSensitivity(Qt::CaseInsensitive);
        sqlite3_create_collation_v2(database, PeopleCollation, SQLITE_UTF8, collator, ComparePeople,
                                    [](void* p) { delete static_cast<QCollator*>(p); });
    } catch (...) {
        sqlite3_close(database);
        throw;
    }
    return database;
}

} // namespace

Connection::Connection() = default;

Connection::~Connection() { Close(); }

void Connection::Open(const QString& connectionString) {
    if (m_database)
        throw RunTimeError(RunTimeErrorNumber::ObjectOpen,
                           QStringLiteral("Operation is not allowed when the object is open."));
    if (!connectionString.isEmpty())
        ConnectionString = connectionString;
    auto parts = PartsOf(ConnectionString);
    const QString path = parts.value(SourceProperty);
    const QString password = parts.value(PasswordProperty, m_properties.value(PasswordProperty));
    const QFileInfo file(path);
    if (!file.isFile())
        throw RunTimeError(
            RunTimeErrorNumber::FileNotFound,
            QStringLiteral("Could not find file '%1'.").arg(QDir::toNativeSeparators(path)));
    if (file.size() == 0) // the engine would take it for a new store
        throw RunTimeError(RunTimeErrorNumber::StoreEngine + SQLITE_NOTADB,
                           QStringLiteral("Unrecognized database format '%1'.")
                               .arg(QDir::toNativeSeparators(path)));
    auto lock = std::make_unique<StoreLock>(path);
    m_database = OpenFile(path, password, SQLITE_OPEN_READWRITE);
    m_lock = std::move(lock);
}

void Connection::Close() {
    if (!m_database)
        return;
    sqlite3_close_v2(m_database);
    m_database = nullptr;
    m_lock.reset();
}

void Connection::ThrowEngineError() const { ThrowEngine(m_database, sqlite3_errcode(m_database)); }

int Connection::Execute(const QString& statement) {
    if (!m_database)
        throw RunTimeError(RunTimeErrorNumber::ObjectClosed,
                           QStringLiteral("Operation is not allowed when the object is closed."));
    const QByteArray sql = TranslateSql(statement).text;
    if (sqlite3_exec(m_database, sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        ThrowEngineError();
    return sqlite3_changes(m_database);
}

void Connection::BeginTrans() { Execute(QStringLiteral("BEGIN IMMEDIATE")); }

void Connection::CommitTrans() { Execute(QStringLiteral("COMMIT")); }

void Connection::RollbackTrans() { Execute(QStringLiteral("ROLLBACK")); }

std::unique_ptr<Recordset> Connection::OpenSchema() {
    auto schema = std::make_unique<Recordset>();
    schema->CursorLocation = adUseClient;
    schema->Open(QStringLiteral("SELECT name AS TABLE_NAME, type AS TABLE_TYPE FROM sqlite_master "
                                "WHERE type = 'table' OR type = 'view'"),
                 *this, adOpenStatic, adLockReadOnly);
    return schema;
}

Transaction::~Transaction() {
    if (!m_open)
        return;
    try {
        m_connection.RollbackTrans();
    } catch (const RunTimeError&) {
        // The engine has rolled back already, or the file is gone: nothing is left to undo.
    }
}

void Transaction::Commit() {
    m_connection.CommitTrans();
    m_open = false;
}

void CreateStoreFile(const QString& path, const QString& password) {
    if (QFileInfo::exists(path))
        throw RunTimeError(
            RunTimeErrorNumber::FileInUse,
            QStringLiteral("The file '%1' exists already.").arg(QDir::toNativeSeparators(path)));
    sqlite3* database = nullptr;
    try {
        database = OpenFile(path, password, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
        // An empty store has no page yet; a table that comes and goes gives it its first.
        Run(database, QStringLiteral("CREATE TABLE tblNone (ID INTEGER)"));
        Run(database, QStringLiteral("DROP TABLE tblNone"));
        sqlite3_close(database);
    } catch (...) {
        sqlite3_close(database);
        QFile::remove(path); // never leave half a store
        throw;
    }
}

void CompactDatabase(const QString& source, const QString& destination) {
    const auto target = PartsOf(destination);
    // The engine attaches only a file that is there; an empty one is a new store to it.
    QFile file(target.value(SourceProperty));
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        throw RunTimeError(RunTimeErrorNumber::FileNotFound,
                           file.fileName() + QStringLiteral(": ") + file.errorString());
    file.close();
    Connection connection;
    connection.Open(source);
    sqlite3* database = connection.Handle();
    Run(database, QStringLiteral("ATTACH DATABASE %1 AS compacted KEY %2")
                      .arg(QuotedForEngine(target.value(SourceProperty)),
                           QuotedForEngine(target.value(PasswordProperty))));
    // The copy is worthless until it is complete, so it needs neither a journal nor a sync a step;
    // whoever puts it in place syncs it whole.
    Run(database, QStringLiteral("PRAGMA compacted.journal_mode = OFF"));
    Run(database, QStringLiteral("PRAGMA compacted.synchronous = OFF"));
    Run(database, QStringLiteral("SELECT sqlcipher_export('compacted')"));
    Run(database, QStringLiteral("DETACH DATABASE compacted"));
}
