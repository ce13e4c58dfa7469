#include "Pagination.h"

#include "ReportLayout.h"

#include <algorithm>

Pagination::Pagination(const ReportLayout& layout, qsizetype rowCount) : m_rowCount(rowCount) {
    const int body = layout.PrintableHeight() - layout.HeightOf(SectionKind::PageHeader) -
                     layout.HeightOf(SectionKind::PageFooter);
    const int reportHeader = layout.HeightOf(SectionKind::ReportHeader);
    const int detail = layout.HeightOf(SectionKind::Detail);
    if (detail == 0)
        m_rowCount = 0;
    else {
        m_onFirstPage = (body - reportHeader) / detail;
        m_onOtherPage = body / detail;
    }

    const qsizetype behindFirst = std::max<qsizetype>(0, m_rowCount - m_onFirstPage);
    if (behindFirst > 0)
        m_pageCount += static_cast<int>((behindFirst + m_onOtherPage - 1) / m_onOtherPage);

    const int above = m_pageCount == 1 ? reportHeader : 0;
    const auto lastRows = static_cast<int>(RowsOf(m_pageCount - 1).count);
    if (above + lastRows * detail + layout.HeightOf(SectionKind::ReportFooter) > body)
        ++m_pageCount;
}

Pagination::Rows Pagination::RowsOf(int page) const {
    const qsizetype first = page == 0 ? 0 : m_onFirstPage + (page - 1) * m_onOtherPage;
    const qsizetype room = page == 0 ? m_onFirstPage : m_onOtherPage;
    return {std::min(first, m_rowCount), std::clamp<qsizetype>(m_rowCount - first, 0, room)};
}
