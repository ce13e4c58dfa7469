#include "EventDeletion.h"

#include "Clock.h"
#include "DiagnosticError.h"
#include "Rows.h"
#include "mErrorHandler.h"

namespace {

bool Confirmed(const char* question) {
    return MsgBox(QString::fromUtf8(question), {}, MessageKind::Question, MessageButtons::YesNo) ==
           MessageAnswer::Yes;
}

void Tell(const QString& text) { MsgBox(text, {}, MessageKind::Information); }

} // namespace

void DeleteAllEvents() {
    if (!Confirmed("Are you REALLY sure? This will delete ALL events and Tours!!!!"))
        return;
    Guarded("DeleteAllEvents of Form frmMain", [] {
        Transaction transaction(*gConn);
        const int events = CountOf(QStringLiteral("FROM tblEvents;"), {});
        gConn->Execute(QStringLiteral("DELETE * FROM tblEvents ;"));
        gConn->Execute(QStringLiteral("DELETE * FROM tblTourPoints;"));
        gConn->Execute(QStringLiteral("DELETE * FROM tblTours;"));
        transaction.Commit();
        Tell(QStringLiteral("Deleted %1  Events from tblEvents\nDeleted all from tblTourPoints\n"
                            "Deleted all from tblTours")
                 .arg(events));
    });
}

void DeleteTodaysEvents() {
    const auto remove = [] {
        const QString todays =
            QStringLiteral("FROM tblEvents WHERE (dtDateTime >= ?) AND (dtDateTime <= ?);");
        const DateTime day = Today();
        const Values bounds = {day, day + DateTime::FromTime(23, 59, 59)};
        const int events = CountOf(todays, bounds);
        if (!Confirmed("Are you sure you want to delete these records?"))
            return;
        gConn->Execute(QStringLiteral("DELETE * ") + todays, bounds);
        Tell(QStringLiteral("Deleted! %1").arg(events));
    };
    Trapped(remove, [](const RunTimeError& error) {
        ShowDiagnosticError("Error in DeleteAllEvents", error);
    });
}
