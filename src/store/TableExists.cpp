#include "TableExists.h"

#include "Recordset.h"
#include "mDeclareGlobals.h"

bool TableExists(const QString& name) {
    const auto tables = gConn->OpenSchema();
    for (; !tables->Eof(); tables->MoveNext())
        if (tables->Text(u"TABLE_NAME") == name)
            return true;
    return false;
}
