#include "PlainTour.h"

namespace {

using namespace PlainTour;

struct Location {
    Touch touch;
    QList<Touch> events;
};

QString Clock(qint64 seconds) {
    const qint64 minutes = seconds / 60 % 1440;
    return QStringLiteral("%1:%2")
        .arg(minutes / 60, 2, 10, QLatin1Char('0'))
        .arg(minutes % 60, 2, 10, QLatin1Char('0'));
}

QString NoteRow(const QString& text) { return QString(7, u'|') + text + QString(3, u'|'); }

QString DetailRow(const Touch& touch, const QString& word) {
    return QString(8, u'|') + Clock(touch.time) + u'|' + word + u'|' + touch.details;
}

} // namespace

QStringList PlainTour::Report(const QList<Point>& points, const QList<Touch>& touches,
                              Options options) {
    const qint64 tolerance = options.tolerance * 60;
    const qint64 window = options.tolerance == 0 ? 15 * 60 : tolerance;
    QList<Location> buttons;
    for (const Touch& touch : touches) {
        if (touch.time < points.first().time - window || touch.time > points.last().time + window)
            continue;
        if (touch.type == 1)
            buttons += Location{touch, {}};
        else if (touch.type == 2 && !buttons.isEmpty())
            buttons.last().events += touch;
    }
    if (buttons.isEmpty())
        return {};

    const auto E = [&](const Point& point) { return point.time - tolerance; };
    const auto L = [&](const Point& point) { return point.time + tolerance + 59; };
    QList<bool> ok(points.size(), false);
    for (const Location& button : buttons)
        for (int i = 0; i < points.size(); ++i)
            if (button.touch.code == points[i].code && E(points[i]) <= button.touch.time &&
                button.touch.time <= L(points[i]))
                ok[i] = true;

    QStringList rows;
    bool noLines = true, showPoint = false;
    for (int i = 0; i < points.size(); ++i) {
        const Point& p = points[i];
        const Point prev = i > 0 ? points[i - 1] : Point{p.time - 3600, {}, {}, 0};
        const Point next = i + 1 < points.size() ? points[i + 1] : Point{p.time + 3600, {}, {}, 0};
        const auto tourLine = [&](const QString& status) {
            rows += NoteRow(QString(255, u'_'));
            rows += QStringLiteral("%1|%2|%3 to %4|||%5|%6||||")
                        .arg(p.index)
                        .arg(Clock(p.time), Clock(p.time - tolerance), Clock(p.time + tolerance),
                             p.place, status);
            noLines = false;
        };
        bool lineWritten = false;
        QList<int> consumed;
        for (int j = 0; j < buttons.size(); ++j) {
            const qint64 t = buttons[j].touch.time;
            const QString& c = buttons[j].touch.code;
            QString word;
            if (c != p.code && c != next.code) {
                if (E(p) < t && t < E(next)) {
                    word = "NOT ON TOUR";
                    for (const Point& any : points)
                        if (any.code == c)
                            word = "OUT OF SEQUENCE";
                }
            } else if (c == p.code) {
                // Twice the time, for the middle between two visits may lie on half a second.
                const qint64 twiceLimit =
                    next.code == p.code ? E(next) - L(p) + 2 * L(p) : 2 * L(next);
                if (E(prev) <= t && t < E(p))
                    word = "EARLY";
                else if (E(p) <= t && t <= L(p))
                    word = "ON TIME";
                else if (L(p) < t && 2 * t <= twiceLimit)
                    word = "LATE";
            }
            if (!word.isEmpty())
                consumed += j;
            showPoint = options.showAll || !ok[i];
            if (!showPoint || word.isEmpty())
                continue;
            if (!lineWritten)
                tourLine(ok[i] ? "ON TIME" : "EXCEPTION");
            lineWritten = true;
            rows += DetailRow(buttons[j].touch, word);
            if (options.includeEvents)
                for (const Touch& event : buttons[j].events)
                    rows += DetailRow(event, "EVENT");
        }
        if (showPoint && !lineWritten)
            tourLine("MISSING");
        for (int k = 0; k < consumed.size(); ++k)
            buttons.removeAt(consumed[k] - k);
    }
    if (noLines)
        rows += {NoteRow("NO EXCEPTIONS"), NoteRow(QString(255, u'_'))};
    return rows;
}
