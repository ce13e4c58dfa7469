#include "IncidentReportBuilder.h"

#include "MomentTexts.h"
#include "ReportViewer.h"
#include "Rows.h"
#include "ScratchTable.h"
#include "darIncident.h"
#include "mErrorHandler.h"
#include "mReports.h"
#include "mTranslations.h"

#include <QHash>

#include <vector>

namespace {

// The columns of the events, by position.
enum EventColumn {
    IdColumn,
    ReaderColumn,
    DateColumn,
    CodeColumn,
    NameColumn,
    TypeColumn,
    GroupColumn
};

/// The range of time and the readers, as a condition on tblEvents with its values.
struct Condition {
    QString text;
    Values values;
};

Condition ConditionOf(const IncidentReportRequest& request) {
    Condition condition{QStringLiteral("From tblEvents WHERE ((tblEvents.dtDateTime >= ?) "
                                       "AND (tblEvents.dtDateTime <= ?)) "
                                       "AND (tblEvents.tPipeId IN (%1))")
                            .arg(QStringLiteral("?, ").repeated(request.Readers.size()).chopped(2)),
                        {request.StartDate, request.EndDate}};
    for (const Reader& reader : request.Readers)
        condition.values.emplace_back(reader.id);
    return condition;
}

int CountOf(const Condition& condition) {
    Rows count(QStringLiteral("SELECT COUNT(*) ") + condition.text, condition.values);
    return static_cast<int>(count.FieldAt(0).Number());
}

/// For each code of an incident, the rows of the location touches that came last before it, one for
/// each time it was recorded. The rows of all readers are one sequence here, so the location may be
/// another reader's.
using PlacesByCode = QHash<QString, std::vector<qsizetype>>;

PlacesByCode FindPlaces(const Recordset& events) {
    PlacesByCode places;
    qsizetype location = -1;
    for (qsizetype row = 0; row < events.RowCount(); ++row) {
        const qint64 type = events.ValueAt(row, TypeColumn).Number();
        if (type == SiteGroup)
            location = row;
        else if (type == EventBookGroup && location >= 0)
            places[events.TextAt(row, CodeColumn)].push_back(location);
    }
    return places;
}

/// Writes the lines of the report.
class IncidentLines {
public:
    IncidentLines(Recordset& lines, const Recordset& events, RowProgress& progress)
        : m_lines(lines), m_events(events), m_places(FindPlaces(events)), m_progress(progress) {}

    /// False if the operator cancelled.
    bool Write(const EventButton& event) {
        Add(Empty, Empty, Empty);
        Add(IncidentText(event), Empty, Empty);
        const auto found = m_places.constFind(event.code);
        if (found == m_places.constEnd()) {
            Add(Empty, Empty, Translate("No incidents of this type were recorded"));
            return true;
        }
        for (const qsizetype location : *found) {
            // Date and time are those of the location touch too.
            const DateTime moment = m_events.ValueAt(location, DateColumn).Date();
            Add(Empty, m_dates.Of(moment) + u' ' + m_times.Of(moment), PlaceText(location));
            if (!m_progress.Step())
                return false;
        }
        return true;
    }

private:
    QString PlaceText(qsizetype location) const {
        return FormatStr(m_placePattern,
                         {m_events.TextAt(location, NameColumn),
                          m_events.TextAt(location, GroupColumn),
                          QStringLiteral("Reader ") + m_events.TextAt(location, ReaderColumn)});
    }

    void Add(const QString& heading, const QString& when, const QString& place) {
        m_lines.AddNew();
        m_lines.Set(u"Field0", heading);
        m_lines.Set(u"Field1", when);
        m_lines.Set(u"Field2", place);
    }

    inline static const QString Empty = QStringLiteral("");

