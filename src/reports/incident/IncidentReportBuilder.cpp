#include "IncidentReportBuilder.h"

#include "Dictionary.h"
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

/// The events of the range and the readers.
QString SourceOf(const IncidentReportRequest& request) {
    return QStringLiteral("From tblEvents WHERE ((tblEvents.dtDateTime >= ?) "
                          "AND (tblEvents.dtDateTime <= ?)) AND (tblEvents.tPipeId IN (%1))")
        .arg(QStringLiteral("?, ").repeated(request.Readers.size()).chopped(2));
}

Values ValuesOf(const IncidentReportRequest& request) {
    Values values = {request.StartDate, request.EndDate};
    for (const Reader& reader : request.Readers)
        values.emplace_back(reader.id);
    return values;
}

/// Opens the events of the range and the readers. False if the operator cancelled.
bool OpenEvents(const IncidentReportRequest& request, RowProgress& progress, Recordset& events) {
    // The inner statement finds the rows in an index, so that the outer one reads the table once,
    // from its beginning to its end.
    events.CursorLocation = adUseClient;
    events.OnFetch = [&] { return progress.Step(); };
    events.Open(QStringLiteral("SELECT tblEvents.ID, tblEvents.tPipeId, tblEvents.dtDateTime, "
                               "tblEvents.tButtonCode, tblEvents.tButtonName, "
                               "tblEvents.wGroupType, tblEvents.tGroupName From tblEvents "
                               "WHERE tblEvents.ID IN (SELECT tblEvents.ID ") +
                    SourceOf(request) + QStringLiteral(");"),
                ValuesOf(request), *gConn, adOpenStatic, adLockReadOnly);
    events.OnFetch = {};
    return !progress.Cancelled();
}

/// For each event code: one row for each time it was recorded, which is the location touch before
/// it. The touches of all readers form one sequence, so that location may come from another reader.
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
            Add(Empty, MomentText(m_events.ValueAt(location, DateColumn).Date(), 1),
                PlaceText(location));
            if (!m_progress.Step())
                return false;
        }
        return true;
    }

private:
    QString PlaceText(qsizetype location) const {
        // Without marks for the reading direction: the text is also exported to files.
        return Dictionary::FormatStr(
            m_placePattern,
            {m_events.TextAt(location, NameColumn), m_events.TextAt(location, GroupColumn),
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
    QString m_placePattern = Translate("%0:s, %1:s,  %2:s");
};

/// Writes the lines of the events, up to the first one whose button is gone. False if the operator
/// cancelled.
bool WriteEvents(const QList<int>& ids, IncidentLines& lines, bool& missing) {
    missing = false;
    for (const int id : ids) {
        const std::optional<EventButton> event = GetIncidentHeader(id);
        missing = !event;
        if (missing)
            break;
        if (!lines.Write(*event))
            return false;
    }
    return true;
}

/// A message whose text is not translated; its advice is.
void ShowPlain(const char* text, const QString& advice) {
    ShowMessage({.text = QString::fromUtf8(text),
                 .kind = MessageKind::Information,
                 .buttonTexts = {Translate("OK")},
                 .advice = advice});
}

/// A few readers by their names, more by their number.
QString ReadersText(const QList<Reader>& readers) {
    constexpr qsizetype Named = 3;
    QStringList names;
    for (const Reader& reader : readers)
        names += reader.description.isEmpty() ? reader.id : ReaderText(reader);
    return names.size() > Named ? QString::number(names.size()) : names.join(QStringLiteral(", "));
}

void Print(const IncidentReportRequest& request, const Recordset& lines, ReportViewer& viewer) {
    darIncident report;
    report.SetDataSource(&lines);
    report.SetReportParam({{u"lblReportDate", PrintDateText(3)},
                           {u"lblReportTitle", Translate("Incident Report")},
                           {u"Label17", MomentText(request.StartDate, 3)},
                           {u"Label18", MomentText(request.EndDate, 3)},
                           {u"lblCompanyInfo", CompanyText()}});
    NameDocument(report, {ReadersText(request.Readers)}, request.StartDate, request.EndDate);
    SetFrameText(report, u"Label10", u"Label19", u"Label8", u"Label9");
    report.SetText({{u"lblFrom", Translate("From:")}, {u"lblTo", Translate("To:")}});
    ShowLayoutFrame(report, viewer);
}

/// True if the report was shown.
bool FillAndShow(const IncidentReportRequest& request, ReportViewer& viewer) {
    // Each event is read, and perhaps written.
    std::optional<RowProgress> progress(std::in_place, viewer.Progress(),
                                        2 * CountOf(SourceOf(request), ValuesOf(request)));
    Recordset events, lines;
    if (!OpenEvents(request, *progress, events))
        return false;
    if (events.RecordCount() < 1) {
        ShowPlain("No records for the given parameters",
                  SearchedText({{QT_TR_NOOP("Readers"), ReadersText(request.Readers)}},
                               request.StartDate, request.EndDate));
        return false;
    }
    bool missing = false, shown = false;
    const auto write = [&] {
        IncidentLines writer(lines, events, *progress);
        return WriteEvents(request.Events, writer, missing);
    };
    const auto fill = [&] { return FillScratchTable(ReportTemp, InitRptTmp, lines, write); };
    WithScratchTables(fill, [&] {
        progress.reset();
        if (missing) {
            ShowPlain("Error Looking up Incident",
                      Translate("An event was deleted meanwhile. Please open the dialog of the "
                                "report again."));
            return;
        }
        Print(request, lines, viewer);
        shown = true;
        lines.Close();
        InitRptTmp();
    });
    return shown;
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
    return Trapped([&] { return !request.Readers.isEmpty() && FillAndShow(request, viewer); },
                   [](const RunTimeError& error) {
                       ReportError(QStringLiteral("BuildIncidentReport of Form frmRptIncidentNew"),
                                   error, ErrorShow::LogOnly);
                       ShowProcedureError(QStringLiteral("BuildIncidentReport"), error);
                   });
}
