#pragma once

#include "ObjectState.h"
#include "Value.h"

#include <QHash>
#include <QString>

#include <functional>
#include <memory>

class Engine;
class Recordset;

enum ConnectMode { adModeUnknown = 0, adModeRead = 1 };

/// One connection to a password-protected store file. While it is open, a lock file beside the
/// store (the same name, ending in ".ldb") keeps other processes out. The connections of one
/// process share that file. Everything that fails throws RunTimeError.
class Connection {
public:
    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Set by the caller, without effect: there is only one provider.
    QString Provider;
    /// "Data Source=" and the path, and other parts, separated by ";". A value that contains a ";"
    /// must be in double quotes (ConnectionValue).
    QString ConnectionString;
    /// With adModeRead, the connection only reads, and takes no lock: for a copy of a store, which
    /// may be on a read-only disk. It does not open a file that has an unfinished transaction.
    ConnectMode Mode = adModeUnknown;
    /// Only "Jet OLEDB:Database Password" is used.
    QString& Properties(const QString& name) { return m_properties[name.toLower()]; }

    /// Opens the store, which must be an existing store file with this password. If a killed
    /// process left a transaction unfinished, it is rolled back, unless its journal belongs to
    /// another file (ForeignJournal). A `connectionString` that is not empty replaces the property.
    void Open(const QString& connectionString = {});
    /// Recordsets that are still open keep the file and its lock until they are closed.
    void Close();
    ObjectState State() const { return m_engine ? adStateOpen : adStateClosed; }

    /// A journal beside the store that did not belong to it; for example, a killed program left it,
    /// and then somebody replaced the store by a backup. Open has moved it to this path. Empty if
    /// there was none.
    const QString& ForeignJournal() const { return m_foreignJournal; }

    /// Runs one statement in the store's dialect, with a value for each "?". Gives the number of
    /// rows that it changed; those that a trigger changed count too.
    int Execute(const QString& statement, const Values& values = {});

    /// From now on, only statements that read can run. None can read a column of `hiddenTable`, but
    /// NATURAL and USING can still compare one. A temporary table of the same name takes its place
    /// in every statement that does not name the schema "main".
    void OnlyRead(const QString& hiddenTable);

    /// The first fault that the engine's own check finds in the store; empty if there is none.
    /// Reads the whole store.
    QString QuickCheck() const;
    /// The same, with each index compared with its table. `goOn`, if any, is called now and then;
    /// once it gives false, the check ends with a fault.
    QString FullCheck(const std::function<bool()>& goOn = {}) const;

    /// A transaction is on disk when CommitTrans returns. Transactions do not nest.
    void BeginTrans();
    void CommitTrans();
    void RollbackTrans();
    /// Also false after the engine itself has rolled a transaction back, for example on a full
    /// disk.
    bool InTransaction() const;

    /// One row for each table and view: "TABLE_NAME" and "TABLE_TYPE".
    std::unique_ptr<Recordset> OpenSchema();

    /// For the platform only. Null while the connection is closed.
    const std::shared_ptr<Engine>& OpenEngine() const { return m_engine; }

private:
    QHash<QString, QString> m_properties;
    std::shared_ptr<Engine> m_engine;
    QString m_foreignJournal;
};

/// A transaction that is rolled back unless Commit was called.
class Transaction {
public:
    explicit Transaction(Connection& connection) : m_connection(connection) {
        m_connection.BeginTrans();
    }
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void Commit();

private:
    Connection& m_connection;
    bool m_open = true;
};

/// While it exists, `goOn` is called now and then while a statement of the connection runs, at
/// least every few milliseconds. Once it gives false, the statement fails with Interrupted. `goOn`
/// must not use the connection. An empty routine is never called.
class Supervision {
public:
    Supervision(const Connection& connection, std::function<bool()> goOn);
    ~Supervision();
    Supervision(const Supervision&) = delete;
    Supervision& operator=(const Supervision&) = delete;

private:
    std::shared_ptr<Engine> m_engine;
};

/// One page of the format. A shorter file is not a store.
constexpr qint64 LeastStoreBytes = 1024;

/// A value in the form for a connection text, in quotes if it needs them.
QString ConnectionValue(const QString& value);

/// Makes a new, empty store file with this password. Throws RunTimeError if the file exists.
void CreateStoreFile(const QString& path, const QString& password);

/// Checks the source and copies it, without unused space, into a new file. Both parameters are
/// connection texts with path and password. Throws RunTimeError; the destination is then useless.
/// IsDamage recognises the number if the source is damaged.
void CompactDatabase(const QString& source, const QString& destination);
