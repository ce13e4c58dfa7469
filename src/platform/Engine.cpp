#include "Engine.h"

#include "RunTimeError.h"
#include "SqlTranslator.h"

#include <QCollator>
#include <QDir>

#include <sqlcipher/sqlite3.h>

namespace {

constexpr int BusyMilliseconds = 5000;
/// Of the engine's virtual machine.
constexpr int StepsBetweenCalls = 10'000;

[[noreturn]] void Throw(int code, const QString& text) {
    throw RunTimeError(RunTimeErrorNumber::StoreEngine + (code & 0xff), text);
}

int ComparePeople(void* collator, int leftBytes, const void* left, int rightBytes,
                  const void* right) {
    const auto text = [](const void* data, int bytes) {
        return QString::fromUtf8(static_cast<const char*>(data), bytes);
    };
    return static_cast<QCollator*>(collator)->compare(text(left, leftBytes),
                                                      text(right, rightBytes));
}

/// Whether a statement that only reads may do this.
int AuthorizeReading(void* hiddenTable, int action, const char* table, const char* name,
                     const char* schema, const char*) {
    switch (action) {
    case SQLITE_SELECT:
    case SQLITE_RECURSIVE:
        return SQLITE_OK;
    case SQLITE_READ: {
        const bool hidden = sqlite3_stricmp(table, static_cast<const char*>(hiddenTable)) == 0 &&
                            sqlite3_stricmp(schema, "main") == 0;
        return hidden ? SQLITE_DENY : SQLITE_OK;
    }
    case SQLITE_FUNCTION:
        for (const char* acting : {"load_extension", "sqlcipher_export", "fts3_tokenizer"})
            if (sqlite3_stricmp(name, acting) == 0)
                return SQLITE_DENY;
        return SQLITE_OK;
    default:
        return SQLITE_DENY;
    }
}

void Require(const Engine& engine, int code) {
    if (code != SQLITE_OK)
        engine.ThrowError();
}

void Run(const Engine& engine, const char* sql) {
    Require(engine, sqlite3_exec(engine.Handle(), sql, nullptr, nullptr, nullptr));
}

} // namespace

Engine::Engine(const QString& path, const QString& password, Opening opening,
               std::optional<StoreLock> lock)
    : m_lock(std::move(lock)) {
    const int flags = opening == Opening::ReadOnly    ? SQLITE_OPEN_READONLY
                      : opening == Opening::MayCreate ? SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE
                                                      : SQLITE_OPEN_READWRITE;
    const QByteArray name = QDir::toNativeSeparators(path).toUtf8();
    try {
        const int code = sqlite3_open_v2(name.constData(), &m_database, flags, nullptr);
        if (!m_database)
            Throw(code, QString::fromUtf8(sqlite3_errstr(code)));
        Require(*this, code);
        Prepare(password);
    } catch (...) {
        sqlite3_close(m_database);
        throw;
    }
}

void Engine::Prepare(const QString& password) {
    sqlite3_busy_timeout(m_database, BusyMilliseconds);
    const QByteArray key = password.toUtf8();
    Require(*this, sqlite3_key(m_database, key.constData(), static_cast<int>(key.size())));
    // The format is that of the third major version. Older engines know no other; a newer engine
    // must be asked for it.
    Run(*this, "PRAGMA cipher_default_compatibility = 3");
    Run(*this, "PRAGMA cipher_compatibility = 3");
    // EXTRA also syncs the folder after the journal is deleted. With FULL, the journal could be
    // back after a power cut, and with it the state before the commit.
    Run(*this, "PRAGMA synchronous = EXTRA");
    // Temporary tables are used when the disk is full.
    Run(*this, "PRAGMA temp_store = MEMORY");
    // The engine tries the password only when it first reads from the file.
    Run(*this, "SELECT count(*) FROM sqlite_master");
    auto collator = std::make_unique<QCollator>(QLocale());
    collator->setCaseSensitivity(Qt::CaseInsensitive);
    Require(*this, sqlite3_create_collation_v2(m_database, PeopleCollation, SQLITE_UTF8,
                                               collator.get(), ComparePeople,
                                               [](void* p) { delete static_cast<QCollator*>(p); }));
    (void)collator.release(); // owned by the engine from here on
}

Engine::~Engine() { sqlite3_close(m_database); }

void Engine::ThrowError() const {
    Throw(sqlite3_errcode(m_database), QString::fromUtf8(sqlite3_errmsg(m_database)));
}

