#pragma once

#include "ReportFont.h"
#include "ReportSection.h"

#include <QPainter>

#include <vector>

class RowSource;

/// What the placeholders of a caption stand for on one page.
struct PageWords {
    QString page;  ///< "%p"
    QString pages; ///< "%P"
    QString date;  ///< "%d"
    QString time;  ///< "%t"

    QString Expanded(const QString& pattern) const;
};

/// Paints the sections of one page. The painter's unit is a hundredth of a millimetre; its state is
/// as before when the painter of the page is gone.
class PagePainter {
public:
    PagePainter(QPainter& painter, const std::vector<ReportFont>& fonts, PageWords words);
    ~PagePainter();
    PagePainter(const PagePainter&) = delete;
    PagePainter& operator=(const PagePainter&) = delete;

    /// Labels and lines.
    void PaintSection(const ReportSection& section, QPoint origin);
    /// One row: `columns` holds the column of each of the section's controls, or -1.
    void PaintRow(const ReportSection& section, QPoint origin, const RowSource& rows, qsizetype row,
                  const std::vector<int>& columns);

private:
    void PaintFixed(const ReportControl& control, QPoint origin);
    void PaintLine(const ControlStyle& style, QPoint origin);
    void PaintLabel(const ControlStyle& style, QPoint origin, const QString& caption);
    void DrawLine(QPointF from, QPointF to, const QColor& colour, qreal thickness);
    void PaintRule(const ControlStyle& style, const QRectF& box, qreal baseline, qsizetype letters);
    void PaintText(const ControlStyle& style, const QRectF& box, qreal baseline,
                   const QString& text);
    const ReportFont& Use(const ControlStyle& style);
    qreal FirstBaseline(const ControlStyle& style, const QRectF& box, qsizetype lines) const;

    QPainter& m_painter;
    const std::vector<ReportFont>& m_fonts;
    PageWords m_words;
    int m_font = -1; ///< what the painter is set to
    QColor m_colour;
};
