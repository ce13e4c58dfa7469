#include "TourWords.h"

#include "mTranslations.h"

namespace {

// All of them are in DejaVu Sans, which the fonts of screen and paper fall back on.
constexpr QChar OnTimeSign(0x2713), ExceptionSign(0x25B3), MissingSign(0x2717);
constexpr QChar BackwardSign(0x25C0), ForwardSign(0x25B6);
constexpr QChar OutOfSequenceSign(0x21C5), NotOnTourSign(0x25CB), EventSign(0x2022);

QChar EarlySign() { return ReadsLeftwards() ? ForwardSign : BackwardSign; }
QChar LateSign() { return ReadsLeftwards() ? BackwardSign : ForwardSign; }

QString Part(int points, const char* pattern) {
    return FormatStr(Translate(pattern), {QString::number(points)});
}

QString Signed(QChar sign, int points, const char* pattern) {
    return points == 0 ? QString() : sign + QStringLiteral(" ") + Part(points, pattern);
}

constexpr auto OnTimePattern = QT_TR_NOOP("%0:s on time");
constexpr auto EarlyPattern = QT_TR_NOOP("%0:s early");
constexpr auto LatePattern = QT_TR_NOOP("%0:s late");
constexpr auto MissingPattern = QT_TR_NOOP("%0:s missing");

} // namespace

QString PointSummary(const PointCounts& counts) {
    QString parts;
    for (const auto& [points, pattern] :
         {std::pair(counts.onTime, OnTimePattern), std::pair(counts.early, EarlyPattern),
          std::pair(counts.late, LatePattern), std::pair(counts.missing, MissingPattern)}) {
        if (points == 0)
            continue;
        const QString part = Part(points, pattern);
        parts = parts.isEmpty() ? part : FormatStr(Translate("%0:s, %1:s"), {parts, part});
    }
    if (counts.Points() == 1)
        return FormatStr(Translate("1 point: %0:s"), {parts});
    return FormatStr(Translate("%0:s points: %1:s"), {QString::number(counts.Points()), parts});
}

QString OnTimeText(int points) { return Signed(OnTimeSign, points, OnTimePattern); }
QString EarlyText(int points) { return Signed(EarlySign(), points, EarlyPattern); }
QString LateText(int points) { return Signed(LateSign(), points, LatePattern); }
QString MissingText(int points) { return Signed(MissingSign, points, MissingPattern); }

QString StatusWord(TouchClass touchClass) {
    switch (touchClass) {
    case TouchClass::Early:
        return Translate("EARLY");
    case TouchClass::OnTime:
        return Translate("ON TIME");
    case TouchClass::Late:
        return Translate("LATE");
    case TouchClass::OutOfSequence:
        return Translate("OUT OF SEQUENCE");
    case TouchClass::NotOnTour:
        return Translate("NOT ON TOUR");
    case TouchClass::NotAssigned:
        break;
    }
    return {};
}

QHash<QString, QString> StatusSigns() {
    return {{Translate("ON TIME"), OnTimeSign},
            {Translate("EARLY"), EarlySign()},
            {Translate("LATE"), LateSign()},
            {Translate("MISSING"), MissingSign},
            {Translate("EXCEPTION"), ExceptionSign},
            {Translate("OUT OF SEQUENCE"), OutOfSequenceSign},
            {Translate("NOT ON TOUR"), NotOnTourSign},
            {Translate("EVENT"), EventSign}};
}
