#include "Schema.h"

#include "Connection.h"
#include "StoreTables.h"

void CreateTables(Connection& connection) {
    // The tour report asks for one reader and a range of time, other reports only for a range of
    // time. A touch is looked up by its code, the parts of a group or tour by their parent.
    static const char* const indexes[] = {
        "CREATE INDEX idxButtonCode ON tblButtons (tButtonCode)",
        "CREATE INDEX idxButtonParent ON tblButtons (lParentID)",
        "CREATE INDEX idxPointParent ON tblTourPoints (lParentID, lIndex)",
        "CREATE INDEX idxEventReader ON tblEvents (tPipeID, dtDateTime)",
        "CREATE INDEX idxEventTime ON tblEvents (dtDateTime)",
    };
    Transaction transaction(connection);
    for (const StoreTable& table : StoreTables)
        connection.Execute(QStringLiteral("CREATE TABLE %1 (%2)")
                               .arg(QLatin1String(table.name), QLatin1String(table.columns)));
    for (const char* statement : indexes)
        connection.Execute(QString::fromUtf8(statement));
    transaction.Commit();
}
