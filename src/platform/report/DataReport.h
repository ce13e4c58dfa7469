#pragma once

#include "DateTime.h"
#include "PagePainter.h"
#include "Pagination.h"
#include "ReportFont.h"
#include "ReportLayout.h"
#include "WorkProgress.h"

#include <QPageSize>
#include <QString>

#include <array>
#include <functional>

class QPagedPaintDevice;
class QPainter;
class RowSource;

/// A banded report: a layout whose detail is repeated for each row of a source, with a header and a
/// footer for each group of rows if the layout has them. It keeps no pages: a page is painted from
/// the rows when it is asked for, by the same routine for the screen, a printer and a PDF.
///
/// It needs a QGuiApplication, for the fonts.
class DataReport {
public:
    explicit DataReport(ReportLayout layout);
    virtual ~DataReport() = default;
    DataReport(const DataReport&) = delete;
    DataReport& operator=(const DataReport&) = delete;

    /// The report's title, for windows, print queues and PDF.
    const QString& Caption() const { return m_caption; }
    void SetCaption(const QString& caption) { m_caption = caption; }

    /// What distinguishes this report from others, for the name of a file: the title, with the
    /// tour, reader and dates. The title alone if not set.
    QString DocumentName() const { return m_documentName.isEmpty() ? m_caption : m_documentName; }
    void SetDocumentName(const QString& name) { m_documentName = name; }

    /// Who makes the report and the language of its texts, such as "de"; empty if not set. In a
    /// language that is written from right to left, the pages are mirrored (PagePainter.h).
    const QString& Author() const { return m_author; }
    void SetAuthor(const QString& author) { m_author = author; }
    const QString& Language() const { return m_language; }
    void SetLanguage(const QString& language);
    bool RightToLeft() const { return m_rightToLeft; }

    const ReportLayout& Layout() const { return m_layout; }
    /// The section of that name; upper and lower case are the same. It belongs to the report.
    /// Throws RunTimeError (NoSuchItem).
    ReportSection& Sections(QStringView name);
    /// The first control of that name in any section. It belongs to the report. Throws RunTimeError
    /// (NoSuchItem).
    ReportControl& Control(QStringView name);

    /// The rows to report; null for none. They are not owned, must outlive the report's use and
    /// must not change in number or order. The columns of all text boxes are looked up here: throws
    /// RunTimeError (NoSuchItem) that names the text box, and then keeps the rows that it had.
    void SetDataSource(const RowSource* rows);
    const RowSource* DataSource() const { return m_rows; }
    /// The column of each control of a section; -1 for a control that is not a text box.
    const std::vector<int>& ColumnsOf(SectionKind kind) const {
        return m_columns[static_cast<std::size_t>(kind)];
    }

    /// What is on which page. As fast for many rows as for few.
    const Pagination& Pages() const { return m_pages; }
    /// At least 1.
    int PageCount() const { return m_pages.PageCount(); }

    /// The paper that the pages are made for, in portrait.
    QPageSize Paper() const { return QPageSize(m_layout.paper); }
    /// Its size in hundredths of a millimetre.
    QSize PageSize() const { return m_layout.page; }

    /// Hundredths of a millimetre in an inch, for the painter's scale.
    static constexpr double UnitsPerInch = 2540.0;

    /// Paints one page; `page` counts from 0. The painter's origin is the top left corner of the
    /// paper and its unit a hundredth of a millimetre (scale it by the device's dots per inch
    /// divided by UnitsPerInch). The paper itself is not painted. `printedAt` is the time of
    /// printing that the page shows. Throws RunTimeError (SubscriptOutOfRange) if there is no such
    /// page, and whatever the rows throw; the painter's state is restored in any case.
    void PaintPage(QPainter& painter, int page, DateTime printedAt) const;
    /// Paints pages, in this order, each on its own sheet. The painter has begun on the device's
    /// first sheet. `progress` is called before each page. False if not all were painted: it
    /// cancelled the job, or the device has no further sheet.
    bool PaintSheets(QPainter& painter, QPagedPaintDevice& device, const std::vector<int>& pages,
                     DateTime printedAt, const WorkProgress& progress) const;

private:
    /// `user` is who needs the column, for the message of a failure.
    int FindColumn(const RowSource& rows, const QString& column, const QString& user) const;
    std::vector<int> FindColumns(const ReportSection& section, const RowSource& rows) const;

    ReportLayout m_layout;
    std::vector<ReportFont> m_fonts;
    mutable FittedTexts m_fitted{500};
    QString m_caption;
    QString m_documentName;
    QString m_author;
    QString m_language;
    bool m_rightToLeft = false;
    const RowSource* m_rows = nullptr;
    std::array<std::vector<int>, SectionKinds> m_columns;
    Pagination m_pages;
};
