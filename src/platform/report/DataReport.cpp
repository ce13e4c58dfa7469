#include "DataReport.h"

#include "Format.h"
#include "RowSource.h"
#include "RunTimeError.h"

#include <QPagedPaintDevice>

DataReport::DataReport(ReportLayout layout) : m_layout(std::move(layout)) {
    m_fonts.reserve(m_layout.fonts.size());
    for (const FontFace& face : m_layout.fonts)
        m_fonts.emplace_back(m_layout.fontFamilies, face);
}

ReportSection& DataReport::Sections(QStringView name) {
    for (ReportSection& section : m_layout.sections)
        if (name.compare(section.Name(), Qt::CaseInsensitive) == 0)
            return section;
    throw RunTimeError(
        RunTimeErrorNumber::NoSuchItem,
        QStringLiteral("The layout \"%1\" has no section \"%2\".").arg(m_layout.file, name));
}

void DataReport::SetDataSource(const RowSource* rows) {
    std::vector<int> columns;
    const ReportSection* detail = m_layout.SectionOf(SectionKind::Detail);
    if (rows && detail) {
        for (const ReportControl& control : detail->AllControls()) {
            int column = -1;
            try {
                if (control.Kind() == ControlKind::TextBox)
                    column = rows->Column(control.DataField());
            } catch (const RunTimeError& error) {
                throw RunTimeError(error.Number(),
                                   QStringLiteral("Text box \"%1\" of layout \"%2\": %3")
                                       .arg(control.Name(), m_layout.file, error.Description()));
            }
            columns.push_back(column);
        }
    }
    m_rows = rows;
    m_columns = std::move(columns);
}

Pagination DataReport::Pages() const {
    return Pagination(m_layout, m_rows ? m_rows->RowCount() : 0);
}

void DataReport::PaintPage(QPainter& painter, int page, DateTime printedAt) const {
    const Pagination pages = Pages();
    if (page < 0 || page >= pages.PageCount())
        throw RunTimeError(RunTimeErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("The report has no page %1.").arg(page + 1));

    PagePainter canvas(painter, m_fonts, m_fitted,
                       {QString::number(page + 1), QString::number(pages.PageCount()),
                        Format(printedAt, QStringLiteral("Short Date")),
                        Format(printedAt, QStringLiteral("Short Time"))});
    QPoint at((m_layout.page.width() - m_layout.contentWidth) / 2, m_layout.marginTop);
    const auto paintSection = [&](SectionKind kind) {
        if (const ReportSection* section = m_layout.SectionOf(kind)) {
            canvas.PaintSection(*section, at);
            at.ry() += section->Height();
        }
    };

    if (page == 0)
        paintSection(SectionKind::ReportHeader);
    paintSection(SectionKind::PageHeader);
    const Pagination::Rows rows = pages.RowsOf(page);
    if (rows.count > 0) {
        const ReportSection& detail = *m_layout.SectionOf(SectionKind::Detail);
        for (qsizetype i = 0; i < rows.count; ++i) {
            canvas.PaintRow(detail, at, *m_rows, rows.first + i, m_columns);
            at.ry() += detail.Height();
        }
    }
    if (pages.HasReportFooter(page))
        paintSection(SectionKind::ReportFooter);
    at.setY(m_layout.page.height() - m_layout.marginBottom -
            m_layout.HeightOf(SectionKind::PageFooter));
    paintSection(SectionKind::PageFooter);
}

bool DataReport::PaintSheets(QPainter& painter, QPagedPaintDevice& device,
                             const std::vector<int>& pages, DateTime printedAt,
                             const PageProgress& progress) const {
    const auto all = static_cast<int>(pages.size());
    for (int done = 0; done < all; ++done) {
        if (progress && !progress(done, all))
            return false;
        if (done > 0 && !device.newPage())
            return false;
        PaintPage(painter, pages[static_cast<std::size_t>(done)], printedAt);
    }
    return true;
}
