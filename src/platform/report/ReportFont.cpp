#include "ReportFont.h"

#include <QFontDatabase>
#include <QLocale>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double HundredthsPerPoint = 2540.0 / 72.0;
/// Kerning can make a pair of letters slightly wider than the sum of their widths.
constexpr qreal KerningReserve = 1.01;
constexpr qreal UsualOverhang = 0.06;

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

} // namespace

QString FontFault(const QString& language) {
    const bool arabic = QLocale(language).script() == QLocale::ArabicScript;
    return QFontDatabase::families(arabic ? QFontDatabase::Arabic : QFontDatabase::Any).isEmpty()
               ? QStringLiteral("This computer has no font that can show the texts. Please install "
                                "one, such as the package fonts-dejavu-core.")
               : QString();
}

ReportFont::ReportFont(const QStringList& families, const FontFace& face)
    : m_font(MakeFont(families, face)), m_metrics(m_font), m_points(face.points),
      m_ascent(m_metrics.ascent()), m_height(m_metrics.height()),
      m_lineSpacing(m_metrics.lineSpacing()), m_letters(PlainLetters) {}

bool ReportFont::IsPlain(char16_t letter) {
    const bool softHyphen = letter == 0xad;
    const bool combining = letter >= 0x0300 && letter < 0x0370;
    const bool combiningCyrillic = letter >= 0x0483 && letter < 0x048a;
    return letter < PlainLetters && !IsControl(letter) && !softHyphen && !combining &&
           !combiningCyrillic;
}

const ReportFont::Letter& ReportFont::LetterOf(char16_t letter) const {
    Letter& known = m_letters[letter];
    if (known.width < 0) {
        const qreal advance = m_metrics.horizontalAdvance(QChar(letter));
        const QRectF ink = m_metrics.boundingRect(QChar(letter));
        const bool higher = ink.top() < -m_ascent || ink.bottom() > m_height - m_ascent;
        known.width = higher ? std::numeric_limits<float>::infinity() : static_cast<float>(advance);
        known.left = static_cast<float>(std::max(0.0, -ink.left()));
        known.right = static_cast<float>(std::max(0.0, ink.right() - advance));
    }
    return known;
}

qreal ReportFont::LeftOverhang(QChar letter) const {
    return IsPlain(letter.unicode()) ? LetterOf(letter.unicode()).left : m_height * UsualOverhang;
}

qreal ReportFont::RightOverhang(QChar letter) const {
    return IsPlain(letter.unicode()) ? LetterOf(letter.unicode()).right : m_height * UsualOverhang;
}

bool ReportFont::SurelyFits(QStringView line, qreal width) const {
    if (line.isEmpty())
        return true;
    qreal estimate = 0;
    for (const QChar letter : line) {
        if (!IsPlain(letter.unicode()))
            return false;
        estimate += LetterOf(letter.unicode()).width;
        if (estimate * KerningReserve > width)
            return false;
    }
    return estimate * KerningReserve + LeftOverhang(line.front()) + RightOverhang(line.back()) <=
           width;
}
