#pragma once

#include "mErrorHandler.h"

#include <QString>
#include <QStringList>

#include <functional>

class Recordset;

/// The tables that a report fills with its lines while it is built and shown. They are in the
/// store; if its disk is full they are in memory, so that reports can still be read. These routines
/// use gConn and throw RunTimeError unless noted.

/// Makes the table with columns of nullable text. If it is there already, it is dropped first.
void MakeScratchTable(const QString& name, const QStringList& columns);
/// Does nothing if the table is not there.
void DropScratchTable(const QString& name);

/// Deletes a table's rows in steps and calls `goOn` between them: dropping a large table takes
/// seconds. False once `goOn` gives false. Does nothing if the table is not there.
bool EmptyScratchTable(const QString& name, const std::function<bool()>& goOn);

/// Fills a scratch table in one transaction, so that a run that fails leaves none of its rows.
/// `make` makes or empties the table. `rows` is then open on it, and `fill` adds rows to it. If one
/// of them gives false, nothing is changed, and the result is false. Otherwise `rows` is at its
/// first row.
bool FillScratchTable(const QString& name, const std::function<bool()>& make, Recordset& rows,
                      const std::function<bool()>& fill);
/// The same for a table that MakeScratchTable makes.
bool FillScratchTable(const QString& name, const QStringList& columns, Recordset& rows,
                      const std::function<bool()>& fill);

/// Makes a report from scratch tables. `fill` makes and fills them; it gives false if there is
/// nothing to show. If the store's disk is full, `fill` is called again with tables in memory, so
/// it must have no other lasting effect. Then `show` is called once; its failures are passed on.
/// Tables in memory exist until it returns.
void WithScratchTables(const std::function<bool()>& fill, const std::function<void()>& show);

/// Throws the failure if tables in memory would help.
void PassOnIfMemoryHelps(const RunTimeError& error);
/// Runs a part of `fill` that has a label of its own in the log. A failure is logged and gives an
/// empty result, except one that tables in memory would avoid: that one is thrown.
template <typename Body>
auto GuardedInScratch(const char* label, Body&& body) {
    return Trapped(body, [&](const RunTimeError& error) {
        PassOnIfMemoryHelps(error);
        ReportError(QString::fromUtf8(label), error, ErrorShow::LogOnly);
    });
}

/// The table that two reports share and that is kept between them.
inline const QString ReportTemp = QStringLiteral("tblReportTemp");
/// Makes it if it is not there, and empties it. False after a failure, as GuardedInScratch has it.
bool InitRptTmp();
bool CreateTblReportTemp(const QString& name);

/// The table of the incident report with sites. The dialogs of both incident reports drop it when
/// they close.
inline const QString TempIncident = QStringLiteral("tblTempIncident");
