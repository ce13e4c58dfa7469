#include "ReportFont.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double HundredthsPerPoint = 2540.0 / 72.0;
/// Pairs of letters may stand a little further apart than their widths tell.
constexpr qreal KerningReserve = 1.01;
/// Or closer together: an "AVAVAV" is by so much shorter than its letters.
constexpr qreal KerningLoss = 1.25;

QFont MakeFont(const QStringList& families, const FontFace& face) {
    QFont font;
    font.setFamilies(families);
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(static_cast<int>(std::lround(face.points * HundredthsPerPoint)));
    font.setBold(face.bold);
    font.setItalic(face.italic);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

bool IsControl(char16_t letter) { return letter < 0x20 || (letter >= 0x7f && letter < 0xa0); }

/// A line break or a tab within a value would be drawn as a box.
QString WithoutControls(QString text) {
    std::replace_if(
        text.begin(), text.end(), [](QChar c) { return IsControl(c.unicode()); }, u' ');
    return text;
}

} // namespace

ReportFont::ReportFont(const QStringList& families, const FontFace& face)
    : m_font(MakeFont(families, face)), m_metrics(m_font), m_ascent(m_metrics.ascent()),
      m_height(m_metrics.height()), m_lineSpacing(m_metrics.lineSpacing()),
      m_widths(PlainLetters, -1.0F) {}

bool ReportFont::IsPlain(char16_t letter) {
    const bool softHyphen = letter == 0xad;
    const bool combining = letter >= 0x0300 && letter < 0x0370;
    return letter < PlainLetters && !IsControl(letter) && !softHyphen && !combining;
}

qreal ReportFont::PlainWidth(char16_t letter) const {
    float& width = m_widths[letter];
    if (width < 0)
        width = static_cast<float>(m_metrics.horizontalAdvance(QChar(letter)));
    return width;
}

qreal ReportFont::Width(const QString& text) const { return m_metrics.horizontalAdvance(text); }

QString ReportFont::Fitted(const QString& text, qreal width) const {
    qreal estimate = 0;
    const bool surelyFits = std::all_of(text.begin(), text.end(), [&](QChar letter) {
        if (!IsPlain(letter.unicode()))
            return false;
        estimate += PlainWidth(letter.unicode());
        return estimate * KerningReserve <= width;
    });
    if (surelyFits)
        return text;
    const QString line = WithoutControls(text);
    return Width(line) <= width ? line : m_metrics.elidedText(line, Qt::ElideRight, width);
}

QString ReportFont::Reaching(const QString& text, qreal width) const {
    qreal reached = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!IsPlain(text[i].unicode()))
            return WithoutControls(text);
        reached += PlainWidth(text[i].unicode());
        if (reached > width * KerningLoss)
            return text.left(i + 1);
    }
    return text;
}
