#include "Pagination.h"

#include "ReportLayout.h"
#include "RowSource.h"

#include <algorithm>

std::vector<qsizetype> GroupStarts(const RowSource& rows, int column) {
    const qsizetype count = rows.RowCount();
    std::vector<qsizetype> starts;
    for (qsizetype start = 0; start < count;) {
        starts.push_back(start);
        const Value value = rows.ValueAt(start, column);
        // Doubles the step until the value changes, then halves the last one to find the change.
        qsizetype same = start, step = 1;
        while (same + step < count && rows.ValueAt(same + step, column) == value) {
            same += step;
            step *= 2;
        }
        qsizetype other = std::min(same + step, count);
        while (other - same > 1) {
            const qsizetype middle = same + (other - same) / 2;
            (rows.ValueAt(middle, column) == value ? same : other) = middle;
        }
        start = other;
    }
    return starts;
}

Pagination::Pagination(const ReportLayout& layout, qsizetype rowCount,
                       const std::vector<qsizetype>& groupStarts)
    : m_rowCount(rowCount),
      m_body(layout.PrintableHeight() - layout.HeightOf(SectionKind::PageHeader) -
             layout.HeightOf(SectionKind::PageFooter)),
      m_header(layout.HeightOf(SectionKind::GroupHeader)),
      m_detail(layout.HeightOf(SectionKind::Detail)),
      m_footer(layout.HeightOf(SectionKind::GroupFooter)) {
    int page = 0;
    int room = m_body - layout.HeightOf(SectionKind::ReportHeader);
    if (m_detail > 0)
        m_groups.reserve(groupStarts.size());
    for (std::size_t i = 0; m_detail > 0 && i < groupStarts.size(); ++i) {
        const qsizetype end = i + 1 < groupStarts.size() ? groupStarts[i + 1] : rowCount;
        const qsizetype rows = end - groupStarts[i];
        if (RowsThatFit(rows, room) < 1) {
            ++page;
            room = m_body;
        }
        const qsizetype here = RowsThatFit(rows, room);
        m_groups.push_back({groupStarts[i], page, static_cast<int>(here)});
        const qsizetype rest = rows - here;
        qsizetype onLastPage = rows;
        if (rest > 0) {
            const int full = FullPages(rest);
            const qsizetype perPage = (m_body - m_header) / m_detail;
            onLastPage = std::max<qsizetype>(1, rest - full * perPage);
            page += 1 + full;
            room = m_body;
        }
        room -= static_cast<int>(m_header + onLastPage * m_detail + m_footer);
    }
    m_pageCount = page + 1;
    if (layout.HeightOf(SectionKind::ReportFooter) > room)
        ++m_pageCount;
}

/// How many of a group's last `rows` rows go into a page's room, below the group header: all with
/// the footer, or as many as fit, but then not the last one.
qsizetype Pagination::RowsThatFit(qsizetype rows, int room) const {
    if (m_header + rows * m_detail + m_footer <= room)
        return rows;
    return std::min<qsizetype>(rows - 1, std::max(0, room - m_header) / m_detail);
}

/// The pages that a group's last `rows` rows take, but for the page of the last row.
int Pagination::FullPages(qsizetype rows) const {
    const qsizetype perPage = (m_body - m_header) / m_detail;
    const qsizetype withFooter = (m_body - m_header - m_footer) / m_detail;
    return rows <= withFooter ? 0 : static_cast<int>((rows - withFooter + perPage - 1) / perPage);
}

Pagination::Rows Pagination::RowsOf(std::size_t group) const {
    const qsizetype first = m_groups[group].firstRow;
    const qsizetype end = group + 1 < m_groups.size() ? m_groups[group + 1].firstRow : m_rowCount;
    return {first, end - first};
}

int Pagination::LastPage(std::size_t group) const {
    const qsizetype rest = RowsOf(group).count - m_groups[group].onFirstPage;
    return m_groups[group].firstPage + (rest > 0 ? 1 + FullPages(rest) : 0);
}

Pagination::Rows Pagination::RowsOnPage(std::size_t group, int page) const {
    const Group& at = m_groups[group];
    const Rows all = RowsOf(group);
    if (page == at.firstPage)
        return {all.first, at.onFirstPage};
    const qsizetype perPage = (m_body - m_header) / m_detail;
    // A last row that its footer has taken to the next page is alone there.
    const qsizetype before =
        std::min(at.onFirstPage + (page - at.firstPage - 1) * perPage, all.count - 1);
    return {all.first + before, RowsThatFit(all.count - before, m_body)};
}

std::vector<Pagination::Band> Pagination::BandsOf(int page) const {
    const auto begins = std::partition_point(m_groups.begin(), m_groups.end(),
                                             [&](const Group& at) { return at.firstPage < page; });
    auto group = static_cast<std::size_t>(begins - m_groups.begin());
    if (group > 0 && LastPage(group - 1) >= page)
        --group;
    std::vector<Band> bands;
    for (; group < m_groups.size() && m_groups[group].firstPage <= page; ++group) {
        const Rows all = RowsOf(group), here = RowsOnPage(group, page);
        if (m_header > 0)
            bands.push_back({SectionKind::GroupHeader, all.first});
        for (qsizetype row = here.first; row < here.first + here.count; ++row)
            bands.push_back({SectionKind::Detail, row});
        const qsizetype last = all.first + all.count - 1;
        if (m_footer > 0 && here.first + here.count - 1 == last)
            bands.push_back({SectionKind::GroupFooter, last});
    }
    return bands;
}
