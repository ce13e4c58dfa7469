#pragma once

/// One of the permanent tables.
struct StoreTable {
    const char* name;
    const char* columns; ///< "name type" for each, separated by ", "
};

// Types of the columns follow from their prefixes: t text, dt date-time (REAL days since 30
// December 1899), w byte, i 16 bits, l 32 bits. No ID is used twice, so IDs keep the order in which
// rows were stored.
inline constexpr StoreTable StoreTables[] = {
    {"tblOperators", "LoginName TEXT, Password TEXT"},
    {"tblListItems", "ID autoincrement, wType INTEGER, tName TEXT, tDesc TEXT"},
    {"tblButtons", "ID autoincrement, lParentID INTEGER, tButtonCode TEXT, tButtonName TEXT, "
                   "tButtonDesc TEXT"},
    {"tblReaders", "tReaderId TEXT, tDescription TEXT"},
    {"tblTours", "ID autoincrement, tName TEXT, tDesc TEXT, iTolerance INTEGER, dtStartTime REAL"},
    {"tblTourPoints", "ID autoincrement, lParentID INTEGER, lIndex INTEGER, dtTime REAL, "
                      "tButtonCode TEXT"},
    {"tblEvents", "ID autoincrement, dtDLDateTime REAL, tPipeID TEXT, dtDateTime REAL, "
                  "tButtonCode TEXT, tButtonName TEXT, tButtonDesc TEXT, wGroupType INTEGER, "
                  "tGroupName TEXT, tGroupDesc TEXT"},
};
