#pragma once

#include "DateTime.h"
#include "PagePainter.h"
#include "Pagination.h"
#include "ReportFont.h"
#include "ReportLayout.h"

#include <QPageSize>
#include <QString>

#include <functional>

class QPagedPaintDevice;
class QPainter;
class RowSource;

/// Asked before each page of a job: `done` of its `all` pages are painted. False ends the job.
using PageProgress = std::function<bool(int done, int all)>;

/// A banded report: a layout whose detail is repeated for each row of a source. It holds no page;
/// any page is painted from the rows when asked for, alike for the screen, a printer and a PDF.
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

    /// The section of that name, whose case does not count. It belongs to the report. Throws
    /// RunTimeError (NoSuchItem).
    ReportSection& Sections(QStringView name);

    /// The rows to report; null for none. They are not owned and must outlive the report's use.
    /// The columns of all text boxes are looked up here: throws RunTimeError (NoSuchItem) that
    /// names the text box, and then keeps the rows that it had.
    void SetDataSource(const RowSource* rows);
    const RowSource* DataSource() const { return m_rows; }

    /// At least 1. As fast for many rows as for few.
    int PageCount() const { return Pages().PageCount(); }
    Pagination::Rows RowsOfPage(int page) const { return Pages().RowsOf(page); }

    /// The paper that the pages are made for, upright.
    QPageSize Paper() const { return QPageSize(m_layout.paper); }
    /// Its size in hundredths of a millimetre.
    QSize PageSize() const { return m_layout.page; }

    /// Hundredths of a millimetre in an inch, for the painter's scale.
    static constexpr double UnitsPerInch = 2540.0;

    /// Paints one page; `page` counts from 0. The painter's origin is the top left corner of the
    /// paper and its unit a hundredth of a millimetre (scale it by the device's dots per inch over
    /// UnitsPerInch). The paper itself is not painted. `printedAt` is the time of printing that the
    /// page shows. Throws RunTimeError (SubscriptOutOfRange) for a page that does not exist, and
    /// whatever the rows throw; the painter's state is then as before.
    void PaintPage(QPainter& painter, int page, DateTime printedAt) const;
    /// Paints pages, in this order, each on a sheet of its own; the painter has begun on the
    /// device's first sheet. False if that was ended before the last one, by `progress` or because
    /// the device gives no further sheet.
    bool PaintSheets(QPainter& painter, QPagedPaintDevice& device, const std::vector<int>& pages,
                     DateTime printedAt, const PageProgress& progress) const;

private:
    Pagination Pages() const;

    ReportLayout m_layout;
    std::vector<ReportFont> m_fonts;
    mutable FittedTexts m_fitted{500};
    QString m_caption;
    const RowSource* m_rows = nullptr;
    std::vector<int> m_columns; ///< of the detail's controls; -1 for what is no text box
};
