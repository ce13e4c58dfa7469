#include "DataReport.h"

#include "Format.h"
#include "RowSource.h"
#include "RunTimeError.h"

#include <QLocale>
#include <QPagedPaintDevice>

DataReport::DataReport(ReportLayout layout)
    : m_layout(std::move(layout)), m_pages(m_layout, 0, {}) {
    m_fonts.reserve(m_layout.fonts.size());
    for (const FontFace& face : m_layout.fonts)
        m_fonts.emplace_back(m_layout.fontFamilies, face);
}

void DataReport::SetLanguage(const QString& language) {
    m_language = language;
    m_rightToLeft = !language.isEmpty() && QLocale(language).textDirection() == Qt::RightToLeft;
    m_fitted.clear(); // texts that were aligned for the other direction
}

ReportSection& DataReport::Sections(QStringView name) {
    for (ReportSection& section : m_layout.sections)
        if (name.compare(section.Name(), Qt::CaseInsensitive) == 0)
            return section;
    throw RunTimeError(
        RunTimeErrorNumber::NoSuchItem,
        QStringLiteral("The layout \"%1\" has no section \"%2\".").arg(m_layout.file, name));
}

ReportControl& DataReport::Control(QStringView name) {
    for (ReportSection& section : m_layout.sections)
        if (section.Find(name))
            return section.Controls(name);
    throw RunTimeError(
        RunTimeErrorNumber::NoSuchItem,
        QStringLiteral("The layout \"%1\" has no control \"%2\".").arg(m_layout.file, name));
}

int DataReport::FindColumn(const RowSource& rows, const QString& column,
                           const QString& user) const {
    try {
        return rows.Column(column);
    } catch (const RunTimeError& error) {
        throw RunTimeError(error.Number(), QStringLiteral("%1 of layout \"%2\": %3")
                                               .arg(user, m_layout.file, error.Description()));
    }
}

std::vector<int> DataReport::FindColumns(const ReportSection& section,
                                         const RowSource& rows) const {
    std::vector<int> columns;
    for (const ReportControl& control : section.AllControls())
        columns.push_back(control.Kind() == ControlKind::TextBox
                              ? FindColumn(rows, control.DataField(),
                                           QStringLiteral("Text box \"%1\"").arg(control.Name()))
                              : -1);
    return columns;
}

void DataReport::SetDataSource(const RowSource* rows) {
    const qsizetype count = rows ? rows->RowCount() : 0;
    std::array<std::vector<int>, SectionKinds> columns;
    std::vector<qsizetype> groups;
    if (rows) {
        for (const ReportSection& section : m_layout.sections)
            if (HasRow(section.Kind()))
                columns[static_cast<std::size_t>(section.Kind())] = FindColumns(section, *rows);
        if (!m_layout.groupColumn.isEmpty())
            groups = GroupStarts(
                *rows, FindColumn(*rows, m_layout.groupColumn, QStringLiteral("The group")));
        else if (count > 0)
            groups = {0};
    }
    m_pages = Pagination(m_layout, count, groups);
    m_rows = rows;
    m_columns = std::move(columns);
}

void DataReport::PaintPage(QPainter& painter, int page, DateTime printedAt) const {
    if (page < 0 || page >= PageCount())
        throw RunTimeError(RunTimeErrorNumber::SubscriptOutOfRange,
                           QStringLiteral("The report has no page %1.").arg(page + 1));

    PagePainter canvas(painter, m_fonts, m_fitted,
                       {QString::number(page + 1), QString::number(PageCount()),
                        Format(printedAt, QStringLiteral("Short Date")),
                        Format(printedAt, QStringLiteral("Short Time"))},
                       m_rightToLeft ? m_layout.contentWidth : 0);
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
    for (const Pagination::Band& band : m_pages.BandsOf(page)) {
        const ReportSection& section = *m_layout.SectionOf(band.kind);
        canvas.PaintRow(section, at, *m_rows, band.row, ColumnsOf(band.kind));
        at.ry() += section.Height();
    }
    if (m_pages.HasReportFooter(page))
        paintSection(SectionKind::ReportFooter);
    at.setY(m_layout.page.height() - m_layout.marginBottom -
            m_layout.HeightOf(SectionKind::PageFooter));
    paintSection(SectionKind::PageFooter);
}

bool DataReport::PaintSheets(QPainter& painter, QPagedPaintDevice& device,
                             const std::vector<int>& pages, DateTime printedAt,
                             const WorkProgress& progress) const {
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
