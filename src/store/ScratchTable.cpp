#include "ScratchTable.h"

#include "Rows.h"
#include "TableExists.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"

#include <optional>
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
    // On a full disk, a leftover table cannot be dropped, and no new one be made in its place.
    Trapped([&] { Drop(name); }, PassOnIfMemoryHelps);
    Create(name, QStringLiteral(" (") + columns.join(QStringLiteral(" VARCHAR NULL, ")) +
                     QStringLiteral(" VARCHAR NULL)"));
}

void DropScratchTable(const QString& name) {
    IgnoringErrors([&] { Drop(name); });
}

bool EmptyScratchTable(const QString& name, const std::function<bool()>& goOn) {
    constexpr qint64 rowsInStep = 20'000;
    if (g_inMemory || !TableExists(name))
        return true;
    const qint64 last =
        Rows(QStringLiteral("SELECT MAX(rowid) FROM %1").arg(name)).FieldAt(0).Number();
    for (qint64 row = rowsInStep; row < last; row += rowsInStep) {
        gConn->Execute(QStringLiteral("DELETE FROM %1 WHERE rowid <= ?").arg(name), {row});
        if (!goOn())
            return false;
    }
    return true;
}

bool FillScratchTable(const QString& name, const std::function<bool()>& make, Recordset& rows,
                      const std::function<bool()>& fill) {
    if (rows.State() == adStateOpen)
        rows.Close(); // on the table of a run that failed
    Transaction transaction(*gConn);
    if (!make())
        return false;
    rows.CursorLocation = adUseClient;
    rows.Open(QStringLiteral("SELECT * FROM ") + name, *gConn);
    if (!fill()) {
        rows.Close();
        return false;
    }
    rows.MoveFirst(); // writes the row that is still pending
    transaction.Commit();
    return true;
}

bool FillScratchTable(const QString& name, const QStringList& columns, Recordset& rows,
                      const std::function<bool()>& fill) {
    const auto make = [&] {
        MakeScratchTable(name, columns);
        return true;
    };
    return FillScratchTable(name, make, rows, fill);
}

void WithScratchTables(const std::function<bool()>& fill, const std::function<void()>& show) {
    std::optional<TablesInMemory> inMemory;
    bool filled = false;
    try {
        filled = fill();
    } catch (const RunTimeError& error) {
        if (!MemoryHelps(error))
            throw;
        inMemory.emplace();
        filled = fill();
    }
    if (filled)
        show();
}

void PassOnIfMemoryHelps(const RunTimeError& error) {
    if (MemoryHelps(error))
        throw error;
}

bool InitRptTmp() {
    return GuardedInScratch("InitRptTmp of Form frmRptHardwareListParam", [] {
        const bool there =
            g_inMemory ? g_memoryTables.contains(ReportTemp) : TableExists(ReportTemp);
        if (!there && !CreateTblReportTemp(ReportTemp))
            return false;
        gConn->Execute(QStringLiteral("DELETE FROM tblReportTemp"));
        return true;
    });
}

bool CreateTblReportTemp(const QString& name) {
    return GuardedInScratch("CreateTblReportTemp of Form frmRptHardwareListParam", [&] {
        Create(name, QStringLiteral("( ID autoincrement, Field0 memo, Field1 memo, Field2 memo, "
                                    "Field3 memo, Field4 memo, Field5 memo, Field6 memo, "
                                    "Field7 memo, Field8 memo, Field9 memo )"));
        return true;
    });
}
