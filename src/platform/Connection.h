#pragma once

#include "ObjectState.h"

#include <QHash>
#include <QString>

#include <memory>

struct sqlite3;
class Recordset;
class StoreLock;

/// One connection to a password-protected store file. While it is open, a lock file beside the
/// store (the same name, ending in ".ldb") keeps other processes out; several connections of one
/// process share it. Everything that fails throws RunTimeError.
class Connection {
public:
    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Kept for the caller; there is one provider.
    QString Provider;
    /// "Data Source=" and the path, and other parts split by ";" as a connection text has them.
    QString ConnectionString;
    int Mode = 0;
    /// "Jet OLEDB:Database Password" is the one that is used.
    QString& Properties(const QString& name) { return m_properties[name.toLower()]; }

    /// Opens the store, which must be there, be an encrypted store file and open with the
    /// password. A transaction that a dying process left half done is rolled back here.
    /// `connectionString`, where not empty, replaces the property.
    void Open(const QString& connectionString = {});
    void Close();
    ObjectState State() const { return m_database ? adStateOpen : adStateClosed; }

    /// Runs one statement of the store's dialect and gives the number of rows it changed.
    int Execute(const QString& statement);

    /// A transaction is on disk when CommitTrans returns. They do not nest.
    void BeginTrans();
    void CommitTrans();
    void RollbackTrans();

    /// The names of the tables, one row each, in the column "TABLE_NAME", and "TABLE_TYPE".
    std::unique_ptr<Recordset> OpenSchema();

    /// The engine's handle, for the platform's own use.
    sqlite3* Handle() const { return m_database; }
    /// Throws RunTimeError with the engine's present error.
    [[noreturn]] void ThrowEngineError() const;

private:
    QHash<QString, QString> m_properties;
    std::unique_ptr<StoreLock> m_lock;
    sqlite3* m_database = nullptr;
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

/// Makes a new, empty store file with this password. Throws RunTimeError if the file exists.
void CreateStoreFile(const QString& path, const QString& password);

/// Copies the store that the first connection text names, without its waste, into a new file that
/// the second names; both texts carry path and password. The source must be complete and sound;
/// otherwise this throws RunTimeError and the destination is to be thrown away.
void CompactDatabase(const QString& source, const QString& destination);
