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
    qreal Points() const { return m_points; }
    qreal Ascent() const { return m_ascent; }
    qreal Height() const { return m_height; }
    qreal LineSpacing() const { return m_lineSpacing; }
    /// Where an underline runs, below the baseline, and how thick it is.
    qreal UnderlinePosition() const { return m_metrics.underlinePos(); }
    qreal UnderlineThickness() const { return m_metrics.lineWidth(); }

    qreal Width(const QString& text) const { return m_metrics.horizontalAdvance(text); }
    /// Whether a line's ink surely stays within a width and within the font's height. Most texts do
    /// by far; they are not measured but estimated from their letters. False means nothing.
    bool SurelyFits(QStringView line, qreal width) const;
    /// How far a letter's ink reaches out to the left or to the right of its place. For letters
    /// whose shape depends on their neighbours, as far as any should.
    qreal LeftOverhang(QChar letter) const;
    qreal RightOverhang(QChar letter) const;

private:
    /// Letters whose width does not depend on their neighbours: Latin, Greek, Cyrillic.
    static constexpr char16_t PlainLetters = 0x0530;

    struct Letter {
        float width = -1; ///< below 0 where not asked for yet, endless where higher than its line
        float left = 0;
        float right = 0;
    };

    static bool IsPlain(char16_t letter);
    const Letter& LetterOf(char16_t letter) const;

    QFont m_font;
    QFontMetricsF m_metrics;
    qreal m_points;
    qreal m_ascent;
    qreal m_height;
    qreal m_lineSpacing;
    mutable std::vector<Letter> m_letters;
};
