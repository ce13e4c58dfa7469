#include "PagePainter.h"

#include "RowSource.h"

#include <algorithm>
#include <cmath>

namespace {

bool IsRule(const QString& text) {
    return std::all_of(text.begin(), text.end(), [](QChar letter) { return letter == u'_'; });
}

} // namespace

QString PageWords::Expanded(const QString& pattern) const {
    if (!pattern.contains(u'%'))
        return pattern;
    QString text;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar next = pattern[i] == u'%' && i + 1 < pattern.size() ? pattern[i + 1] : QChar();
        switch (next.unicode()) {
        case u'p':
            text += page;
            break;
        case u'P':
            text += pages;
            break;
        case u'd':
            text += date;
            break;
        case u't':
            text += time;
            break;
        default:
            text += pattern[i];
            continue;
        }
        ++i;
    }
    return text;
}

PagePainter::PagePainter(QPainter& painter, const std::vector<ReportFont>& fonts, PageWords words)
    : m_painter(painter), m_fonts(fonts), m_words(std::move(words)) {
    m_painter.save();
    m_painter.setRenderHint(QPainter::TextAntialiasing);
    // A rule is to be one sharp line, not two grey ones.
    m_painter.setRenderHint(QPainter::Antialiasing, false);
    // Each text runs in its own direction, whatever the language of the windows.
    m_painter.setLayoutDirection(Qt::LayoutDirectionAuto);
}

PagePainter::~PagePainter() { m_painter.restore(); }

void PagePainter::PaintSection(const ReportSection& section, QPoint origin) {
    for (const ReportControl& control : section.AllControls())
        PaintFixed(control, origin);
}

void PagePainter::PaintRow(const ReportSection& section, QPoint origin, const RowSource& rows,
                           qsizetype row, const std::vector<int>& columns) {
    const std::vector<ReportControl>& controls = section.AllControls();
    for (std::size_t i = 0; i < controls.size(); ++i) {
        if (columns[i] < 0) {
            PaintFixed(controls[i], origin);
            continue;
        }
        const QString text = rows.TextAt(row, columns[i]);
        if (text.isEmpty())
            continue;
        const ControlStyle& style = controls[i].Style();
        const QRectF box = style.box.translated(origin);
        PaintText(style, box, FirstBaseline(style, box, 1), text);
    }
}

void PagePainter::PaintFixed(const ReportControl& control, QPoint origin) {
    switch (control.Kind()) {
    case ControlKind::Label:
        PaintLabel(control.Style(), origin,
                   control.KindOfCaption() == CaptionKind::Pattern
                       ? m_words.Expanded(control.Caption())
                       : control.Caption());
        break;
    case ControlKind::Line:
        PaintLine(control.Style(), origin);
        break;
    case ControlKind::TextBox:
        break; // shows nothing without a row
    }
}

void PagePainter::PaintLine(const ControlStyle& style, QPoint origin) {
    const QPoint from = style.box.topLeft() + origin;
    const QPoint to = from + QPoint(style.box.width(), style.box.height());
    DrawLine(from, to, style.colour, style.thickness);
}

/// As thick as a whole number of the device's dots: alike lines look alike wherever they fall.
void PagePainter::DrawLine(QPointF from, QPointF to, const QColor& colour, qreal thickness) {
    const qreal dots = std::max(1.0, std::round(thickness * m_painter.deviceTransform().m22()));
    QPen pen(colour, dots, Qt::SolidLine, Qt::FlatCap);
    pen.setCosmetic(true);
    m_painter.setPen(pen);
    m_painter.drawLine(from, to);
    m_colour = QColor();
}

void PagePainter::PaintLabel(const ControlStyle& style, QPoint origin, const QString& caption) {
    if (caption.isEmpty())
        return;
    QStringList lines = caption.split(u'\n');
    const QRectF box = style.box.translated(origin);
    qreal baseline = FirstBaseline(style, box, lines.size());
    for (QString& line : lines) {
        if (line.endsWith(u'\r'))
            line.chop(1);
        PaintText(style, box, baseline, line);
        baseline += m_fonts[static_cast<std::size_t>(style.font)].LineSpacing();
    }
}

/// A text of underscores alone is a rule. Letter by letter its joints would show.
void PagePainter::PaintRule(const ControlStyle& style, const QRectF& box, qreal baseline,
                            qsizetype letters) {
    const ReportFont& font = m_fonts[static_cast<std::size_t>(style.font)];
    const qreal width = font.Width(QStringLiteral("_")) * static_cast<qreal>(letters);
    const QPointF from(box.left(), baseline + font.UnderlinePosition());
    DrawLine(from, from + QPointF(std::min(width, box.width()), 0), style.colour,
             font.UnderlineThickness());
}

void PagePainter::PaintText(const ControlStyle& style, const QRectF& box, qreal baseline,
                            const QString& text) {
    const bool clip = style.overflow == Overflow::Clip;
    if (clip && IsRule(text)) {
        PaintRule(style, box, baseline, text.size());
        return;
    }
    const ReportFont& font = Use(style);
    const QString shown = clip ? font.Reaching(text, box.width()) : font.Fitted(text, box.width());
    qreal left = box.left();
    if (style.alignment & Qt::AlignRight)
        left = box.right() - font.Width(shown);
    else if (style.alignment & Qt::AlignHCenter)
        left += (box.width() - font.Width(shown)) / 2;

    if (clip) {
        m_painter.save();
        m_painter.setClipRect(box, Qt::IntersectClip);
    }
    m_painter.drawText(QPointF(left, baseline), shown);
    if (clip)
        m_painter.restore();
}

const ReportFont& PagePainter::Use(const ControlStyle& style) {
    const ReportFont& font = m_fonts[static_cast<std::size_t>(style.font)];
    if (m_font != style.font)
        m_painter.setFont(font.Font());
    if (m_colour != style.colour)
        m_painter.setPen(style.colour);
    m_font = style.font;
    m_colour = style.colour;
    return font;
}

qreal PagePainter::FirstBaseline(const ControlStyle& style, const QRectF& box,
                                 qsizetype lines) const {
    const ReportFont& font = m_fonts[static_cast<std::size_t>(style.font)];
    const qreal height = font.Height() + static_cast<qreal>(lines - 1) * font.LineSpacing();
    const qreal spare = box.height() - height;
    if (style.alignment & Qt::AlignBottom)
        return box.top() + spare + font.Ascent();
    if (style.alignment & Qt::AlignVCenter)
        return box.top() + spare / 2 + font.Ascent();
    return box.top() + font.Ascent();
}
