#include "IncidentSitesBuilder.h"

#include "Format.h"
#include "ReportViewer.h"
#include "Rows.h"
#include "ScratchTable.h"
#include "StoreFailure.h"
#include "darIncidentOld.h"
#include "mErrorHandler.h"
#include "mReports.h"
#include "mTranslations.h"

namespace {

// The columns of the events, by position: two of them are named "ID".
enum EventColumn {
    ReaderIdColumn,
    ReaderDescriptionColumn,
    TypeColumn,
    GroupColumn,
    DateColumn,
    ButtonIdColumn,
    CodeColumn,
    ButtonColumn,
    ButtonDescriptionColumn,
    GroupIdColumn,
    PipeIdColumn
};

/// Opens all touches of the range whose button and reader are still defined, to be read once.
void OpenIncidentEvents(DateTime startDate, DateTime endDate, Recordset& events) {
    events.Open(QStringLiteral(
                    "SELECT tblReaders.tReaderID, tblReaders.tDescription, tblListItems.wType, "
                    "tblListItems.tName, tblEvents.dtDateTime, tblButtons.ID, "
                    "tblEvents.tButtonCode, tblButtons.tButtonName, tblButtons.tButtonDesc, "
                    "tblListItems.ID, tblEvents.tPipeId "
                    "FROM ((tblEvents INNER JOIN tblButtons ON (tblEvents.tButtonCode = "
                    "tblButtons.tButtonCode) ) INNER JOIN tblListItems ON tblButtons.lParentID = "
                    "tblListItems.ID) INNER JOIN tblReaders ON (tblEvents.tPipeId = "
                    "tblReaders.tReaderId) "
                    "WHERE (tblEvents.dtDateTime >= ?) AND (TBLEvents.dtDateTime <= ?) "
                    "ORDER BY  tblEvents.dtDateTime, tblReaders.tReaderId, tblEvents.ID ;"),
                {startDate, endDate}, *gConn, adOpenForwardOnly, adLockReadOnly);
}

/// Adds a line for each touch that passes the filters. False if the operator cancelled.
bool AddLines(const IncidentSitesRequest& request, Recordset& events, Recordset& lines,
              RowProgress progress) {
    QString lastSite, lastLocation;
    qint64 lastSiteId = 0;
    for (; !events.Eof(); events.MoveNext()) {
        if (!progress.Step())
            return false;
        const bool isLocation = events.FieldAt(TypeColumn).Number() == SiteGroup;
        // A touch that is filtered out still says where the guard was.
        if (isLocation) {
            lastSiteId = events.FieldAt(GroupIdColumn).Number();
            lastSite = events.FieldAt(GroupColumn).Text();
            lastLocation = events.FieldAt(ButtonColumn).Text();
        }
        if ((request.EventId > 0 && events.FieldAt(ButtonIdColumn).Number() != request.EventId) ||
            (!request.ReaderId.isEmpty() &&
             events.FieldAt(PipeIdColumn).Text() != request.ReaderId) ||
            (request.SiteId > 0 && lastSiteId != request.SiteId))
            continue;
        const DateTime moment = events.FieldAt(DateColumn).Date();
        lines.AddNew();
        lines.Set(u"tDate", Format(moment, QStringLiteral("Short Date")));
        lines.Set(u"tTime", Format(moment, QStringLiteral("Short Time")));
        lines.Set(u"tReaderName", events.FieldAt(ReaderDescriptionColumn).Text());
        lines.Set(u"tSite", lastSite);
        lines.Set(u"tLocation", lastLocation);
        lines.Set(u"tIncident",
                  isLocation ? QStringLiteral("") : events.FieldAt(ButtonColumn).Text());
    }
    return true;
}

void Print(const IncidentSitesRequest& request, const Recordset& lines, ReportViewer& viewer) {
    darIncidentOld report;
    report.SetDataSource(&lines);
    report.SetReportParam({{u"lblReportDate", PrintDateText(3)},
                           {u"lblReportTitle", Translate("Incidents And Locations Report")},
                           {u"Label17", MomentText(request.StartDate, 3)},
                           {u"Label18", MomentText(request.EndDate, 3)},
                           {u"lblCompanyInfo", CompanyText()},
                           {u"Label14", request.EventName},
                           {u"Label15", request.ReaderName},
                           {u"Label16", request.SiteName}});
    NameDocument(report,
                 {request.EventId > 0 ? request.EventName : QString(),
                  request.SiteId > 0 ? request.SiteName : QString(),
                  request.ReaderId.isEmpty() ? QString() : request.ReaderName},
                 request.StartDate, request.EndDate);
    SetFrameText(report, u"Label10", u"Label19", u"Label8", u"Label9");
    const QString colon = QStringLiteral(" : ");
    report.SetText({{u"lblEventFilter", Translate("Event") + colon},
                    {u"lblReaderFilter", Translate("Reader") + colon},
                    {u"lblSiteFilter", Translate("Site") + colon},
                    {u"lblFrom", Translate("From:")},
                    {u"lblTo", Translate("To:")},
                    {u"Label1", Translate("Date / Time")},
                    {u"Label2", Translate("Reader Name")},
                    {u"Label13", Translate("Site")},
                    {u"Label3", Translate("Location")},
                    {u"Label4", Translate("Incident")}});
    ShowLayoutFrame(report, viewer);
}

} // namespace

