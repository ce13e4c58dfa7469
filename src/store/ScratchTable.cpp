#include "ScratchTable.h"

#include "mDeclareGlobals.h"
#include "mErrorHandler.h"

namespace {

bool g_inMemory = false;

bool MemoryHelps(const RunTimeError& error) {
    constexpr int inputOutput = 10, full = 13, cannotOpen = 14; // the engine's codes
    const int code = error.Number() - RunTimeErrorNumber::StoreEngine;
    return !g_inMemory && (code == inputOutput || code == full || code == cannotOpen);
}

/// In memory a table of the store's may bear the same name. It does no harm there.
void Drop(const QString& name) {
    gConn->Execute(
        (g_inMemory ? QStringLiteral("DROP TABLE temp.%1 ;") : QStringLiteral("DROP TABLE %1 ;"))
            .arg(name));
}

} // namespace

void MakeScratchTable(const QString& name, const QStringList& columns) {
    // If a full disk keeps one that was left over, a new one cannot be made beside it.
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
