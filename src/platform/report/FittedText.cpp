#include "FittedText.h"

#include "Format.h"
#include "ReportFont.h"

#include <QPainter>

#include <algorithm>

namespace {

/// Much wider than any paper, and well within what a text layout can compute with.
constexpr qreal Endless = 1e7;
/// How often a range of sizes is halved. The error that is left cannot be seen.
constexpr int SizeSteps = 6;
constexpr QChar Ellipsis = u'\u2026';

/// The largest scale that fits, between one that fits and one that does not.
template <typename Fits>
qreal Largest(qreal fitting, qreal tooLarge, Fits&& fits) {
    for (int step = 0; step < SizeSteps; ++step) {
        const qreal middle = (fitting + tooLarge) / 2;
        (fits(middle) ? fitting : tooLarge) = middle;
    }
    return fitting;
}

} // namespace

FittedText::FittedText(const ReportFont& font, const QStringList& lines, QSizeF box,
                       Qt::Alignment alignment)
    : m_font(font), m_box(box), m_alignment(alignment) {
    const qreal smallest = std::min(1.0, SmallestPoints / font.Points());
    // No box shows more letters than this, and measuring them would take long.
    const qreal smallLetter = font.Height() * smallest / 4;
    const auto most = static_cast<qsizetype>(100 + m_box.width() * m_box.height() /
                                                       (smallLetter * smallLetter * Narrowest));
    QTextOption option(Qt::AlignAbsolute | (alignment & Qt::AlignHorizontal_Mask));
    option.setTextDirection(Qt::LayoutDirectionAuto);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    for (const QString& line : lines) {
        QString text = WithoutControls(line.left(most), u' ');
        if (line.size() > most)
            text += Ellipsis;
        for (const QChar letter : text) {
            m_left = std::max(m_left, font.LeftOverhang(letter));
            m_right = std::max(m_right, font.RightOverhang(letter));
        }
        m_texts.push_back(std::make_unique<QTextLayout>(text, font.Font()));
        m_texts.back()->setTextOption(option);
    }
    m_box.rwidth() = std::max(1.0, m_box.width() - m_left - m_right);
    LayOut(1, m_box.width() / Endless);
    for (const auto& text : m_texts)
        m_natural = std::max(m_natural, text->lineAt(0).naturalTextWidth());
    if (!LayOutCondensed(1))
        FindSize(smallest);
}

/// Lays the lines out at a scale and wraps those that are too long. True if they fit.
bool FittedText::LayOut(qreal down, qreal across) {
    m_down = down;
    m_across = across;
    // A line that fits exactly must not be wrapped because of rounding.
    const qreal width = m_box.width() / across + 1;
    m_height = 0;
    for (const auto& text : m_texts) {
        text->beginLayout();
        for (QTextLine line = text->createLine(); line.isValid(); line = text->createLine()) {
            line.setLineWidth(width);
            line.setPosition(QPointF(0, m_height));
            m_height += line.height();
        }
        text->endLayout();
    }
    return m_height * m_down <= m_box.height();
}

/// Lays the lines out at a size, with letters as narrow as needed, down to Narrowest.
bool FittedText::LayOutCondensed(qreal size) {
    const qreal needed = m_box.width() / std::max(1.0, m_natural);
    return LayOut(size, std::clamp(needed, size * Narrowest, size));
}

/// Finds the largest size at which everything fits, then the widest letters at that size.
void FittedText::FindSize(qreal smallest) {
    if (!LayOutCondensed(smallest)) {
        Shorten();
        return;
    }
    const qreal size = Largest(smallest, 1, [&](qreal middle) { return LayOutCondensed(middle); });
    LayOutCondensed(size);
    const qreal across =
        Largest(m_across, size, [&](qreal middle) { return LayOut(size, middle); });
    LayOut(size, across);
}

void FittedText::Shorten() {
    const auto room = std::max<std::size_t>(
        1, static_cast<std::size_t>(m_box.height() / (m_font.Height() * m_down)));
    if (m_texts.size() > room) {
        m_texts.resize(room);
        m_texts.back()->setText(m_texts.back()->text() + Ellipsis);
        LayOut(m_down, m_across);
    }
    const auto each = static_cast<int>(room / m_texts.size());
    const QFontMetricsF metrics(m_font.Font());
    for (const auto& text : m_texts) {
        if (text->lineCount() <= each)
            continue;
        const QString all = text->text();
        const int start = text->lineAt(each - 1).textStart();
        text->setText(all.left(start) +
                      metrics.elidedText(all.mid(start), Qt::ElideRight, m_box.width() / m_across));
    }
    LayOut(m_down, m_across);
}

/// Where the lines begin in their box. A single line keeps its baseline at full size, so that it is
/// level with its neighbours.
qreal FittedText::Top() const {
    const qreal height = m_height * m_down;
    const QTextLine first = m_texts.front()->lineAt(0);
    const bool single = m_texts.size() == 1 && m_texts.front()->lineCount() == 1;
    const qreal shown = single ? m_font.Height() : height;
    const qreal lowered = single ? m_font.Ascent() - first.ascent() * m_down : 0;
    qreal top = lowered;
    if (m_alignment & Qt::AlignBottom)
        top += m_box.height() - shown;
    else if (m_alignment & Qt::AlignVCenter)
        top += (m_box.height() - shown) / 2;
    return std::max(0.0, std::min(top, m_box.height() - height));
}

void FittedText::Paint(QPainter& painter, QPointF topLeft) const {
    painter.save();
    painter.setClipRect(QRectF(topLeft, m_box + QSizeF(m_left + m_right, 0)), Qt::IntersectClip);
    painter.translate(topLeft + QPointF(m_left, Top()));
    painter.scale(m_across, m_down);
    for (const auto& text : m_texts)
        text->draw(&painter, QPointF());
    painter.restore();
}
