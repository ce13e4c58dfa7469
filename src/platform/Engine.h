#pragma once

#include "StoreLock.h"
#include "Value.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>

struct sqlite3;
struct sqlite3_stmt;

/// An open store file with the hold on it. It is closed, and the hold let go, when the last
/// connection, recordset or statement on it is gone: never one without the other.
///
/// Everything that fails throws RunTimeError, with the number StoreEngine plus the engine's code.
class Engine {
public:
    enum class Creation { MustExist, MayCreate };
    Engine(const QString& path, const QString& password, Creation creation,
           std::optional<StoreLock> lock = {});
    ~Engine();
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    sqlite3* Handle() const { return m_database; }
    /// Throws the engine's present error.
    [[noreturn]] void ThrowError() const;
    /// False also after the engine has rolled a transaction back by itself, as on a full disk.
    bool InTransaction() const;

private:
    void Prepare(const QString& password);

    std::optional<StoreLock> m_lock;
    sqlite3* m_database = nullptr;
};

/// One prepared statement, in the engine's own SQL.
class Statement {
public:
    Statement() = default;
    /// Throws for text that holds anything after the first statement.
    Statement(std::shared_ptr<Engine> engine, const QByteArray& sql);
    Statement(Statement&&) = default;
    Statement& operator=(Statement other) noexcept {
        std::swap(m_engine, other.m_engine); // what was here goes in the order of destruction
        std::swap(m_statement, other.m_statement);
        return *this;
    }

    explicit operator bool() const { return m_statement != nullptr; }
    sqlite3_stmt* Handle() const { return m_statement.get(); }
    /// `position` counts the "?" from 1.
    void Bind(int position, const Value& value);
    /// One value for each "?"; throws for more or fewer.
    void Bind(const Values& values);
    /// True if there is a row.
    bool Step();
    /// Runs a statement from which no row is wanted, and makes it ready to run again.
    void Run();
    void Reset();

private:
    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const;
    };
    std::shared_ptr<Engine> m_engine; ///< outlives the statement
    std::unique_ptr<sqlite3_stmt, Finalizer> m_statement;
};

enum class Check {
    Quick, ///< every page and every row, in one pass
    Full   ///< each index against its table, too
};
/// The first fault that the engine's own check finds, in its words; empty for a sound store.
QString FirstFault(const std::shared_ptr<Engine>& engine, Check check);

/// True for the numbers with which the engine says that the file's content is at fault.
bool IsDamage(int errorNumber);
