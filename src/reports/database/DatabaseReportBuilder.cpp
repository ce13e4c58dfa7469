#include "DatabaseReportBuilder.h"

#include "Format.h"
#include "ReportViewer.h"
#include "Rows.h"
#include "ScratchTable.h"
#include "StoreFailure.h"
#include "darCustom.h"
#include "mErrorHandler.h"
#include "mReports.h"
#include "mTranslations.h"

namespace {

const QString CustomTable = QStringLiteral("tblCustom");
const QStringList CustomColumns = {QStringLiteral("tDateTime"),   QStringLiteral("tButtonCode"),
                                   QStringLiteral("tButtonName"), QStringLiteral("tLocationDesc"),
                                   QStringLiteral("tGroupName"),  QStringLiteral("tType")};

EventQuery QueryFor(const DatabaseReportRequest& request) {
    return {QStringLiteral("SELECT dtDLDateTime, tPipeID, dtDateTime, tButtonCode, tButtonName, "
                           "tButtonDesc, wGroupType, tGroupName, tGroupDesc "),
            QStringLiteral("FROM tblEvents WHERE (dtDateTime >= ?) AND (dtDateTime <= ?) "),
            QStringLiteral("ORDER BY dtDateTime, ID ;"),
            {request.StartDate, request.EndDate}};
}

/// Adds the events to the table, one by one: a client cursor would keep them all in memory. False
/// if the operator has cancelled.
bool AddEvents(const EventQuery& query, RowProgress& progress, Recordset& rows) {
    Recordset events;
    events.Open(query.columns + query.source + query.order, query.values, *gConn, adOpenForwardOnly,
                adLockReadOnly);
    const int date = events.Column(u"dtDateTime"), code = events.Column(u"tButtonCode"),
              name = events.Column(u"tButtonName"), description = events.Column(u"tButtonDesc"),
              type = events.Column(u"wGroupType"), group = events.Column(u"tGroupName");
    const QString location = Translate("Location"), event = Translate("Event");
    for (; !events.Eof(); events.MoveNext()) {
        const qint64 groupType = events.FieldAt(type).Number();
        rows.AddNew();
        rows.Set(u"tDateTime", DefaultDateTimeText(events.FieldAt(date).Date()));
        rows.Set(u"tButtonCode", events.FieldAt(code).Text());
        rows.Set(u"tButtonName", events.FieldAt(name).Text());
        rows.Set(u"tLocationDesc", events.FieldAt(description).Text());
        rows.Set(u"tGroupName", events.FieldAt(group).Text());
        rows.Set(u"tType", groupType == SiteGroup        ? location
                           : groupType == EventBookGroup ? event
                                                         : QString());
        rows.Update();
        if (!progress.Step())
            return false;
    }
    return true;
}

CopyResult Copy(const EventQuery& query, Recordset& rows, const WorkProgress& show) {
    const int count = CountOf(query.source, query.values);
    const auto make = [&] {
        // The last run may have left a million rows.
        if (!EmptyScratchTable(CustomTable, [&] { return show(0, count); }))
            return false;
        MakeScratchTable(CustomTable, CustomColumns);
        return true;
    };
    const auto fill = [&] {
        RowProgress progress(show, count);
        return AddEvents(query, progress, rows);
    };
    if (!FillScratchTable(CustomTable, make, rows, fill))
        return CopyResult::Cancelled;
    return rows.RecordCount() > 0 ? CopyResult::Copied : CopyResult::NoEvents;
}

void Print(const DatabaseReportRequest& request, const Recordset& rows, ReportViewer& viewer) {
    darCustom report;
    report.SetDataSource(&rows);
    report.SetReportParam({{u"lblReportTitle", Translate("Database Report")},
                           {u"lblDateRange", DateRangeText(request.StartDate, request.EndDate)},
                           {u"lblCompanyInfo", CompanyText()}});
    NameDocument(report, {}, request.StartDate, request.EndDate);
    SetFrameText(report, u"Label16", u"Label18", u"Label15", u"Label11");
    report.SetText({{u"Label1", Translate("Date / Time")},
                    {u"Label2", Translate("ID")},
                    {u"Label4", Translate("Button Name")},
                    {u"Label3", Translate("Group Name")},
                    {u"Label9", Translate("Type")}});
    report.Control(u"txtDate").SetDataFormat(GetShortDateFormat());
    report.Control(u"txtTime").SetDataFormat(QStringLiteral("HH:NN"));
    ShowLayoutFrame(report, viewer);
}

} // namespace

CopyResult CopyEvents(const EventQuery& query, Recordset& rows, const WorkProgress& show) {
    return GuardedInScratch("GoProcessData of Form frmWaitReport",
                            [&] { return Copy(query, rows, show); });
}

void BuildDatabaseReport(const DatabaseReportRequest& request, const CopyStep& copy,
                         ReportViewer& viewer) {
    Trapped(
        [&] {
            Recordset rows;
            WithScratchTables([&] { return copy(QueryFor(request), rows); },
                              [&] { Print(request, rows, viewer); });
        },
        [](const RunTimeError& error) {
            ReportError(QStringLiteral("ShowReport of Form frmRptCustomParam"), error,
                        ErrorShow::LogOnly);
            TellOfReportFailure(error);
        });
}
