#include "StoreReports.h"

#include "OutputFile.h"
#include "RunTimeError.h"
#include "StoreDump.h"

void ReportRecordSet(Recordset& rows, const QString& file, const QString& title) {
    OutputFile output(file);
    WriteRecordSet(rows, title, [&](const QByteArray& text) { output.Write(text); });
    output.Commit();
}

void ReportSchema(Connection& connection, const QString& file, const QString& title) {
    OutputFile output(file);
    WriteSchema(connection, title, [&](const QByteArray& text) { output.Write(text); });
    output.Commit();
}

bool ArchiveEvents(const QString& sql, const QString& file, const WorkProgress& progress) {
    const auto store = OpenForReading();
    const Supervision supervision(*store, [&progress] { return progress(0, 0); });
    try {
        Recordset rows;
        OpenReading(rows, sql, *store);
        ReportRecordSet(rows, file, TitleForQuery(sql));
        return true;
    } catch (const RunTimeError& error) {
        if (error.Number() != RunTimeErrorNumber::Interrupted)
            throw;
        return false;
    }
}
