#pragma once

#include <QtGlobal>

struct ReportLayout;

/// Which rows stand on which page. Every band has a fixed height, so this is arithmetic and as fast
/// for a million rows as for one.
class Pagination {
public:
    /// A run of rows, from 0.
    struct Rows {
        qsizetype first;
        qsizetype count;
    };

    /// `rowCount` rows of a checked layout. Without rows, or with a detail that has no height,
    /// there is one page.
    Pagination(const ReportLayout& layout, qsizetype rowCount);

    int PageCount() const { return m_pageCount; }
    /// `page` counts from 0 and must be below PageCount().
    Rows RowsOf(int page) const;
    /// It stands behind the last row; on a page of its own only if it does not fit there.
    bool HasReportFooter(int page) const { return page == m_pageCount - 1; }

private:
    qsizetype m_rowCount;
    qsizetype m_onFirstPage = 0; ///< rows for which the first page has room
    qsizetype m_onOtherPage = 0;
    int m_pageCount = 1;
};
