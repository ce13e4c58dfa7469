// Measures the PDF export of each report, and the time until a preview shows its first page.

#include "DataReport.h"
#include "Figures.h"
#include "Format.h"
#include "ReportPdf.h"
#include "RowSource.h"
#include "darReport.h"
#include "frmPreview.h"

#include <QApplication>
#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include <array>

namespace {

constexpr qsizetype ManyRows = 100'000;
constexpr qsizetype FewRows = 100;
constexpr qsizetype RowsOfGroup = 200;

/// A layout and the lines that its rows repeat. A "#" is the row's number. A column whose name
/// begins with "dt" has dates, one value for each group if the layout groups by it.
struct Sample {
    const char* layout;
    QStringList columns;
    std::vector<QStringList> lines;
};

const Sample Samples[] = {
    {"darTourException",
     {"tTourTime", "txtTourTimeRange", "tSiteName", "tStatus", "tSeparator", "txtEventTime",
      "txtEventStatus", "txtEventDetails"},
     {{"", "", "", "", QString(255, u'_')},
      {"23:15", "23:10 to 23:20", "Harbour Warehouse - Gate #", "EXCEPTION"},
      {"", "", "", "", "", "23:07", "LATE", "Harbour Warehouse - Gate #"},
      {"", "", "", "", "", "23:22", "LATE", "Harbour Warehouse - Gate #"},
      {"", "", "", "", "", "23:31", "LATE", "Harbour Warehouse - Gate #"}}},
    {"darIncident",
     {"Field0", "Field1", "Field2"},
     {{},
      {"Broken window [1A4003] -- Incidents #"},
      {"", "22/11/2026 23:15", "Gate #, Harbour Warehouse,  Reader 4B5831A7"},
      {"", "22/11/2026 23:31", "Gate #, Harbour Warehouse,  Reader 4B5831A7"}}},
    {"darIncidentOld",
     {"tDate", "tTime", "tReaderName", "tSite", "tLocation", "tIncident"},
     {{"22/11/2026", "23:15", "Guard 1", "Harbour Warehouse", "Gate #", ""},
      {"22/11/2026", "23:31", "Guard 1", "Harbour Warehouse", "Gate #", "Broken window"}}},
    {"darPatrolSchedule",
     {"tNumber", "tTime", "tSite", "tLocName"},
     {{"#", "23:15     (23:10 ~ 23:20)", "Harbour Warehouse ", "Gate # "}}},
    {"darReaderUpload",
     {"dtDLDateTime", "dtDateTime", "tButtonCode", "tButtonName", "tButtonDesc", "tGroupName"},
     {{"", "", "1A4003", "Gate #", "Ground floor, east", "Harbour Warehouse"}}},
    {"darHardwareList",
     {"Field0", "Field1", "Field2", "Field3"},
     {{},
      {"Locations"},
      {"--------------------"},
      {"", "Harbour Warehouse - Quay #"},
      {"", "", "Gate # - Ground floor", "1A4003"},
      {"", "", "Gate # - Ground floor", "1A4004"}}},
    {"darCustom",
     {"tDateTime", "tButtonCode", "tButtonName", "tGroupName", "tType"},
     {{"", "1A4003", "Gate #", "Harbour Warehouse", "Location"}}},
};

/// All values are made beforehand: what is measured is the painting.
class SampleRows : public RowSource {
public:
    SampleRows(const Sample& sample, qsizetype count) : m_columns(sample.columns) {
        const DateTime start = DateTime::FromQt(QDate(2026, 1, 1)) + DateTime::FromTime(0, 0, 30);
        for (qsizetype row = 0; row < count; ++row) {
            const QStringList& line =
                sample.lines[static_cast<std::size_t>(row) % sample.lines.size()];
            const auto minutes = [&](qsizetype passed) {
                return start + DateTime::FromMilliseconds(passed * 60'000);
            };
            std::vector<Value>& values = m_rows.emplace_back();
            for (qsizetype column = 0; column < m_columns.size(); ++column) {
                if (m_columns[column] == u"dtDLDateTime")
                    values.emplace_back(minutes(row - row % RowsOfGroup));
                else if (m_columns[column] == u"dtDateTime")
                    values.emplace_back(minutes(row));
                else if (m_columns[column] == u"tDateTime")
                    values.emplace_back(DefaultDateTimeText(minutes(row)));
                else
                    values.emplace_back(line.value(column).replace(u'#', QString::number(row)));
            }
        }
    }
    qsizetype RowCount() const override { return static_cast<qsizetype>(m_rows.size()); }
    const QStringList& Columns() const override { return m_columns; }
    Value ValueAt(qsizetype row, int column) const override {
        return m_rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
    }

private:
    QStringList m_columns;
    std::vector<std::vector<Value>> m_rows;
};

/// A report of these rows, its dates in formats and its labels with texts.
class SampleReport : public darReport {
public:
    SampleReport(const Sample& sample, const RowSource& rows)
        : darReport(QString::fromLatin1(sample.layout)) {
        SetReportParam({{u"lblReportTitle", QStringLiteral("Report")}});
        for (const ReportSection& section : Layout().sections)
            for (const ReportControl& control : section.AllControls())
                if (control.DataField().contains(u"DateTime"))
                    Control(control.Name())
                        .SetDataFormat(control.Name().endsWith(u"Date") ? GetShortDateFormat()
                                                                        : QStringLiteral("HH:NN"));
        SetDataSource(&rows);
    }
};

/// Draws the same texts and rules in the same places and fonts directly onto the PDF, as code
/// written for this one report would. Texts of dates are made beforehand.
class HandDrawn {
public:
    explicit HandDrawn(const DataReport& report)
        : m_layout(report.Layout()), m_rows(*report.DataSource()), m_pages(report.Pages()) {
        for (const FontFace& face : m_layout.fonts) {
            QFont font(m_layout.fontFamilies);
            font.setPointSizeF(face.points);
            font.setBold(face.bold);
            m_fonts.push_back(font);
        }
        for (const ReportSection& section : m_layout.sections)
            for (const ReportControl& control : section.AllControls())
                m_sources[Index(section.Kind())].push_back(SourceOf(control));
    }

