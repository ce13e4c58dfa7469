#include "ReaderReportBuilder.h"

#include "Format.h"
#include "LookUps.h"
#include "ReportViewer.h"
#include "Rows.h"
#include "StoreFailure.h"
#include "darReaderUpload.h"
#include "deMain.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mReports.h"
#include "mTranslations.h"

namespace {

/// The connection of the data environment, open while the report reads from it. It is opened anew
/// for each report, so it never reads a file that has since been replaced.
class OpenEnvironment {
public:
    OpenEnvironment() { deMain.Connect(gConnectionString); }
    ~OpenEnvironment() { deMain.Close(); }
    OpenEnvironment(const OpenEnvironment&) = delete;
    OpenEnvironment& operator=(const OpenEnvironment&) = delete;
};

const QString FromEvents =
    QStringLiteral("FROM tblEvents WHERE ((dtDateTime >= ? ) AND (dtDateTime <= ? ) AND "
                   "(tPipeId=?))");

/// Opens the touches of the report, those of one download together. False if the operator has
/// cancelled.
bool OpenTouches(const ReaderReportRequest& request, ReportViewer& viewer, Recordset& touches) {
    const Values values = {request.StartDate, request.EndDate, request.ReaderId};
    RowProgress progress(viewer.Progress(), CountOf(FromEvents, values, deMain.Main()));
    touches.CursorLocation = adUseClient;
    touches.OnFetch = [&] { return progress.Step(); };
    touches.Open(QStringLiteral("SELECT dtDLDateTime, dtDateTime, tButtonCode, tButtonDesc, "
                                "tButtonName, tGroupDesc, tGroupName, tPipeID AS tPipeId ") +
                     FromEvents + QStringLiteral(" ORDER BY dtDLDateTime, dtDateTime, ID"),
                 values, deMain.Main(), adOpenStatic, adLockReadOnly);
    touches.OnFetch = {};
    return !progress.Cancelled();
}

void Print(const ReaderReportRequest& request, const Recordset& touches, ReportViewer& viewer) {
    darReaderUpload report;
    report.SetDataSource(&touches);
    report.SetReportParam({{u"lblReportTitle", Translate("Reader Download Report")},
                           {u"lblCompanyInfo", CompanyText()},
                           {u"lblReaderID", request.ReaderId + QStringLiteral(" (") +
                                                request.ReaderDesc + QStringLiteral(")")},
                           {u"lblDateRange", DateRangeText(request.StartDate, request.EndDate)}});
    NameDocument(report, {request.ReaderId, request.ReaderDesc}, request.StartDate,
                 request.EndDate);
    SetFrameText(report, u"Label12", u"Label14", u"Label11", u"Label15");
    report.SetText({{u"Label9", Translate("Reader ID:")},
                    {u"Label16", Translate("Download Time:")},
                    {u"Label3", Translate("Date / Time")},
                    {u"Label4", Translate("Code")},
                    {u"Label6", Translate("Name")},
                    {u"Label5", Translate("Description")},
                    {u"Label8", Translate("Group")}});
    report.Control(u"txtDtDate").SetDataFormat(GetShortDateFormat());
    report.Control(u"txtDate").SetDataFormat(GetShortDateFormat());
    report.Control(u"txtDtTime").SetDataFormat(QStringLiteral("HH:NN:SS"));
    report.Control(u"txtTime").SetDataFormat(QStringLiteral("HH:NN"));
    ShowLayoutFrame(report, viewer);
}

void ReportReaderReport(const ReaderReportRequest& request, ReportViewer& viewer) {
    const OpenEnvironment environment;
    Recordset touches;
    if (!OpenTouches(request, viewer, touches))
        return;
    if (touches.RecordCount() == 0)
        IvMessageBox(Translate("There is no data to show for these parameters"),
                     SearchedText({{QT_TR_NOOP("Reader"), ReaderTextOf(request.ReaderId)}},
                                  request.StartDate, request.EndDate));
    else
        Print(request, touches, viewer);
}

} // namespace

void BuildReaderReport(const ReaderReportRequest& request, ReportViewer& viewer) {
    if (request.StartDate > request.EndDate)
        IvMessageBox(Translate("The start date cannot be later than the end date"));
    else
        Trapped([&] { ReportReaderReport(request, viewer); },
                [](const RunTimeError& error) {
                    ReportError(QStringLiteral("ReportReaderReport of Form frmRptReaderReport"),
                                error, ErrorShow::LogOnly);
                    TellOfReportFailure(error);
                });
}
