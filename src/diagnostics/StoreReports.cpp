#include "StoreReports.h"

#include "DiagnosticError.h"
#include "OutputFile.h"
#include "StoreDump.h"
#include "mErrorHandler.h"

#include <QDir>

namespace {

struct EndOfDump {
    DumpView& view;
    ~EndOfDump() { view.End(); }
};

void WriteAndOpen(const char* failure, const QString& path, DumpView& view,
                  const std::function<void(const TakeText&)>& write) {
    const auto body = [&] {
        const EndOfDump end{view};
        OutputFile file(path);
        write([&](const QByteArray& text) { file.Write(text); });
        file.Commit();
        return true;
    };
    const bool written = Trapped(body, [&](const RunTimeError& error) {
        if (error.Number() != RunTimeErrorNumber::Interrupted)
            ShowDiagnosticError(failure, error);
    });
    if (written && !view.OpenText(path))
        MsgBox(QStringLiteral("The report is in this file:\n") + QDir::toNativeSeparators(path), {},
               MessageKind::Information);
}

} // namespace

void ReportRecordSet(Recordset& rows, const QString& file, const QString& title, DumpView& view) {
    WriteAndOpen("Error in Sub ReportRecordSet", file, view,
                 [&](const TakeText& take) { WriteRecordSet(rows, title, take); });
}

void ReportSchema(Connection& connection, const QString& file, const QString& title,
                  DumpView& view) {
    WriteAndOpen("Error in Sub ReportSchema", file, view,
                 [&](const TakeText& take) { WriteSchema(connection, title, take); });
}

void ArchiveEvents(const QString& sql, const QString& file, DumpView& view) {
    GuardedWithBox("ArchiveEvents", [&] {
        const EndOfDump end{view}; // also if the statement is refused
        const auto store = OpenForReading();
        const Supervision supervision(*store, [&view] { return view.GoOn(); });
        Recordset rows;
        OpenReading(rows, sql, *store);
        ReportRecordSet(rows, file, TitleForQuery(sql), view);
    });
}
