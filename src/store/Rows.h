#pragma once

#include "Recordset.h"
#include "mDeclareGlobals.h"

/// The rows of a statement on gConn: all of them in memory, to be read, changed and added to.
/// Throws RunTimeError.
class Rows : public Recordset {
public:
    /// `onFetch`: see Recordset::OnFetch.
    explicit Rows(const QString& statement, const Values& values = {},
                  std::function<bool()> onFetch = {}) {
        CursorLocation = adUseClient;
        OnFetch = std::move(onFetch);
        Open(statement, values, *gConn);
    }
    bool Any() { return RecordCount() > 0; }
    int Id() { return static_cast<int>(Number(u"ID")); }
};

/// For adding to a table. It fetches no row, so adding takes no longer when the table is large.
class NewRows : public Rows {
public:
    explicit NewRows(const char* table)
        : Rows(QStringLiteral("SELECT * FROM %1 WHERE 1 = 0 ;").arg(QLatin1String(table))) {}
};

/// How many rows a statement gives; `source` is its "FROM ... WHERE ...".
inline int CountOf(const QString& source, const Values& values, Connection& connection = *gConn) {
    Recordset count;
    count.CursorLocation = adUseClient;
    count.Open(QStringLiteral("SELECT COUNT(*) ") + source, values, connection);
    return static_cast<int>(count.FieldAt(0).Number());
}