    void Write() {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        writer.setPageSize(m_layout.paper);
        writer.setPageMargins({});
        m_unit = writer.logicalDpiX() / DataReport::UnitsPerInch;
        QPainter painter(&writer);
        const ReportSection* head = m_layout.SectionOf(SectionKind::PageHeader);
        for (int page = 0; page < m_pages.PageCount(); ++page) {
            if (page > 0)
                writer.newPage();
            m_font = -1;
            int top = m_layout.marginTop;
            for (const ReportControl& control : head->AllControls())
                Draw(painter, control, top, control.Caption());
            top += head->Height();
            for (const auto& [kind, row] : m_pages.BandsOf(page)) {
                const ReportSection& band = *m_layout.SectionOf(kind);
                const std::vector<Source>& sources = m_sources[Index(kind)];
                for (std::size_t i = 0; i < sources.size(); ++i)
                    Draw(painter, band.AllControls()[i], top,
                         TextOf(band.AllControls()[i], sources[i], row));
                top += band.Height();
            }
        }
    }

private:
    struct Source {
        int column = -1;
        QStringList dates; ///< empty if the column has none
    };

    static std::size_t Index(SectionKind kind) { return static_cast<std::size_t>(kind); }

    Source SourceOf(const ReportControl& control) const {
        Source source;
        if (control.Kind() == ControlKind::TextBox)
            source.column = m_rows.Column(control.DataField());
        if (control.DataField().contains(u"DateTime"))
            for (qsizetype row = 0; row < m_rows.RowCount(); ++row)
                source.dates += control.TextOf(m_rows.ValueAt(row, source.column));
        return source;
    }

    QString TextOf(const ReportControl& control, const Source& source, qsizetype row) const {
        if (source.column < 0)
            return control.Caption();
        return source.dates.isEmpty() ? m_rows.TextAt(row, source.column) : source.dates[row];
    }

    void Draw(QPainter& painter, const ReportControl& control, int top, const QString& text) {
        const ControlStyle& style = control.Style();
        const int left = (m_layout.page.width() - m_layout.contentWidth) / 2;
        const QRectF place((style.box.left() + left) * m_unit, (style.box.top() + top) * m_unit,
                           style.box.width() * m_unit, style.box.height() * m_unit);
        if (control.Kind() == ControlKind::Line) {
            painter.setPen(QPen(style.colour, style.thickness * m_unit));
            painter.drawLine(place.topLeft(), place.topRight());
        } else if (text.startsWith(u"__")) {
            painter.setPen(QPen(style.colour, 20 * m_unit));
            painter.drawLine(place.bottomLeft(), place.bottomRight());
        } else if (!text.isEmpty()) {
            if (m_font != style.font)
                painter.setFont(m_fonts[static_cast<std::size_t>(style.font)]);
            m_font = style.font;
            painter.setPen(style.colour);
            painter.drawText(place, static_cast<int>(style.alignment), text);
        }
    }

    const ReportLayout& m_layout;
    const RowSource& m_rows;
    const Pagination& m_pages;
    std::array<std::vector<Source>, SectionKinds> m_sources;
    std::vector<QFont> m_fonts;
    double m_unit = 1;
    int m_font = -1;
};

void Pdf(const DataReport& report) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    ExportPdf(report, buffer);
}

/// Opens a preview and waits until its first page is painted.
void OpenPreview(const Sample& sample, const RowSource& rows) {
    const SampleReport report(sample, rows);
    frmPreview preview(
        report, [](const QString& text) { return text; }, nullptr);
    preview.show();
    while (preview.PagesPainted() == 0)
        QApplication::processEvents();
}

} // namespace

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    Figures figures;
    for (const Sample& sample : Samples) {
        const SampleRows many(sample, ManyRows), few(sample, FewRows);
        const SampleReport report(sample, many);
        HandDrawn byHand(report);
        const std::string pdf = std::string("PDF of 100,000 rows, ") + sample.layout;
        figures.Compare(
            pdf, 1.3, [&] { Pdf(report); }, [&] { byHand.Write(); }, 1);

        OpenPreview(sample, few); // so that fonts and icons are loaded
        const std::string page = std::string("first page of 100,000 rows, ") + sample.layout;
        figures.Compare(
            page, 1.5, [&] { OpenPreview(sample, many); }, [&] { OpenPreview(sample, few); }, 11);
    }
    return figures.ExitStatus();
}
