#include "ScratchTable.h"

#include "Recordset.h"
#include "TableExists.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"

#include <utility>

namespace {

/// Whether tables are made in memory now, and those that were.
bool g_inMemory = false;
QStringList g_memoryTables;

bool MemoryHelps(const RunTimeError& error) {
    constexpr int inputOutput = 10, full = 13, cannotOpen = 14; // the engine's codes
    const int code = error.Number() - RunTimeErrorNumber::StoreEngine;
    return !g_inMemory && (code == inputOutput || code == full || code == cannotOpen);
}

/// While tables are made in memory, the store may have one of the same name. It is left alone.
void Drop(const QString& name) {
    gConn->Execute(
        (g_inMemory ? QStringLiteral("DROP TABLE temp.%1 ;") : QStringLiteral("DROP TABLE %1 ;"))
            .arg(name));
}

void Create(const QString& name, const QString& columns) {
    gConn->Execute(
        (g_inMemory ? QStringLiteral("CREATE TEMP TABLE ") : QStringLiteral("CREATE TABLE ")) +
        name + columns);
    if (g_inMemory && !g_memoryTables.contains(name))
        g_memoryTables += name;
}

/// While it exists, tables are made in memory. A table in memory would hide the store's own, so all
/// of them are dropped at the end.
class TablesInMemory {
public:
    TablesInMemory() { g_inMemory = true; }
    ~TablesInMemory() {
        for (const QString& name : std::exchange(g_memoryTables, {}))
            DropScratchTable(name);
        g_inMemory = false;
    }
    TablesInMemory(const TablesInMemory&) = delete;
    TablesInMemory& operator=(const TablesInMemory&) = delete;
};

} // namespace

void MakeScratchTable(const QString& name, const QStringList& columns) {
    // A leftover table that a full disk does not let us drop would be in the way of the new one.
    Trapped([&] { Drop(name); }, PassOnIfMemoryHelps);
    Create(name, QStringLiteral(" (") + columns.join(QStringLiteral(" VARCHAR NULL, ")) +
                     QStringLiteral(" VARCHAR NULL)"));
}

void DropScratchTable(const QString& name) {
    IgnoringErrors([&] { Drop(name); });
}

bool FillScratchTable(const QString& name, Recordset& rows, const std::function<bool()>& make,
                      const std::function<bool(Recordset& rows)>& fill) {
    Transaction transaction(*gConn);
    if (!make())
        return false;
    rows.CursorLocation = adUseClient;
    rows.Open(QStringLiteral("SELECT * FROM ") + name, *gConn);
    if (!fill(rows)) {
        rows.Close();
        return false;
    }
    rows.MoveFirst(); // writes the row that is still pending
    transaction.Commit();
    return true;
}

void WithScratchTables(const std::function<void()>& build) {
    try {
        build();
    } catch (const RunTimeError& error) {
        if (!MemoryHelps(error))
            throw;
        const TablesInMemory inMemory;
        build();
    }
}

void PassOnIfMemoryHelps(const RunTimeError& error) {
    if (MemoryHelps(error))
        throw error;
}

namespace {

/// Runs the body of a routine that reports its own failures, unless tables in memory would help.
bool ReportTempStep(const char* label, const std::function<bool()>& body) {
    return Trapped(body, [&](const RunTimeError& error) {
        PassOnIfMemoryHelps(error);
        ReportError(QString::fromUtf8(label), error, ErrorShow::LogOnly);
    });
}

} // namespace

bool InitRptTmp() {
    return ReportTempStep("InitRptTmp of Form frmRptHardwareListParam", [] {
        const bool there =
            g_inMemory ? g_memoryTables.contains(ReportTemp) : TableExists(ReportTemp);
        if (!there && !CreateTblReportTemp(ReportTemp))
            return false;
        gConn->Execute(QStringLiteral("DELETE FROM tblReportTemp"));
        return true;
    });
}

bool CreateTblReportTemp(const QString& name) {
    return ReportTempStep("CreateTblReportTemp of Form frmRptHardwareListParam", [&] {
        Create(name, QStringLiteral("( ID autoincrement, Field0 memo, Field1 memo, Field2 memo, "
                                    "Field3 memo, Field4 memo, Field5 memo, Field6 memo, "
                                    "Field7 memo, Field8 memo, Field9 memo )"));
        return true;
    });
}
