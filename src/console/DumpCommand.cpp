#include "Command.h"
#include "CommandOptions.h"
#include "ConsoleTools.h"
#include "OutputFile.h"
#include "StoreDump.h"

#include <csignal>

namespace {

volatile std::sig_atomic_t g_interrupted = 0;

struct DumpOptions {
    QString table;
    QString query;
    QString path;
};

void Dump(const DumpOptions& what, const TakeText& take) {
    const auto store = OpenForReading();
    // Ctrl+C ends the statement, so that no half-written file is left.
    std::signal(SIGINT, [](int) { g_interrupted = 1; });
    const Supervision supervision(*store, [] { return g_interrupted == 0; });
    if (what.table == u"schema") {
        WriteSchema(*store, SchemaTitle, take);
        return;
    }
    const QString statement =
        what.query.isEmpty() ? StatementForTable(what.table, *store) : what.query;
    Recordset rows;
    OpenReading(rows, statement, *store);
    WriteRecordSet(rows, TitleForQuery(statement), take);
}

} // namespace

Command DumpCommand() {
    return {QStringLiteral("dump"), QStringLiteral("writes a table or a query as text"),
            QStringLiteral("tblTours"), Access::MasterOnly, [](CLI::App& options) {
                const auto what = std::make_shared<DumpOptions>();
                AddWordOrOption(options, "TABLE", what->table,
                                "a table, or \"schema\" for the names of all tables", "--query",
                                "SQL", what->query, "an SQL statement that reads");
                AddOutput(options, what->path);
                return [what](const ConsoleBoxes&) {
                    if (what->path.isEmpty()) {
                        Dump(*what, [](const QByteArray& text) { WriteOut(text); });
                        return true;
                    }
                    OutputFile file(what->path);
                    Dump(*what, [&](const QByteArray& text) { file.Write(text); });
                    file.Commit();
                    return true;
                };
            }};
}
