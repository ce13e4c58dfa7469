#include "StoreCheck.h"

#include "Connection.h"
#include "Recordset.h"
#include "StoreTables.h"

namespace {

QStringList TablesOf(Connection& store) {
    QStringList names;
    const auto tables = store.OpenSchema();
    for (; !tables->Eof(); tables->MoveNext())
        if (tables->Text(u"TABLE_TYPE") == u"table")
            names += tables->Text(u"TABLE_NAME");
    return names;
}

QStringList ColumnsOf(const QString& table, Connection& store) {
    Recordset none;
    none.CursorLocation = adUseClient;
    none.Open(QStringLiteral("SELECT * FROM %1 WHERE 1 = 0 ;").arg(table), store, adOpenStatic,
              adLockReadOnly);
    return none.Columns();
}

} // namespace

QStringList MissingParts(Connection& store) {
    QStringList missing;
    const QStringList tables = TablesOf(store);
    for (const StoreTable& table : StoreTables) {
        const QString name = QString::fromLatin1(table.name);
        if (!tables.contains(name, Qt::CaseInsensitive)) {
            missing += name;
            continue;
        }
        const QStringList columns = ColumnsOf(name, store);
        for (const QString& definition :
             QString::fromLatin1(table.columns).split(QStringLiteral(", "))) {
            const QString column = definition.section(u' ', 0, 0);
            if (!columns.contains(column, Qt::CaseInsensitive))
                missing += name + u'.' + column;
        }
    }
    return missing;
}
