#pragma once

#include "ObjectState.h"
#include "Value.h"

#include <QHash>
#include <QString>

#include <memory>

class Engine;
class Recordset;

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
    /// "Data Source=" and the path, and other parts split by ";" as a connection text has them. A
    /// value that holds a ";" stands in double quotes (ConnectionValue).
    QString ConnectionString;
    int Mode = 0;
    /// "Jet OLEDB:Database Password" is the one that is used.
    QString& Properties(const QString& name) { return m_properties[name.toLower()]; }

    /// Opens the store, which must be there, be an encrypted store file and open with the
    /// password. A transaction that a dying process left half done is rolled back here, unless its
    /// journal belongs to another file (ForeignJournal). `connectionString`, where not empty,
    /// replaces the property.
    void Open(const QString& connectionString = {});
    /// Recordsets that are still open keep the file and its lock until they are closed.
    void Close();
    ObjectState State() const { return m_engine ? adStateOpen : adStateClosed; }

    /// A journal beside the store that did not belong to it, such as one that a killed program left
    /// before somebody put a backup in the store's place. Open has moved it to this path; empty
    /// where there was none.
    const QString& ForeignJournal() const { return m_foreignJournal; }

    /// Runs one statement of the store's dialect, with a value for each "?" in it, and gives the
    /// number of rows it changed.
    int Execute(const QString& statement, const Values& values = {});

    /// The first fault that the engine's own check of the store finds; empty for a sound one. Reads
    /// the whole store.
    QString QuickCheck() const;

    /// A transaction is on disk when CommitTrans returns. They do not nest.
    void BeginTrans();
    void CommitTrans();
    void RollbackTrans();
    /// False also after the engine has rolled a transaction back by itself, as on a full disk.
    bool InTransaction() const;

    /// The names of the tables, one row each, in the column "TABLE_NAME", and "TABLE_TYPE".
    std::unique_ptr<Recordset> OpenSchema();

    /// For the platform's own use; null while the connection is closed.
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

/// A value as it stands in a connection text.
QString ConnectionValue(const QString& value);

/// Makes a new, empty store file with this password. Throws RunTimeError if the file exists.
void CreateStoreFile(const QString& path, const QString& password);

/// Checks the store that the first connection text names, and copies it without its waste into a
/// new file that the second names; both texts carry path and password. Throws RunTimeError, whose
/// number IsDamage knows if the source is not sound; the destination is then to be thrown away.
void CompactDatabase(const QString& source, const QString& destination);
