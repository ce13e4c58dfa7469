#pragma once

#include "ReportSection.h"

#include <QFont>
#include <QFontMetricsF>
#include <QStringList>

#include <vector>

/// Why reports in a language, such as "ar", cannot be read on this machine: it has no font for
/// them. Empty if it has one.
QString FontFault(const QString& language);

/// A font of a report with the measures that painting often needs. All lengths are hundredths of a
/// millimetre. At that scale, glyph widths rounded to whole units look right at every resolution.
class ReportFont {
public:
    ReportFont(const QStringList& families, const FontFace& face);

    const QFont& Font() const { return m_font; }
    qreal Points() const { return m_points; }
    qreal Ascent() const { return m_ascent; }
    qreal Height() const { return m_height; }
    qreal LineSpacing() const { return m_lineSpacing; }
    /// Distance of an underline below the baseline, of a line through the letters above it, and
    /// their thickness.
    qreal UnderlinePosition() const { return m_metrics.underlinePos(); }
    qreal StrikeOutPosition() const { return m_metrics.strikeOutPos(); }
    qreal LineThickness() const { return m_metrics.lineWidth(); }

    qreal Width(const QString& text) const { return m_metrics.horizontalAdvance(text); }
    /// True if a line's ink certainly stays within a width and the font's height. It is estimated
    /// from the letters, not measured, so false does not mean that the line is too long.
    bool SurelyFits(QStringView line, qreal width) const;
    /// How far a letter's ink reaches beyond its place, to the left or to the right. For letters
    /// whose shape depends on their neighbours it is a generous guess.
    qreal LeftOverhang(QChar letter) const;
    qreal RightOverhang(QChar letter) const;

private:
    /// Letters whose width does not depend on their neighbours: Latin, Greek, Cyrillic.
    static constexpr char16_t PlainLetters = 0x0530;

    struct Letter {
        float width = -1; ///< below 0 if not measured yet, infinite if higher than its line
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
