#pragma once

#include "ReportSection.h"

#include <QFont>
#include <QFontMetricsF>
#include <QStringList>

#include <vector>

/// A font of a report with what painting asks of it again and again. All lengths are hundredths of
/// a millimetre: so large that no rounding of glyph widths to whole units shows, whatever the
/// resolution that the page is painted at.
class ReportFont {
public:
    ReportFont(const QStringList& families, const FontFace& face);

    const QFont& Font() const { return m_font; }
    qreal Ascent() const { return m_ascent; }
    qreal Height() const { return m_height; }
    qreal LineSpacing() const { return m_lineSpacing; }
    /// Where an underline runs, below the baseline, and how thick it is.
    qreal UnderlinePosition() const { return m_metrics.underlinePos(); }
    qreal UnderlineThickness() const { return m_metrics.lineWidth(); }

    qreal Width(const QString& text) const;
    /// The text as it fits a width: itself, or shortened with an ellipsis. Most texts fit by far
    /// and are not measured but estimated from the widths of their letters.
    QString Fitted(const QString& text, qreal width) const;
    /// The text, or as much of its beginning as reaches over a width and a little beyond.
    QString Reaching(const QString& text, qreal width) const;

private:
    /// Letters whose width does not depend on their neighbours: Latin, Greek, Cyrillic.
    static constexpr char16_t PlainLetters = 0x0530;

    static bool IsPlain(char16_t letter);
    qreal PlainWidth(char16_t letter) const;

    QFont m_font;
    QFontMetricsF m_metrics;
    qreal m_ascent;
    qreal m_height;
    qreal m_lineSpacing;
    mutable std::vector<float> m_widths; ///< below 0 where not asked for yet
};
