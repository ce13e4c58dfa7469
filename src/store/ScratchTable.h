#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class RunTimeError;

/// The tables that a report fills with its lines while it is built and shown. They are in the
/// store; if its disk is full they are in memory, so that reports can still be read. All of it
/// works on gConn and throws RunTimeError, unless it says otherwise.

/// Makes the table with columns of nullable text. If it is there already, it is dropped first.
void MakeScratchTable(const QString& name, const QStringList& columns);
/// Does nothing if the table is not there.
void DropScratchTable(const QString& name);

/// Runs `build`, which makes and fills scratch tables. If the store cannot take them, runs it again
/// with tables in memory. So `build` must show nothing, and change nothing it works on, before its
/// first table is made.
void WithScratchTables(const std::function<void()>& build);
/// For a handler within `build`: rethrows the failure if tables in memory would help.
void PassOnIfMemoryHelps(const RunTimeError& error);

/// The one table that is kept between reports, tblReportTemp: makes it if it is not there, and
/// empties it. A failure is logged and gives false.
bool InitRptTmp();
bool CreateTblReportTemp(const QString& name);
