#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class Recordset;
class RunTimeError;

/// The tables that a report fills with its lines while it is built and shown. They are in the
/// store; if its disk is full they are in memory, so that reports can still be read. All of it
/// works on gConn and throws RunTimeError, unless it says otherwise.

/// Makes the table with columns of nullable text. If it is there already, it is dropped first.
void MakeScratchTable(const QString& name, const QStringList& columns);
/// Does nothing if the table is not there.
void DropScratchTable(const QString& name);

/// Fills a scratch table in one transaction, so that a run that fails leaves none of its rows.
/// `make` makes or empties the table; `fill` adds rows to it. If one of them gives false, nothing
/// is changed, and the result is false. Otherwise `rows`, which was closed, is open on the table,
/// at its first row.
bool FillScratchTable(const QString& name, Recordset& rows, const std::function<bool()>& make,
                      const std::function<bool(Recordset& rows)>& fill);

/// Runs `build`, which makes and fills scratch tables. If the store cannot take them, runs it again
/// with tables in memory, which exist until `build` returns. So `build` must show nothing, and
/// change nothing it works on, before its first table is made.
void WithScratchTables(const std::function<void()>& build);
/// For a handler within `build`: rethrows the failure if tables in memory would help.
void PassOnIfMemoryHelps(const RunTimeError& error);

/// The table that two reports share and that is kept between them.
inline const QString ReportTemp = QStringLiteral("tblReportTemp");
/// Makes it if it is not there, and empties it. A failure is logged and gives false, except one
/// that tables in memory would avoid: that one is thrown.
bool InitRptTmp();
bool CreateTblReportTemp(const QString& name);
