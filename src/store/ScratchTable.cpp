#include "ScratchTable.h"

#include "TableExists.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"

namespace {

bool g_inMemory = false;

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

} // namespace

void MakeScratchTable(const QString& name, const QStringList& columns) {
    // A leftover table that a full disk does not let us drop would be in the way of the new one.
    Trapped([&] { Drop(name); }, PassOnIfMemoryHelps);
    gConn->Execute(
        (g_inMemory ? QStringLiteral("CREATE TEMP TABLE ") : QStringLiteral("CREATE TABLE ")) +
        name + QStringLiteral(" (") + columns.join(QStringLiteral(" VARCHAR NULL, ")) +
        QStringLiteral(" VARCHAR NULL)"));
}

void DropScratchTable(const QString& name) {
    IgnoringErrors([&] { Drop(name); });
}

void WithScratchTables(const std::function<void()>& build) {
    g_inMemory = false;
    try {
        build();
    } catch (const RunTimeError& error) {
        if (!MemoryHelps(error))
            throw;
        g_inMemory = true;
        build();
    }
}

void PassOnIfMemoryHelps(const RunTimeError& error) {
    if (MemoryHelps(error))
        throw error;
}

bool InitRptTmp() {
    return Guarded("InitRptTmp of Form frmRptHardwareListParam", [] {
        const QString table = QStringLiteral("tblReportTemp");
        if (!TableExists(table) && !CreateTblReportTemp(table))
            return false;
        gConn->Execute(QStringLiteral("DELETE FROM tblReportTemp"));
        return true;
    });
}

bool CreateTblReportTemp(const QString& name) {
    return Guarded("CreateTblReportTemp of Form frmRptHardwareListParam", [&] {
        gConn->Execute(QStringLiteral("CREATE TABLE ") + name +
                       QStringLiteral("( ID autoincrement, Field0 memo, Field1 memo, Field2 memo, "
                                      "Field3 memo, Field4 memo, Field5 memo, Field6 memo, "
                                      "Field7 memo, Field8 memo, Field9 memo )"));
        return true;
    });
}
