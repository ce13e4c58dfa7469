#include "PagePainter.h"

#include "RowSource.h"

#include <algorithm>
#include <cmath>

namespace {

qreal HeightOf(const ReportFont& font, std::size_t lines) {
    return font.Height() + static_cast<qreal>(lines - 1) * font.LineSpacing();
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

PagePainter::PagePainter(QPainter& painter, const std::vector<ReportFont>& fonts,
                         FittedTexts& fitted, PageWords words, int mirroredWidth)
    : m_painter(painter), m_fonts(fonts), m_fitted(fitted), m_words(std::move(words)),
      m_mirroredWidth(mirroredWidth) {
    m_painter.save();
    m_painter.setRenderHint(QPainter::TextAntialiasing);
    // A rule must be one sharp line, not two grey ones.
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
        if (columns[i] < 0)
            PaintFixed(controls[i], origin);
        else
            PaintText(controls[i].Style(), origin,
                      controls[i].PrintedTextOf(rows.ValueAt(row, columns[i])));
    }
}

void PagePainter::PaintFixed(const ReportControl& control, QPoint origin) {
    switch (control.Kind()) {
    case ControlKind::Label:
        PaintText(control.Style(), origin,
                  control.KindOfCaption() == CaptionKind::Pattern
                      ? m_words.Expanded(control.Caption())
                      : control.Caption(),
                  true);
        break;
    case ControlKind::Line:
        PaintLine(control.Style(), origin);
        break;
    case ControlKind::TextBox:
        break; // there is no row
    }
}

QRect PagePainter::BoxOf(const ControlStyle& style, QPoint origin) const {
    QRect box = style.box;
    if (m_mirroredWidth > 0)
        box.moveLeft(m_mirroredWidth - box.left() - box.width());
    return box.translated(origin);
}

Qt::Alignment PagePainter::AlignmentOf(const ControlStyle& style) const {
    constexpr Qt::Alignment sides = Qt::AlignLeft | Qt::AlignRight;
    const bool atASide = (style.alignment & sides) != 0;
    return m_mirroredWidth > 0 && atASide ? style.alignment ^ sides : style.alignment;
}

void PagePainter::PaintLine(const ControlStyle& style, QPoint origin) {
    const QRect box = BoxOf(style, origin);
    const QPoint to = box.topLeft() + QPoint(box.width(), box.height());
    DrawLine(box.topLeft(), to, style.colour, style.thickness);
}

/// The thickness is a whole number of the device's dots, so that equal lines look equal everywhere.
void PagePainter::DrawLine(QPointF from, QPointF to, const QColor& colour, qreal thickness) {
    const qreal dots = std::max(1.0, std::round(thickness * m_painter.deviceTransform().m22()));
    QPen pen(colour, dots, Qt::SolidLine, Qt::FlatCap);
    pen.setCosmetic(true);
    m_painter.setPen(pen);
    m_painter.drawLine(from, to);
    m_colour = QColor();
}

/// Most texts fit their box and are drawn as they are: that is the fast way.
void PagePainter::PaintText(const ControlStyle& style, QPoint origin, const QString& text,
                            bool mayHaveLines) {
    if (text.isEmpty())
        return;
    const QRectF box = BoxOf(style, origin);
    if (IsRule(text)) {
        PaintRule(style, box, text);
        return;
    }
    Use(style);
    if (!mayHaveLines || !text.contains(u'\n')) {
        PaintLines(style, box, std::span(&text, 1));
        return;
    }
    QStringList lines = text.split(u'\n');
    for (QString& line : lines)
        if (line.endsWith(u'\r'))
            line.chop(1);
    PaintLines(style, box, lines);
}

void PagePainter::PaintLines(const ControlStyle& style, const QRectF& box,
                             std::span<const QString> lines) {
    if (!PaintPlainly(style, box, lines))
        PaintFitted(style, box, QStringList(lines.begin(), lines.end()));
}

/// Drawn as one line: letter by letter, the joints would show.
void PagePainter::PaintRule(const ControlStyle& style, const QRectF& box, const QString& text) {
    const ReportFont& font = FontOf(style);
    const qreal width = font.Width(text.left(1)) * static_cast<qreal>(text.size());
    const qreal down =
        FirstBaseline(style, box, 1) +
        (text.startsWith(u'-') ? -font.StrikeOutPosition() : font.UnderlinePosition());
    const qreal length = std::min(width, box.width());
    const qreal left = m_mirroredWidth > 0 ? box.right() - length : box.left();
    const QPointF from(left, std::min(down, box.bottom() - font.LineThickness()));
    DrawLine(from, from + QPointF(length, 0), style.colour, font.LineThickness());
}

bool PagePainter::PaintPlainly(const ControlStyle& style, const QRectF& box,
                               std::span<const QString> lines) {
    const ReportFont& font = FontOf(style);
    const qreal height = HeightOf(font, lines.size());
    if (height > box.height() || !std::all_of(lines.begin(), lines.end(), [&](const QString& line) {
            return font.SurelyFits(line, box.width());
        }))
        return false;
    const Qt::Alignment alignment = AlignmentOf(style);
    qreal baseline = FirstBaseline(style, box, lines.size());
    for (const QString& line : lines) {
        if (!line.isEmpty()) {
            qreal left = box.left() + font.LeftOverhang(line.front());
            if (alignment & Qt::AlignRight)
                left = box.right() - font.Width(line) - font.RightOverhang(line.back());
            else if (alignment & Qt::AlignHCenter)
                left = box.left() + (box.width() - font.Width(line)) / 2;
            m_painter.drawText(QPointF(left, baseline), line);
        }
        baseline += font.LineSpacing();
    }
    return true;
}

void PagePainter::PaintFitted(const ControlStyle& style, const QRectF& box,
                              const QStringList& lines) {
    const std::pair key(&style, lines.join(u'\n'));
    if (const FittedText* kept = m_fitted.object(key)) {
        kept->Paint(m_painter, box.topLeft());
        return;
    }
    auto text = std::make_unique<FittedText>(FontOf(style), lines, box.size(), AlignmentOf(style));
    text->Paint(m_painter, box.topLeft());
    m_fitted.insert(key, text.release());
}

const ReportFont& PagePainter::FontOf(const ControlStyle& style) const {
    return m_fonts[static_cast<std::size_t>(style.font)];
}

const ReportFont& PagePainter::Use(const ControlStyle& style) {
    const ReportFont& font = FontOf(style);
    if (m_font != style.font)
        m_painter.setFont(font.Font());
    if (m_colour != style.colour)
        m_painter.setPen(style.colour);
    m_font = style.font;
    m_colour = style.colour;
    return font;
}

qreal PagePainter::FirstBaseline(const ControlStyle& style, const QRectF& box,
                                 std::size_t lines) const {
    const ReportFont& font = FontOf(style);
    const qreal spare = box.height() - HeightOf(font, lines);
    if (style.alignment & Qt::AlignBottom)
        return box.top() + spare + font.Ascent();
    if (style.alignment & Qt::AlignVCenter)
        return box.top() + spare / 2 + font.Ascent();
    return box.top() + font.Ascent();
}
