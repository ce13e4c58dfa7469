#pragma once

#include "StoreLock.h"
#include "Value.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

struct sqlite3;
struct sqlite3_stmt;

/// An open store file and its lock. When the last connection, recordset or statement on it is gone,
/// the file is closed and the lock released, always together.
///
/// Everything that fails throws RunTimeError, with the number StoreEngine plus the engine's code.
class Engine {
public:
    enum class Opening { ReadOnly, MustExist, MayCreate };
    Engine(const QString& path, const QString& password, Opening opening,
           std::optional<StoreLock> lock = {});
    ~Engine();
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    sqlite3* Handle() const { return m_database; }
    /// Throws the engine's current error.
    [[noreturn]] void ThrowError() const;
    /// Also false after the engine itself has rolled a transaction back, for example on a full
    /// disk.
    bool InTransaction() const;

    /// Calls `goOn` now and then while a statement runs, at least every few milliseconds. False
    /// ends the statement with a failure. An empty routine ends this.
    void WhileRunning(std::function<bool()> goOn);

    /// From now on, only statements that read can be prepared, and none that reads a column of this
    /// table of the store.
    void OnlyRead(const QString& hiddenTable);

private:
    void Prepare(const QString& password);

    std::optional<StoreLock> m_lock;
    std::function<bool()> m_goOn;
    QByteArray m_hiddenTable;
    sqlite3* m_database = nullptr;
};

/// One prepared statement, in the engine's own SQL.
class Statement {
public:
    Statement() = default;
    /// Throws if the text holds anything after the first statement.
    Statement(std::shared_ptr<Engine> engine, const QByteArray& sql);
    Statement(Statement&&) = default;
    Statement& operator=(Statement other) noexcept {
        std::swap(m_engine, other.m_engine); // `other` destroys the old ones in the right order
        std::swap(m_statement, other.m_statement);
        return *this;
    }

    explicit operator bool() const { return m_statement != nullptr; }
    sqlite3_stmt* Handle() const { return m_statement.get(); }
    /// `position` counts the "?" from 1.
    void Bind(int position, const Value& value);
    /// A text that the caller keeps unchanged until the statement has run.
    void BindText(int position, const QByteArray& utf8);
    /// One value for each "?". Throws if there are more or fewer.
    void Bind(const Values& values);
    /// True if there is a row.
    bool Step();
    /// Runs a statement whose rows are not wanted, and makes it ready to run again.
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
    Full   ///< also each index against its table
};
/// The first fault that the engine's own check finds, in its words; empty if there is none.
QString FirstFault(const std::shared_ptr<Engine>& engine, Check check);

/// True for the error numbers that mean a damaged file.
bool IsDamage(int errorNumber);