QList<Button> EventFilters() {
    QList<Button> events;
    for (Rows rows(QStringLiteral(
             "SELECT tblButtons.ID, tblButtons.lParentID, tblButtons.tButtonCode, "
             "tblButtons.tButtonName, tblListItems.wType, tblListItems.tName FROM tblButtons "
             "INNER JOIN tblListItems ON tblButtons.lParentID = tblListItems.ID;"));
         !rows.Eof(); rows.MoveNext())
        if (rows.Number(u"wType") == EventBookGroup)
            events += {rows.Id(), rows.Text(u"tButtonCode"), rows.Text(u"tButtonName"), {}};
    return events;
}

QList<Reader> ReaderFilters() {
    QList<Reader> readers = Readers();
    for (qsizetype i = 0; i < readers.size(); ++i)
        if (readers[i].description.isEmpty())
            readers[i].description = Translate("Reader") + u' ' + QString::number(i + 1);
    return readers;
}

void CreateTempIncident() {
    MakeScratchTable(TempIncident, {QStringLiteral("tDate"), QStringLiteral("tTime"),
                                    QStringLiteral("tReaderName"), QStringLiteral("tSite"),
                                    QStringLiteral("tLocation"), QStringLiteral("tIncident")});
}

void DropTempIncident() { DropScratchTable(TempIncident); }

void BuildIncidentSitesReport(const IncidentSitesRequest& request, ReportViewer& viewer) {
    Recordset events, lines;
    bool building = false; // the two steps before it are those of the preview button
    const auto make = [&] {
        building = false;
        events.Close(); // of a run on a full disk
        CreateTempIncident();
        OpenIncidentEvents(request.StartDate, request.EndDate, events);
        building = true;
        return true;
    };
    const auto write = [&] {
        const QString range = QStringLiteral("FROM tblEvents WHERE (tblEvents.dtDateTime >= ?) AND "
                                             "(tblEvents.dtDateTime <= ?)");
        return AddLines(request, events, lines,
                        {viewer.Progress(), CountOf(range, {request.StartDate, request.EndDate})});
    };
    const auto show = [&] {
        if (lines.RecordCount() == 0)
            IvMessageBox(Translate("No Data on the report"),
                         SearchedText({{QT_TR_NOOP("Event"), request.EventName},
                                       {QT_TR_NOOP("Site"), request.SiteName},
                                       {QT_TR_NOOP("Reader"), request.ReaderName}},
                                      request.StartDate, request.EndDate));
        else
            Print(request, lines, viewer);
    };
    Trapped(
        [&] {
            WithScratchTables([&] { return FillScratchTable(TempIncident, make, lines, write); },
                              show);
        },
        [&](const RunTimeError& error) {
            if (building) {
                ReportError(
                    QStringLiteral("BuildIncidentReport_ORIGINAL of Form frmRptIncidentParam"),
                    error, ErrorShow::LogOnly);
                TellOfReportFailure(error);
            } else {
                ReportError(QStringLiteral("cmdPrintPreview_Click of Form frmRptIncidentParam"),
                            error, ErrorShow::Dialog);
            }
        });
}
