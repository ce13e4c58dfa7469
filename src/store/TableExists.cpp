#include "TableExists.h"

#include "Rows.h"

QStringList TablesOf(Connection& store) {
    QStringList names;
    const auto tables = store.OpenSchema();
    for (; !tables->Eof(); tables->MoveNext()) {
        const QString name = tables->Text(u"TABLE_NAME");
        if (tables->Text(u"TABLE_TYPE") == u"table" && !name.startsWith(u"sqlite_"))
            names += name;
    }
    return names;
}

int CountRows(const QString& table, Connection& store) {
    const QString name = QString(table).replace(u'"', QStringLiteral("\"\""));
    return CountOf(QStringLiteral("FROM \"%1\" ;").arg(name), {}, store);
}

bool TableExists(const QString& name) { return TablesOf(*gConn).contains(name); }
