#pragma once

#include <QStringList>
#include <QTextLayout>

#include <memory>
#include <vector>

class QPainter;
class ReportFont;

/// A text that is too large for its box, made to fit. Its letters are condensed first, then made
/// smaller and wrapped. If it is still too long, it is shortened with an ellipsis. Nothing is ever
/// painted outside the box.
class FittedText {
public:
    /// Letters keep at least this part of their width,
    static constexpr qreal Narrowest = 2.0 / 3.0;
    /// and are at least this many points high. A font of the layout that is smaller keeps its size.
    static constexpr qreal SmallestPoints = 5;

    /// Each of `lines` begins a new line. The box is in the font's unit.
    FittedText(const ReportFont& font, const QStringList& lines, QSizeF box,
               Qt::Alignment alignment);

    /// Paints in the painter's colour into a box that begins at `topLeft`.
    void Paint(QPainter& painter, QPointF topLeft) const;

private:
    bool LayOut(qreal down, qreal across);
    bool LayOutCondensed(qreal size);
    void FindSize(qreal smallest);
    void Shorten();
    qreal Top() const;

    const ReportFont& m_font;
    QSizeF m_box;
    Qt::Alignment m_alignment;
    std::vector<std::unique_ptr<QTextLayout>> m_texts;
    qreal m_left = 0; ///< kept free, for ink that reaches beyond the letters' places
    qreal m_right = 0;
    qreal m_natural = 0; ///< width of the longest line at full size
    qreal m_across = 1;  ///< scale of the letters' width
    qreal m_down = 1;    ///< and of their height
    qreal m_height = 0;  ///< of all lines at full size
};
