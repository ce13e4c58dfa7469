#include "StoreTouches.h"

#include "Clock.h"
#include "Recordset.h"
#include "TableExists.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"

#include <algorithm>

namespace {

const QString NoteTable = QStringLiteral("tblTempDownload");

void OpenRows(Recordset& rows, const QString& readerId, DateTime stamp) {
    rows.CursorLocation = adUseClient;
    rows.Open(QStringLiteral("SELECT * FROM tblEvents WHERE tPipeID = ? AND dtDLDateTime = ? "
                             "ORDER BY ID"),
              {readerId, stamp}, *gConn, adOpenStatic, adLockReadOnly);
}

bool BeginWith(const colRawButtons& touches, Recordset& rows) {
    if (rows.RecordCount() > static_cast<int>(touches.size()))
        return false;
    return std::all_of(touches.begin(), touches.begin() + rows.RecordCount(),
                       [&](const cRawButton& touch) {
                           const bool same = rows.Text(u"tButtonCode") == touch.ButtonCode &&
                                             rows.Date(u"dtDateTime") == touch.DateAndTime;
                           rows.MoveNext();
                           return same;
                       });
}

void Forget(const QString& readerId) {
    gConn->Execute(QStringLiteral("DELETE FROM tblTempDownload WHERE tPipeID = ?"), {readerId});
    Recordset notes;
    notes.CursorLocation = adUseClient;
    notes.Open(NoteTable, *gConn, adOpenStatic, adLockReadOnly, adCmdTable);
    const bool empty = notes.RecordCount() == 0;
    notes.Close();
    if (empty)
        gConn->Execute(QStringLiteral("DROP TABLE tblTempDownload"));
}

void Note(const QString& readerId, DateTime stamp) {
    if (!TableExists(NoteTable))
        gConn->Execute(QStringLiteral("CREATE TABLE tblTempDownload (tPipeID VARCHAR, dtDLDateTime "
                                      "REAL)"));
    gConn->Execute(QStringLiteral("INSERT INTO tblTempDownload (tPipeID, dtDLDateTime) "
                                  "VALUES (?, ?)"),
                   {readerId, stamp});
}

/// Deletes the rows that an unfinished download of the reader left, if this download begins with
/// the same touches. Gives the number of deleted rows.
int TakeBack(const colRawButtons& touches, const QString& readerId) {
    if (!TableExists(NoteTable))
        return 0;
    int taken = 0;
    Recordset notes;
    notes.CursorLocation = adUseClient;
    notes.Open(QStringLiteral("SELECT * FROM tblTempDownload WHERE tPipeID = ?"), {readerId},
               *gConn, adOpenStatic, adLockReadOnly);
    for (; !notes.Eof(); notes.MoveNext()) {
        const DateTime stamp = notes.Date(u"dtDLDateTime");
        Recordset rows;
        OpenRows(rows, readerId, stamp);
        if (BeginWith(touches, rows))
            taken += gConn->Execute(
                QStringLiteral("DELETE FROM tblEvents WHERE tPipeID = ? AND dtDLDateTime = ?"),
                {readerId, stamp});
    }
    Forget(readerId);
    return taken;
}

void WriteRows(const colRawButtons& touches, const QString& readerId, DateTime stamp,
               int& written) {
    Recordset events;
    events.Open(QStringLiteral("tblEvents"), *gConn, adOpenForwardOnly, adLockOptimistic,
                adCmdTable);
    for (const cRawButton& touch : touches) {
        events.AddNew();
        events.Set(u"dtDLDateTime", stamp);
        events.Set(u"dtDateTime", touch.DateAndTime);
        events.Set(u"tButtonCode", touch.ButtonCode);
        events.Set(u"tButtonName", touch.Name);
        events.Set(u"tButtonDesc", touch.Description);
        events.Set(u"wGroupType", touch.EventType);
        events.Set(u"tGroupName", touch.GroupName);
        events.Set(u"tGroupDesc", touch.GroupDesc);
        events.Set(u"tPipeID", readerId);
        events.Update();
        ++written;
    }
}

void WriteAll(const colRawButtons& touches, const QString& readerId, DateTime stamp,
              int& takenBack) {
    Transaction transaction(*gConn);
    takenBack = TakeBack(touches, readerId);
    int written = 0;
    try {
        WriteRows(touches, readerId, stamp, written);
    } catch (const RunTimeError&) {
        // If there are now fewer rows than before, the earlier ones are kept; the same if the
        // engine itself has rolled back.
        if (gConn->InTransaction() && written > 0 && written >= takenBack)
            IgnoringErrors([&] {
                Note(readerId, stamp);
                transaction.Commit();
            });
        throw;
    }
    transaction.Commit();
}

} // namespace

void StoreTouches(const colRawButtons& touches, const QString& readerId, int& stored) {
    stored = 0;
    const DateTime stamp = Now();
    int takenBack = 0;
    try {
        WriteAll(touches, readerId, stamp, takenBack);
        stored = static_cast<int>(touches.size());
    } catch (const RunTimeError&) {
        // Count the rows: a commit that reports a failure may have succeeded.
        IgnoringErrors([&] {
            Recordset rows;
            OpenRows(rows, readerId, stamp);
            stored = rows.RecordCount() > 0 ? rows.RecordCount() : takenBack;
            if (rows.RecordCount() == static_cast<int>(touches.size()))
                Note(readerId, stamp);
        });
        throw;
    }
}
