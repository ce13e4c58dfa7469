#pragma once

#include "FittedText.h"
#include "ReportFont.h"
#include "ReportSection.h"

#include <QCache>
#include <QPainter>

#include <span>
#include <vector>

class RowSource;

/// The texts that replace the placeholders of a caption on one page.
struct PageWords {
    QString page;  ///< "%p"
    QString pages; ///< "%P"
    QString date;  ///< "%d"
    QString time;  ///< "%t"

    QString Expanded(const QString& pattern) const;
};

/// Texts that had to be fitted, kept from page to page: page headers and many names are repeated.
using FittedTexts = QCache<std::pair<const ControlStyle*, QString>, FittedText>;

/// Paints the sections of one page. The painter's unit is a hundredth of a millimetre. Its
/// destructor restores the painter's state.
///
/// A page can be mirrored, for a language that is written from right to left: each control changes
/// sides within its section, and what was aligned to the left is aligned to the right. The texts
/// themselves keep their own direction: numbers and codes look the same on both pages.
class PagePainter {
public:
    /// `mirroredWidth` is the width of the sections if the page is mirrored, and 0 if not.
    PagePainter(QPainter& painter, const std::vector<ReportFont>& fonts, FittedTexts& fitted,
                PageWords words, int mirroredWidth);
    ~PagePainter();
    PagePainter(const PagePainter&) = delete;
    PagePainter& operator=(const PagePainter&) = delete;

    /// The labels and lines of a section.
    void PaintSection(const ReportSection& section, QPoint origin);
    /// A section with the values of a row. `columns` has the column of each control, or -1.
    void PaintRow(const ReportSection& section, QPoint origin, const RowSource& rows, qsizetype row,
                  const std::vector<int>& columns);

private:
    void PaintFixed(const ReportControl& control, QPoint origin);
    QRect BoxOf(const ControlStyle& style, QPoint origin) const;
    Qt::Alignment AlignmentOf(const ControlStyle& style) const;
    void PaintLine(const ControlStyle& style, QPoint origin);
    void DrawLine(QPointF from, QPointF to, const QColor& colour, qreal thickness);
    void PaintText(const ControlStyle& style, QPoint origin, const QString& text,
                   bool mayHaveLines = false);
    void PaintRule(const ControlStyle& style, const QRectF& box, const QString& text);
    void PaintLines(const ControlStyle& style, const QRectF& box, std::span<const QString> lines);
    bool PaintPlainly(const ControlStyle& style, const QRectF& box, std::span<const QString> lines);
    void PaintFitted(const ControlStyle& style, const QRectF& box, const QStringList& lines);
    const ReportFont& FontOf(const ControlStyle& style) const;
    const ReportFont& Use(const ControlStyle& style);
    qreal FirstBaseline(const ControlStyle& style, const QRectF& box, std::size_t lines) const;

    QPainter& m_painter;
    const std::vector<ReportFont>& m_fonts;
    FittedTexts& m_fitted;
    PageWords m_words;
    int m_mirroredWidth;
    int m_font = -1; ///< the painter's present font; its present colour follows
    QColor m_colour;
};
