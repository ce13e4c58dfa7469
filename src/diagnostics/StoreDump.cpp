#include "StoreDump.h"

#include "FieldTypes.h"
#include "Format.h"
#include "RunTimeError.h"
#include "SqlTranslator.h"
#include "TableExists.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mStore.h"

#include <QRegularExpression>

namespace {

constexpr qsizetype PieceBytes = qsizetype{64} * 1024;
constexpr int SchemaRuler = 41;

/// Days of the years 100 to 9999, which can be written as dates.
constexpr double FirstDay = -657'434, LastDay = 2'958'466;

struct Column {
    QString name;
    DataType type;
    qsizetype width;
};

std::vector<Column> ColumnsOf(Recordset& rows) {
    std::vector<Column> columns;
    int index = 0;
    for (const QString& name : rows.Columns()) {
        const DataType type = FieldType(name, rows.FieldAt(index++));
        const qsizetype width =
            std::max({name.size(), FieldTypeName(type).size(), qsizetype{DefinedSize(type)}});
        columns.push_back({WithoutControls(name, u' '), type, width});
    }
    return columns;
}

QString CellText(const Value& value, DataType type) {
    const bool isText = std::holds_alternative<QString>(value.Data());
    if (type == adDate && !isText && !value.IsNull() && value.Real() >= FirstDay &&
        value.Real() < LastDay)
        return DefaultDateTimeText(value.Date());
    return isText ? WithoutControls(value.Text(), u' ') : value.Text();
}

/// Collects lines and passes them on in large pieces.
class Lines {
public:
    explicit Lines(const TakeText& take) : m_take(take) {}

    void Add(const QString& line) {
        m_piece += line.toUtf8();
        m_piece += '\n';
        if (m_piece.size() >= PieceBytes)
            Flush();
    }
    void Flush() { m_take(std::exchange(m_piece, {})); }

private:
    const TakeText& m_take;
    QByteArray m_piece;
};

template <typename Cell>
QString RowLine(const std::vector<Column>& columns, const Cell& cell) {
    QString line;
    int index = 0;
    for (const Column& column : columns) {
        line += QStringLiteral("| ");
        line += cell(column, index++).leftJustified(column.width + 1);
    }
    return line + u'|';
}

QString RulerLine(const std::vector<Column>& columns) {
    QString line;
    for (const Column& column : columns)
        line += u'+' + QString(column.width + 2, u'-');
    return line;
}

void AddRows(Recordset& rows, Lines& lines) {
    const std::vector<Column> columns = ColumnsOf(rows);
    const QString ruler = RulerLine(columns);
    lines.Add(ruler);
    lines.Add(RowLine(columns, [](const Column& column, int) { return column.name; }));
    lines.Add(
        RowLine(columns, [](const Column& column, int) { return FieldTypeName(column.type); }));
    lines.Add(ruler);
    for (; !rows.Eof(); rows.MoveNext())
        lines.Add(RowLine(columns, [&](const Column& column, int index) {
            return CellText(rows.FieldAt(index), column.type);
        }));
    lines.Add(ruler);
}

void AddNames(const char* heading, const QStringList& names, Lines& lines) {
    lines.Add(QString(SchemaRuler, u'-'));
    lines.Add(QString::fromLatin1(heading));
    for (const QString& name : names)
        lines.Add(u'\t' + WithoutControls(name, u' '));
}

[[noreturn]] void Refuse(const QString& why) {
    throw RunTimeError(RunTimeErrorNumber::InvalidPropertyValue, why);
}

} // namespace

std::unique_ptr<Connection> OpenForReading() {
    auto store = std::make_unique<Connection>();
    store->Mode = adModeRead;
    store->Open(ConnectionText(gDatabasePath, StorePassword));
    // Without this table a damaged store can still be dumped.
    IgnoringErrors([&] {
        store->Execute(QStringLiteral("CREATE TEMP TABLE tblOperators AS SELECT LoginName, "
                                      "'••••••••' AS Password FROM main.tblOperators"));
    });
    store->OnlyRead(QStringLiteral("tblOperators"));
    return store;
}

void OpenReading(Recordset& rows, const QString& statement, Connection& store) {
    static const QRegularExpression quoted(QStringLiteral("'[^']*'|\"[^\"]*\""));
    static const QRegularExpression mainSchema(QStringLiteral("\\bmain\\W?\\s*\\."),
                                               QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression comment(QStringLiteral("--|/\\*"));
    if (QString(statement).remove(u';').trimmed().isEmpty())
        Refuse(QStringLiteral("There is no statement."));
    if (QString(statement).remove(quoted).contains(comment))
        Refuse(QStringLiteral("The statement may not contain comments."));
    // As the engine gets it. A text that merely looks like the schema's name is refused too.
    if (QString::fromUtf8(TranslateSql(statement).text).contains(mainSchema))
        Refuse(QStringLiteral("The statement may not name the schema \"main\"."));
    rows.Open(statement, store, adOpenForwardOnly, adLockReadOnly);
}

QString StatementForTable(const QString& table, Connection& store) {
    static const QRegularExpression plain(QStringLiteral("^\\w+$"));
    for (QString name : TablesOf(store) + ViewsOf(store)) {
        if (name.compare(table, Qt::CaseInsensitive) != 0)
            continue;
        if (!plain.match(name).hasMatch())
            name = u'"' + name.replace(u'"', QStringLiteral("\"\"")) + u'"';
        return QStringLiteral("SELECT *  FROM ") + name + u';';
    }
    Refuse(QStringLiteral("There is no table \"%1\".").arg(table));
}

QString TitleForQuery(const QString& statement) {
    return QStringLiteral("Report for query '") + statement + u'\'';
}

void WriteRecordSet(Recordset& rows, const QString& title, const TakeText& take) {
    Lines lines(take);
    lines.Add(WithoutControls(title, u' '));
    lines.Add({});
    if (rows.Eof())
        lines.Add(QStringLiteral("No records in this table"));
    else
        AddRows(rows, lines);
    lines.Flush();
}

void WriteSchema(Connection& store, const QString& title, const TakeText& take) {
    Lines lines(take);
    lines.Add(WithoutControls(title, u' '));
    lines.Add({});
    AddNames("Tables", TablesOf(store), lines);
    lines.Add({});
    AddNames("Views", ViewsOf(store), lines);
    lines.Flush();
}
