#include "Recordset.h"

#include "Connection.h"
#include "RunTimeError.h"

#include <sqlcipher/sqlite3.h>

namespace {

Value ColumnValue(sqlite3_stmt* statement, int column) {
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
        return Value(qint64{sqlite3_column_int64(statement, column)});
    case SQLITE_FLOAT:
        return Value(sqlite3_column_double(statement, column));
    case SQLITE_NULL:
        return {};
    default: {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
        return Value(QString::fromUtf8(text, sqlite3_column_bytes(statement, column)));
    }
    }
}

void AppendColumn(RowStore& rows, sqlite3_stmt* statement, int column) {
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
        rows.AppendNumber(sqlite3_column_int64(statement, column));
        break;
    case SQLITE_FLOAT:
        rows.AppendReal(sqlite3_column_double(statement, column));
        break;
    case SQLITE_NULL:
        rows.AppendNull();
        break;
    default: {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
        rows.AppendText(text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column)));
    }
    }
}

} // namespace

Recordset::Recordset() = default;

Recordset::~Recordset() = default;

ObjectState Recordset::State() const { return m_engine ? adStateOpen : adStateClosed; }

void Recordset::RequireOpen() const {
    if (!m_engine)
        throw RunTimeError(RunTimeErrorNumber::ObjectClosed,
                           QStringLiteral("Operation is not allowed when the object is closed."));
}

void Recordset::Open(const QString& source, const Values& values, Connection& connection,
                     CursorType cursor, LockType lock, CommandType command) {
    if (m_engine)
        throw RunTimeError(RunTimeErrorNumber::ObjectOpen,
                           QStringLiteral("Operation is not allowed when the object is open."));
    if (connection.State() != adStateOpen)
        throw RunTimeError(RunTimeErrorNumber::ObjectClosed,
                           QStringLiteral("Operation is not allowed when the object is closed."));
    const QString statement =
        command == adCmdTable ? QStringLiteral("SELECT * FROM %1").arg(source) : source;
    m_sql = TranslateSql(statement, lock != adLockReadOnly);
    m_writable = m_sql.hasRowKey;
    m_server = cursor == adOpenForwardOnly && CursorLocation == adUseServer;
    m_serverStarted = false;
    m_current = 0;
    m_edit = Edit::None;
    m_rows.Clear();
    m_engine = connection.OpenEngine();
    try {
        m_reader = Statement(m_engine, m_sql.text);
        m_reader.Bind(values);
        m_columns.clear();
        const int count = sqlite3_column_count(m_reader.Handle()) - (m_sql.hasRowKey ? 1 : 0);
        for (int column = 0; column < count; ++column)
            m_columns += QString::fromUtf8(sqlite3_column_name(m_reader.Handle(), column));
        if (!m_server)
            FetchAll();
    } catch (...) {
        Close();
        throw;
    }
}

void Recordset::Close() {
    m_reader = {};
    m_writer = {};
    m_engine.reset();
    m_writerKind = Edit::None;
    m_rows.Clear();
    m_edit = Edit::None;
}

void Recordset::FetchAll() {
    const int count = sqlite3_column_count(m_reader.Handle());
    while (m_reader.Step()) {
        m_rows.BeginRow();
        for (int column = 0; column < count; ++column)
            AppendColumn(m_rows, m_reader.Handle(), column);
        m_rows.EndRow();
        if (OnFetch && !OnFetch())
            break;
    }
    m_reader = {};
}

bool Recordset::FetchOne() {
    m_serverStarted = true;
    m_serverRow = m_reader.Step();
    return m_serverRow;
}

int Recordset::RecordCount() {
    RequireOpen();
    WritePending();
    return m_server ? -1 : static_cast<int>(m_rows.Count());
}

bool Recordset::Eof() {
    RequireOpen();
    if (m_edit == Edit::Adding)
        return false;
    if (!m_server)
        return m_current >= m_rows.Count();
    return m_serverStarted ? !m_serverRow : !FetchOne();
}

void Recordset::MoveFirst() {
    RequireOpen();
    WritePending();
    m_current = 0;
    if (m_server) {
        m_reader.Reset();
        FetchOne();
    }
}

void Recordset::MoveNext() {
    RequireRow();
    WritePending();
    if (m_server)
        FetchOne();
    else
        ++m_current;
}

void Recordset::RequireRow() {
    if (Eof())
        throw RunTimeError(RunTimeErrorNumber::AtBeginOrEnd,
                           QStringLiteral("Either BOF or EOF is True, or the current record has "
                                          "been deleted. Requested operation requires a current "
                                          "record."));
}

Value Recordset::FieldAt(int column) {
    RequireRow();
    const auto index = static_cast<std::size_t>(column);
    if (m_edit == Edit::Adding || (m_edit == Edit::Changing && m_assigned[index]))
        return m_pending[index];
    return m_server ? ColumnValue(m_reader.Handle(), column) : m_rows.At(m_current, column);
}

