#pragma once

#include "ReportSection.h"

#include <vector>

class RowSource;
struct ReportLayout;

/// The first row of each group: the rows of a group share the value of `column`. The rows must be
/// ordered by that column. Few rows are read if the groups are long, so a million rows in a few
/// groups cost nothing.
std::vector<qsizetype> GroupStarts(const RowSource& rows, int column);

/// Which rows are on which page. Every band has a fixed height, so the pages of one group are
/// found by arithmetic, and those of a report in one step a group.
///
/// - A group header is followed by at least one row on the same page. If its group continues, it is
///   repeated at the top of the next page.
/// - A group footer is on the page of the group's last row. If it does not fit there, that row goes
///   to the next page with it.
/// - The report footer comes after the last group; on a page of its own only if it does not fit.
///
/// A layout without groups is one whose rows are a single group without header and footer.
class Pagination {
public:
    /// A run of rows, from 0.
    struct Rows {
        qsizetype first;
        qsizetype count;
    };
    /// A section on a page, and the row whose values it shows.
    struct Band {
        SectionKind kind;
        qsizetype row;
        bool operator==(const Band&) const = default;
    };

    /// `rowCount` rows of a checked layout. `groupStarts` begins with 0, and is empty if there are
    /// no rows. Without rows, or if the detail has no height, there is one page.
    Pagination(const ReportLayout& layout, qsizetype rowCount,
               const std::vector<qsizetype>& groupStarts);

    int PageCount() const { return m_pageCount; }
    /// The rows of a page with the headers and footers of their groups, from top to bottom. `page`
    /// counts from 0 and must be below PageCount().
    std::vector<Band> BandsOf(int page) const;
    bool HasReportFooter(int page) const { return page == m_pageCount - 1; }

    std::size_t GroupCount() const { return m_groups.size(); }
    Rows RowsOf(std::size_t group) const;

private:
    struct Group {
        qsizetype firstRow;
        int firstPage;
        int onFirstPage; ///< rows
    };

    qsizetype RowsThatFit(qsizetype rows, int room) const;
    int FullPages(qsizetype rows) const;
    int LastPage(std::size_t group) const;
    Rows RowsOnPage(std::size_t group, int page) const;

    qsizetype m_rowCount;
    int m_body; ///< room for bands on every page; the report header takes some on the first
    int m_header;
    int m_detail;
    int m_footer;
    std::vector<Group> m_groups;
    int m_pageCount = 1;
};
