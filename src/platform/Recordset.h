#pragma once

#include "Engine.h"
#include "ObjectState.h"
#include "RowSource.h"
#include "RowStore.h"
#include "SqlTranslator.h"
#include "Value.h"

#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

class Connection;

enum CursorLocationKind { adUseServer = 2, adUseClient = 3 };
enum CursorType { adOpenForwardOnly = 0, adOpenStatic = 3 };
enum LockType { adLockReadOnly = 1, adLockOptimistic = 3 };
/// Whether the source is a statement or the name of a table.
enum CommandType { adCmdText = 1, adCmdTable = 2 };

/// The rows of one query.
///
/// A client cursor fetches the whole result into memory when it opens, so RecordCount is exact. A
/// server cursor fetches the rows one by one, forward only, and RecordCount is unknown.
///
/// Rows can be added and changed if the statement reads from one table and the lock is not read
/// only. AddNew begins a row, assignments fill it, and Update writes it. A pending row is also
/// written by the next AddNew and by moving. Closing discards it.
///
/// Everything that fails throws RunTimeError.
class Recordset : public RowSource {
public:
    Recordset();
    ~Recordset() override;
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;

    CursorLocationKind CursorLocation = adUseServer;
    /// If set, called for each row that a client cursor fetches. False ends the fetching: the
    /// recordset is open with the rows that it has so far.
    std::function<bool()> OnFetch;

    /// `values` replace the "?" in the source, in order. No value from the operator or the store
    /// may become part of the source itself.
    void Open(const QString& source, const Values& values, Connection& connection,
              CursorType cursor = adOpenStatic, LockType lock = adLockOptimistic,
              CommandType command = adCmdText);
    void Open(const QString& source, Connection& connection, CursorType cursor = adOpenStatic,
              LockType lock = adLockOptimistic, CommandType command = adCmdText) {
        Open(source, {}, connection, cursor, lock, command);
    }
    void Close();
    ObjectState State() const;

    /// -1 with a server cursor.
    int RecordCount();
    bool Eof();
    void MoveFirst();
    void MoveNext();

    /// The value in the current row, or in the pending row while one is being added.
    Value Fields(QStringView name) { return FieldAt(Column(name)); }
    Value FieldAt(int column);
    QString Text(QStringView name) { return Fields(name).Text(); }
    qint64 Number(QStringView name) { return Fields(name).Number(); }
    DateTime Date(QStringView name) { return Fields(name).Date(); }

    void AddNew();
    /// Sets a column of the pending row or, if there is none, of the current row.
    void Set(QStringView name, Value value);
    /// Writes the pending row. A new row gets its automatic ID here. The written row becomes the
    /// current one; a server cursor stays where it was.
    void Update();

    /// The memory that the values take, for the benchmarks.
    std::size_t MemoryBytes() const { return m_rows.MemoryBytes(); }

    qsizetype RowCount() const override;
    const QStringList& Columns() const override { return m_columns; }
    Value ValueAt(qsizetype row, int column) const override { return m_rows.At(row, column); }

private:
    enum class Edit { None, Changing, Adding };

    void RequireOpen() const;
    void RequireRow();
    void FetchAll();
    bool FetchOne();
    void WritePending();
    qint64 WriteRow();
    Statement& Writer();
    void AppendAssigned(std::size_t place);

    std::shared_ptr<Engine> m_engine; ///< null while the recordset is closed
    EngineSql m_sql;
    bool m_writable = false;
    Statement m_reader;
    bool m_server = false;
    bool m_serverRow = false;
    bool m_serverStarted = false;
    QStringList m_columns;
    RowStore m_rows;
    qsizetype m_current = 0;

    Edit m_edit = Edit::None;
    std::vector<Value> m_pending;
    std::vector<bool> m_assigned;
    std::vector<int> m_assignedColumns;      ///< those of m_assigned, while a row is written,
    std::vector<QByteArray> m_assignedTexts; ///< and their texts in UTF-8; null for other values
    std::vector<int> m_writerColumns;
    Edit m_writerKind = Edit::None;
    Statement m_writer;
};