    Recordset& m_lines;
    const Recordset& m_events;
    PlacesByCode m_places;
    RowProgress& m_progress;
    MomentTexts m_dates{MomentTexts::Day, QStringLiteral("Short Date")};
    MomentTexts m_times{MomentTexts::Minute, QStringLiteral("Hh:Nn")};
    QString m_placePattern = Translate("%0:s, %1:s,  %2:s");
};

enum class Outcome { Complete, NoRecords, EventMissing, Stopped };

/// Fills `tblReportTemp` and opens `lines` on it. If an event's button is gone, the lines of the
/// events before it stay there.
Outcome FillReportTemp(const IncidentReportRequest& request, const WorkProgress& show,
                       Recordset& lines) {
    const Condition condition = ConditionOf(request);
    RowProgress progress(show, 2 * CountOf(condition)); // each is read, and perhaps written
    Recordset events;
    events.CursorLocation = adUseClient;
    events.OnFetch = [&] { return progress.Step(); };
    // The inner statement finds the rows in an index, so that the outer one reads the table once,
    // from its beginning to its end.
    events.Open(QStringLiteral("SELECT tblEvents.ID, tblEvents.tPipeId, tblEvents.dtDateTime, "
                               "tblEvents.tButtonCode, tblEvents.tButtonName, "
                               "tblEvents.wGroupType, tblEvents.tGroupName From tblEvents "
                               "WHERE tblEvents.ID IN (SELECT tblEvents.ID %1);")
                    .arg(condition.text),
                condition.values, *gConn, adOpenStatic, adLockReadOnly);
    if (progress.Cancelled())
        return Outcome::Stopped;
    if (events.RecordCount() < 1)
        return Outcome::NoRecords;
    bool missing = false;
    const auto fill = [&](Recordset& rows) {
        IncidentLines writer(rows, events, progress);
        for (const int id : request.Events) {
            const std::optional<EventButton> event = GetIncidentHeader(id);
            missing = !event;
            if (missing)
                break;
            if (!writer.Write(*event))
                return false;
        }
        return true;
    };
    if (!FillScratchTable(ReportTemp, lines, InitRptTmp, fill))
        return Outcome::Stopped;
    return missing ? Outcome::EventMissing : Outcome::Complete;
}

/// A message that is not translated.
void ShowPlain(const char* text) { MsgBox(QString::fromUtf8(text), {}, MessageKind::Information); }

void Print(const IncidentReportRequest& request, const Recordset& lines, ReportViewer& viewer) {
    darIncident report;
    report.SetDataSource(&lines);
    report.SetReportParam({{u"lblReportDate", PrintDateText(3)},
                           {u"lblReportTitle", Translate("Incident Report")},
                           {u"Label17", MomentText(request.StartDate, 3)},
                           {u"Label18", MomentText(request.EndDate, 3)},
                           {u"lblCompanyInfo", CompanyText()}});
    SetFrameText(report, u"Label10", u"Label19", u"Label8", u"Label9");
    report.SetText({{u"lblFrom", Translate("From:")}, {u"lblTo", Translate("To:")}});
    ShowLayoutFrame(report, viewer);
}

void ReportFailure(const RunTimeError& error) {
    ReportError(QStringLiteral("BuildIncidentReport of Form frmRptIncidentNew"), error,
                ErrorShow::LogOnly);
    ShowProcedureError(QStringLiteral("BuildIncidentReport"), error);
}

/// Fills the table and shows the report. True if it was shown.
bool FillAndShow(const IncidentReportRequest& request, ReportViewer& viewer) {
    Recordset lines;
    switch (FillReportTemp(request, viewer.Progress(), lines)) {
    case Outcome::Complete:
        break;
    case Outcome::NoRecords:
        ShowPlain("No records for the given parameters");
        return false;
    case Outcome::EventMissing:
        ShowPlain("Error Looking up Incident");
        return false;
    case Outcome::Stopped:
        return false;
    }
    // A failure from here on must not make the report a second time, with tables in memory.
    return Trapped(
        [&] {
            Print(request, lines, viewer);
            lines.Close();
            IgnoringErrors(InitRptTmp);
            return true;
        },
        ReportFailure);
}

} // namespace

QString IncidentText(const EventButton& event) {
    return FormatStr(Translate("%0:s [%1:s] -- %2:s"), {event.name, event.code, event.groupName});
}

bool IncidentsAreSelected(const IncidentReportRequest& request) {
    if (request.Readers.isEmpty())
        IvMessageBox(Translate("There must be at least one reader selected to create a report"));
    else if (request.Events.isEmpty())
        IvMessageBox(Translate("There must be at least one event selected to create a report"));
    else
        return true;
    return false;
}

std::optional<EventButton> GetIncidentHeader(int id) {
    return Guarded("GetIncidentHeader of Form frmRptIncidentNew", [&] {
        std::optional<EventButton> event;
        Rows rows(QStringLiteral("SELECT tblButtons.ID, tblButtons.tButtonCode, "
                                 "tblButtons.tButtonName, tblButtons.tButtonDesc, "
                                 "tblListItems.wType, tblListItems.tName FROM tblButtons INNER "
                                 "JOIN tblListItems ON tblButtons.lParentID = tblListItems.ID "
                                 "WHERE (((tblButtons.ID)=?)); "),
                  {id});
        if (rows.Any())
            event = {{id, rows.Text(u"tButtonCode"), rows.Text(u"tButtonName"),
                      rows.Text(u"tButtonDesc")},
                     rows.Text(u"tName")};
        return event;
    });
}

bool BuildIncidentReport(const IncidentReportRequest& request, ReportViewer& viewer) {
    bool shown = false;
    if (!request.Readers.isEmpty())
        Trapped([&] { WithScratchTables([&] { shown = FillAndShow(request, viewer); }); },
                ReportFailure);
    return shown;
}
