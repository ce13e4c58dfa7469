#include "Schema.h"

#include "Connection.h"

// Types of the columns follow from their prefixes: t text, dt date-time (REAL days since 30
// December 1899), w byte, i 16 bits, l 32 bits. No ID is used twice, so IDs keep the order in which
// rows were stored.
//
// The indexes: the tour report asks for one reader and a range of time, other reports only for a
// range of time. A touch is looked up by its code, the parts of a group or tour by their parent.
void CreateTables(Connection& connection) {
    static const char* const statements[] = {
        "CREATE TABLE tblOperators (LoginName TEXT, Password TEXT)",
        "CREATE TABLE tblListItems (ID autoincrement, wType INTEGER, tName TEXT, tDesc TEXT)",
        "CREATE TABLE tblButtons (ID autoincrement, lParentID INTEGER, tButtonCode TEXT, "
        "tButtonName TEXT, tButtonDesc TEXT)",
        "CREATE TABLE tblReaders (tReaderId TEXT, tDescription TEXT)",
        "CREATE TABLE tblTours (ID autoincrement, tName TEXT, tDesc TEXT, iTolerance INTEGER, "
        "dtStartTime REAL)",
        "CREATE TABLE tblTourPoints (ID autoincrement, lParentID INTEGER, lIndex INTEGER, "
        "dtTime REAL, tButtonCode TEXT)",
        "CREATE TABLE tblEvents (ID autoincrement, dtDLDateTime REAL, tPipeID TEXT, "
        "dtDateTime REAL, tButtonCode TEXT, tButtonName TEXT, tButtonDesc TEXT, "
        "wGroupType INTEGER, tGroupName TEXT, tGroupDesc TEXT)",
        "CREATE INDEX idxButtonCode ON tblButtons (tButtonCode)",
        "CREATE INDEX idxButtonParent ON tblButtons (lParentID)",
        "CREATE INDEX idxPointParent ON tblTourPoints (lParentID, lIndex)",
        "CREATE INDEX idxEventReader ON tblEvents (tPipeID, dtDateTime)",
        "CREATE INDEX idxEventTime ON tblEvents (dtDateTime)",
    };
    Transaction transaction(connection);
    for (const char* statement : statements)
        connection.Execute(QString::fromUtf8(statement));
    transaction.Commit();
}