void Recordset::AddNew() {
    RequireOpen();
    if (!m_writable)
        throw RunTimeError(RunTimeErrorNumber::InvalidPropertyValue,
                           QStringLiteral("Current Recordset does not support updating."));
    WritePending();
    m_edit = Edit::Adding;
    m_pending.assign(static_cast<std::size_t>(m_columns.size()), Value());
    m_assigned.assign(static_cast<std::size_t>(m_columns.size()), false);
}

void Recordset::Set(QStringView name, Value value) {
    const int column = Column(name);
    RequireRow();
    if (m_edit == Edit::None) {
        if (!m_writable || m_server)
            throw RunTimeError(RunTimeErrorNumber::InvalidPropertyValue,
                               QStringLiteral("Current Recordset does not support updating."));
        m_edit = Edit::Changing;
        m_pending.assign(static_cast<std::size_t>(m_columns.size()), Value());
        m_assigned.assign(static_cast<std::size_t>(m_columns.size()), false);
    }
    m_pending[static_cast<std::size_t>(column)] = std::move(value);
    m_assigned[static_cast<std::size_t>(column)] = true;
}

void Recordset::Update() {
    RequireOpen();
    WritePending();
}

/// The statement that writes the assigned columns.
Statement& Recordset::Writer() {
    if (m_writer && m_writerKind == m_edit && m_writerColumns == m_assignedColumns)
        return m_writer;
    QStringList names;
    for (const int column : m_assignedColumns)
        names += m_columns[column];
    QString sql;
    if (m_edit == Edit::Changing) {
        sql = QStringLiteral("UPDATE %1 SET %2 = ? WHERE rowid = ?")
                  .arg(m_sql.table, names.join(QStringLiteral(" = ?, ")));
    } else if (names.isEmpty()) {
        sql = QStringLiteral("INSERT INTO %1 DEFAULT VALUES").arg(m_sql.table);
    } else {
        const QString marks = QStringLiteral("?, ").repeated(names.size()).chopped(2);
        sql = QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                  .arg(m_sql.table, names.join(QStringLiteral(", ")), marks);
    }
    m_writer = Statement(m_engine, sql.toUtf8());
    m_writerKind = m_edit;
    m_writerColumns = m_assignedColumns;
    return m_writer;
}

/// Gives the key of the written row.
qint64 Recordset::WriteRow() {
    m_assignedColumns.clear();
    m_assignedTexts.clear();
    for (int column = 0; column < m_columns.size(); ++column) {
        const auto index = static_cast<std::size_t>(column);
        if (!m_assigned[index])
            continue;
        const auto* text = std::get_if<QString>(&m_pending[index].Data());
        m_assignedColumns.push_back(column);
        m_assignedTexts.push_back(text ? text->toUtf8() : QByteArray());
    }
    const int keyColumn = static_cast<int>(m_columns.size());
    const qint64 changedKey =
        m_edit == Edit::Changing ? m_rows.At(m_current, keyColumn).Number() : 0;
    Statement& writer = Writer();
    int position = 0;
    for (const int column : m_assignedColumns) {
        const Value& value = m_pending[static_cast<std::size_t>(column)];
        const QByteArray& text = m_assignedTexts[static_cast<std::size_t>(position++)];
        if (std::holds_alternative<QString>(value.Data()))
            writer.BindText(position, text);
        else
            writer.Bind(position, value);
    }
    if (m_edit == Edit::Changing)
        writer.Bind(++position, changedKey);
    writer.Run();
    return m_edit == Edit::Changing ? changedKey : sqlite3_last_insert_rowid(m_engine->Handle());
}

/// Keeps the assigned value with this place among the assigned columns.
void Recordset::AppendAssigned(std::size_t place) {
    const Value& value = m_pending[static_cast<std::size_t>(m_assignedColumns[place])];
    const QByteArray& text = m_assignedTexts[place];
    if (std::holds_alternative<QString>(value.Data()))
        m_rows.AppendText(text.constData(), static_cast<std::size_t>(text.size()));
    else
        m_rows.AppendValue(value);
}

void Recordset::WritePending() {
    if (m_edit == Edit::None)
        return;
    qint64 key = 0;
    try {
        key = WriteRow();
    } catch (...) {
        m_edit = Edit::None; // do not try to write this row again
        throw;
    }
    const Edit written = m_edit;
    m_edit = Edit::None;
    if (m_server)
        return;
    m_rows.BeginRow();
    std::size_t place = 0;
    for (int column = 0; column < m_columns.size(); ++column) {
        if (m_assigned[static_cast<std::size_t>(column)])
            AppendAssigned(place++);
        else if (written == Edit::Changing)
            m_rows.AppendValue(m_rows.At(m_current, column));
        else if (m_columns[column].compare(u"ID", Qt::CaseInsensitive) == 0)
            m_rows.AppendNumber(key);
        else
            m_rows.AppendNull();
    }
    m_rows.AppendNumber(key);
    m_rows.EndRow();
    if (written == Edit::Changing)
        m_rows.MoveLastTo(m_current);
    else
        m_current = m_rows.Count() - 1;
}

qsizetype Recordset::RowCount() const { return m_rows.Count(); }