void Engine::WhileRunning(std::function<bool()> goOn) {
    m_goOn = std::move(goOn);
    const auto call = [](void* engine) { return static_cast<Engine*>(engine)->m_goOn() ? 0 : 1; };
    sqlite3_progress_handler(m_database, m_goOn ? StepsBetweenCalls : 0, call, this);
}

void Engine::OnlyRead(const QString& hiddenTable) {
    m_hiddenTable = hiddenTable.toUtf8();
    Require(*this, sqlite3_set_authorizer(m_database, AuthorizeReading, m_hiddenTable.data()));
}

bool Engine::InTransaction() const { return sqlite3_get_autocommit(m_database) == 0; }

void Statement::Finalizer::operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
}

Statement::Statement(std::shared_ptr<Engine> engine, const QByteArray& sql)
    : m_engine(std::move(engine)) {
    sqlite3_stmt* statement = nullptr;
    const char* rest = nullptr;
    const int code = sqlite3_prepare_v2(m_engine->Handle(), sql.constData(),
                                        static_cast<int>(sql.size()), &statement, &rest);
    if (code == SQLITE_AUTH)
        Throw(code, QStringLiteral("Only statements that read are allowed (%1).")
                        .arg(QString::fromUtf8(sqlite3_errmsg(m_engine->Handle()))));
    Require(*m_engine, code);
    m_statement.reset(statement);
    if (!QByteArray(rest).trimmed().isEmpty())
        Throw(SQLITE_ERROR, QStringLiteral("Characters found after end of SQL statement."));
}

void Statement::Bind(int position, const Value& value) {
    sqlite3_stmt* statement = m_statement.get();
    int code;
    if (const auto* number = std::get_if<qint64>(&value.Data())) {
        code = sqlite3_bind_int64(statement, position, *number);
    } else if (const auto* real = std::get_if<double>(&value.Data())) {
        code = sqlite3_bind_double(statement, position, *real);
    } else if (const auto* text = std::get_if<QString>(&value.Data())) {
        const QByteArray utf8 = text->toUtf8();
        code = sqlite3_bind_text(statement, position, utf8.constData(),
                                 static_cast<int>(utf8.size()), SQLITE_TRANSIENT);
    } else {
        code = sqlite3_bind_null(statement, position);
    }
    Require(*m_engine, code);
}

void Statement::BindText(int position, const QByteArray& utf8) {
    Require(*m_engine, sqlite3_bind_text(m_statement.get(), position, utf8.constData(),
                                         static_cast<int>(utf8.size()), SQLITE_STATIC));
}

void Statement::Bind(const Values& values) {
    if (sqlite3_bind_parameter_count(m_statement.get()) != static_cast<int>(values.size()))
        Throw(SQLITE_RANGE, QStringLiteral("The statement needs a different number of values."));
    int position = 0;
    for (const Value& value : values)
        Bind(++position, value);
}

bool Statement::Step() {
    const int code = sqlite3_step(m_statement.get());
    if (code != SQLITE_ROW && code != SQLITE_DONE)
        m_engine->ThrowError();
    return code == SQLITE_ROW;
}

void Statement::Run() {
    const int code = sqlite3_step(m_statement.get());
    if (code == SQLITE_ROW || code == SQLITE_DONE) {
        Reset();
        return;
    }
    // Reset would report the failure of the last step again, so throw it first.
    try {
        m_engine->ThrowError();
    } catch (...) {
        Reset();
        throw;
    }
}

void Statement::Reset() { sqlite3_reset(m_statement.get()); }

QString FirstFault(const std::shared_ptr<Engine>& engine, Check check) {
    try {
        Statement pragma(engine, check == Check::Quick ? "PRAGMA quick_check(1)"
                                                       : "PRAGMA integrity_check(1)");
        if (!pragma.Step())
            return QStringLiteral("The check gave no answer.");
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(pragma.Handle(), 0));
        const QString answer = QString::fromUtf8(text).simplified();
        return answer == u"ok" ? QString() : answer;
    } catch (const RunTimeError& error) {
        return error.Description();
    }
}

bool IsDamage(int errorNumber) {
    return errorNumber == RunTimeErrorNumber::StoreEngine + SQLITE_CORRUPT ||
           errorNumber == RunTimeErrorNumber::StoreEngine + SQLITE_NOTADB;
}
