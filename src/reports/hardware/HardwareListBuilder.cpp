#include "HardwareListBuilder.h"

#include "Clock.h"
#include "LookUps.h"
#include "ReportViewer.h"
#include "Rows.h"
#include "ScratchTable.h"
#include "darHardwareList.h"
#include "mErrorHandler.h"
#include "mReports.h"
#include "mTranslations.h"

namespace {

QString ButtonsQuery(const HardwareListRequest& request) {
    QStringList conditions;
    if (!request.PrintLocation)
        conditions += QStringLiteral(" (tblListItems.wType <> 1)");
    if (!request.PrintEvent)
        conditions += QStringLiteral(" (tblListItems.wType <> 2)");
    QString filter = conditions.join(QStringLiteral(" AND"));
    if (!filter.isEmpty())
        filter.prepend(QStringLiteral(" WHERE "));
    return QStringLiteral("SELECT tblButtons.*, tblListItems.* "
                          "FROM tblButtons INNER JOIN tblListItems ON tblButtons.lParentID "
                          "= tblListItems.ID ") +
           filter +
           QStringLiteral("ORDER BY tblListItems.wType, tblListItems.tName, "
                          "tblButtons.tButtonName;");
}

QString WithDescription(const QString& name, const QString& description) {
    return description.isEmpty() ? name : name + QStringLiteral(" - ") + description;
}

/// Writes the lines of the list into the scratch table.
class LineWriter {
public:
    explicit LineWriter(Recordset& table) : m_table(table) {}

    /// Both are false if the operator cancelled the work.
    bool WriteButtons(Rows& buttons, RowProgress& progress) {
        // User groups come first and have type 0, so they get no heading.
        qint64 lastType = UserGroup;
        qint64 lastGroup = 0;
        if (buttons.Any())
            buttons.MoveFirst();
        for (; !buttons.Eof(); buttons.MoveNext()) {
            const qint64 type = buttons.Number(u"wType");
            if (type != lastType)
                WriteHeading(Translate(type == SiteGroup ? "Locations" : "Incidents"), 20);
            lastType = type;
            const qint64 group = buttons.Number(u"lParentID");
            if (group != lastGroup)
                Write(
                    {{u"Field1", WithDescription(buttons.Text(u"tName"), buttons.Text(u"tDesc"))}});
            lastGroup = group;
            Write({{u"Field2",
                    WithDescription(buttons.Text(u"tButtonName"), buttons.Text(u"tButtonDesc"))},
                   {u"Field3", buttons.Text(u"tButtonCode")}});
            if (!progress.Step())
                return false;
        }
        return true;
    }

    bool WriteReaders(const QList<Reader>& readers, RowProgress& progress) {
        WriteHeading(Translate("Readers"), 21);
        for (const Reader& reader : readers) {
            Write({{u"Field2", reader.description}, {u"Field3", reader.id}});
            if (!progress.Step())
                return false;
        }
        return true;
    }

private:
    void WriteHeading(const QString& text, int dashes) {
        Write({{u"Field0", QStringLiteral("")}});
        Write({{u"Field0", text}});
        Write({{u"Field0", QString(dashes, u'-')}});
    }

    void Write(std::initializer_list<std::pair<QStringView, QString>> line) {
        m_table.AddNew();
        for (const auto& [column, text] : line)
            m_table.Set(column, text);
    }

    Recordset& m_table;
};

void Print(Recordset& rows, ReportViewer& viewer) {
    darHardwareList report;
    report.SetDataSource(&rows);
    report.SetReportParam({{u"lblReportTitle", Translate("Hardware List Report")},
                           {u"lblCompanyInfo", CompanyText()}});
    NameDocument(report, {}, Today(), Today());
    SetFrameText(report, u"Label10", u"Label14", u"Label8", u"Label9");
    report.SetText(
        {{u"Label1", Translate("Description")}, {u"Label4", Translate("Hardware Code")}});
    ShowLayoutFrame(report, viewer);
}

} // namespace

void BuildHardwareListReport(const HardwareListRequest& request, ReportViewer& viewer) {
    GuardedWithBox("BuildHardwareListReport", [&] {
        Rows buttons(ButtonsQuery(request));
        const QList<Reader> readers = request.PrintReader ? Readers() : QList<Reader>();
        Recordset rows;
        const auto write = [&] {
            RowProgress progress(viewer.Progress(),
                                 buttons.RecordCount() + static_cast<int>(readers.size()));
            LineWriter lines(rows);
            return lines.WriteButtons(buttons, progress) &&
                   (!request.PrintReader || lines.WriteReaders(readers, progress));
        };
        const auto fill = [&] { return FillScratchTable(ReportTemp, InitRptTmp, rows, write); };
        WithScratchTables(fill, [&] { Print(rows, viewer); });
    });
}
