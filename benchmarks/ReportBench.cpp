// Measures the PDF export of a report, and the time until a preview shows its first page.

#include "DataReport.h"
#include "Figures.h"
#include "ReportPdf.h"
#include "RowSource.h"
#include "TourExceptionTable.h"
#include "darTourException.h"
#include "frmPreview.h"

#include <QApplication>
#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

namespace {

constexpr qsizetype ManyRows = 100'000;
constexpr qsizetype FewRows = 100;

/// The lines of a long tour report: a rule, a tour line, three detail lines, and again.
class TourRows : public RowSource {
public:
    explicit TourRows(qsizetype count) : m_count(count) {}
    qsizetype RowCount() const override { return m_count; }
    const QStringList& Columns() const override { return TourExceptionTable::ColumnNames(); }
    Value ValueAt(qsizetype row, int column) const override { return Text(row, column); }

private:
    static QString Text(qsizetype row, int column) {
        static const QString rule(255, u'_');
        switch (row % 5) {
        case 0:
            return column == 7 ? rule : QString();
        case 1:
            switch (column) {
            case 1:
                return QStringLiteral("23:15");
            case 2:
                return QStringLiteral("23:10 to 23:20");
            case 5:
                return QStringLiteral("Harbour Warehouse - Gate %1").arg(row);
            case 6:
                return QStringLiteral("EXCEPTION");
            default:
                return {};
            }
        default:
            switch (column) {
            case 8:
                return QStringLiteral("23:%1").arg(row % 60, 2, 10, QLatin1Char('0'));
            case 9:
                return QStringLiteral("LATE");
            case 10:
                return QStringLiteral("Harbour Warehouse - Gate %1").arg(row);
            default:
                return {};
            }
        }
    }

    qsizetype m_count;
};

void SetTexts(darTourException& report) {
    report.SetReportParam({{u"lblPrintDate", QStringLiteral("22/11/2026    08:00")},
                           {u"lblDateRange", QStringLiteral("21/11/2026")},
                           {u"lblTourName", QStringLiteral("Night round - Harbour")},
                           {u"lblReaderID", QStringLiteral("4B5831A7")},
                           {u"lblReportTitle", QStringLiteral("Tour Report")},
                           {u"lblTolerance", QStringLiteral("5")},
                           {u"lblOptions", QStringLiteral("Yes")}});
}

/// Draws the same texts and rules in the same places and fonts directly onto the PDF, as code
/// written for this one report would.
class HandDrawn {
public:
    explicit HandDrawn(DataReport& report)
        : m_layout(LoadReportLayout(QStringLiteral("darTourException"))),
          m_rows(*report.DataSource()), m_pages(report.PageCount()),
          m_head(report.Sections(u"Section2").AllControls()),
          m_detail(report.Sections(u"Section1").AllControls()) {
        for (const FontFace& face : m_layout.fonts) {
            QFont font(m_layout.fontFamilies);
            font.setPointSizeF(face.points);
            font.setBold(face.bold);
            m_fonts.push_back(font);
        }
        for (const ReportControl& control : m_detail)
            m_columns.push_back(m_rows.Column(control.DataField()));
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
        const int headHeight = m_layout.HeightOf(SectionKind::PageHeader);
        const int rowHeight = m_layout.HeightOf(SectionKind::Detail);
        const int perPage = (m_layout.PrintableHeight() - headHeight) / rowHeight;
        qsizetype row = 0;
        for (int page = 0; page < m_pages; ++page) {
            if (page > 0)
                writer.newPage();
            m_font = -1;
            for (const ReportControl& control : m_head)
                Draw(painter, control, m_layout.marginTop, control.Caption());
            for (int line = 0; line < perPage && row < m_rows.RowCount(); ++line, ++row) {
                const int top = m_layout.marginTop + headHeight + line * rowHeight;
                for (std::size_t i = 0; i < m_detail.size(); ++i)
                    Draw(painter, m_detail[i], top, m_rows.TextAt(row, m_columns[i]));
            }
        }
    }

private:
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

    ReportLayout m_layout;
    const RowSource& m_rows;
    int m_pages;
    const std::vector<ReportControl>& m_head;
    const std::vector<ReportControl>& m_detail;
    std::vector<QFont> m_fonts;
    std::vector<int> m_columns;
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
void OpenPreview(const RowSource& rows) {
    darTourException report;
    report.SetDataSource(&rows);
    SetTexts(report);
    frmPreview preview(
        report, [](const QString& text) { return text; }, nullptr);
    preview.show();
    while (preview.PagesPainted() == 0)
        QApplication::processEvents();
}

} // namespace

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    const TourRows many(ManyRows), few(FewRows);
    Figures figures;

    darTourException report;
    report.SetDataSource(&many);
    SetTexts(report);
    HandDrawn byHand(report);
    figures.Compare(
        "PDF of 100,000 report rows", 1.5, [&] { Pdf(report); }, [&] { byHand.Write(); }, 3);

    OpenPreview(few); // so that fonts and icons are loaded
    figures.Compare(
        "first page of a preview of 100,000 rows", 1.5, [&] { OpenPreview(many); },
        [&] { OpenPreview(few); }, 11);
    return figures.ExitStatus();
}
