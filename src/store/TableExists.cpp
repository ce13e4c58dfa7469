#include "TableExists.h"

#include "Rows.h"

namespace {

QStringList NamesOf(Connection& store, QStringView type) {
    QStringList names;
    const auto tables = store.OpenSchema();
    for (; !tables->Eof(); tables->MoveNext()) {
        const QString name = tables->Text(u"TABLE_NAME");
        if (tables->Text(u"TABLE_TYPE") == type && !name.startsWith(u"sqlite_"))
            names += name;
    }
    return names;
}

} // namespace

QStringList TablesOf(Connection& store) { return NamesOf(store, u"table"); }

QStringList ViewsOf(Connection& store) { return NamesOf(store, u"view"); }

int CountRows(const QString& table, Connection& store) {
    const QString name = QString(table).replace(u'"', QStringLiteral("\"\""));
    return CountOf(QStringLiteral("FROM \"%1\" ;").arg(name), {}, store);
}

bool TableExists(const QString& name) { return TablesOf(*gConn).contains(name); }
