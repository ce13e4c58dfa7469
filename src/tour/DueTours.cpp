#include "DueTours.h"

#include "Rows.h"

#include <algorithm>
#include <map>

namespace {

/// A touch of any location.
struct Evidence {
    DateTime time;
    QString code;
    QString readerId;
};

/// A tour, laid out on some day.
struct Plan {
    Tour tour;
    cTourReport layout;

    const cTourPoint& First() const { return layout.TourPoints().front(); }
    DateTime End() const { return layout.TourPoints().back().TimeLatest(layout.Tolerance); }
};

/// Nothing if the tour has no points.
std::optional<Plan> PlanOn(const Tour& tour, DateTime day) {
    Plan plan{tour, {}};
    plan.layout.TourID = tour.id;
    plan.layout.StartDate = day;
    if (!plan.layout.LoadTourHeader() || !plan.layout.LoadTourPoints())
        return {};
    return plan;
}

Plan Moved(Plan plan, DateTime day) {
    for (cTourPoint& point : plan.layout.TourPoints())
        point.PointDateTime = point.PointDateTime + (day - plan.layout.StartDate);
    plan.layout.StartDate = day;
    return plan;
}

/// The widest margin around a tour in which the evaluation reads touches.
const DateTime Margin = DateTime::FromTime(1, 0);

/// Everything around these plans, in order of time; of one reader alone, if named.
std::vector<Evidence> EvidenceAround(const std::vector<Plan>& plans, const QString& readerId = {}) {
    if (plans.empty())
        return {};
    DateTime from = plans.front().First().PointDateTime, to = plans.front().End();
    for (const Plan& plan : plans) {
        from = std::min(from, plan.First().PointDateTime);
        to = std::max(to, plan.End());
    }
    const QString condition = readerId.isEmpty() ? QString() : QStringLiteral("tPipeID = ? AND ");
    Values values{from - Margin, to + Margin};
    if (!readerId.isEmpty())
        values.insert(values.begin(), readerId);
    std::vector<Evidence> evidence;
    for (Rows rows(QStringLiteral("SELECT dtDateTime, tButtonCode, tPipeID FROM tblEvents WHERE ") +
                       condition +
                       QStringLiteral("wGroupType = 1 AND dtDateTime >= ? AND dtDateTime <= ? "
                                      "ORDER BY dtDateTime"),
                   values);
         !rows.Eof(); rows.MoveNext())
        evidence.push_back({rows.Date(u"dtDateTime"), FixedCode(rows.Text(u"tButtonCode")),
                            rows.Text(u"tPipeID")});
    return evidence;
}

/// The readers that touched a point of the tour, ordered by identifier. The evaluation decides
/// whether that counts.
QStringList ReadersNear(const cTourReport& layout, const std::vector<Evidence>& evidence) {
    QSet<QString> codes, readers;
    for (const cTourPoint& point : layout.TourPoints())
        codes += point.PointButtonId;
    const DateTime from = layout.TourPoints().front().PointDateTime - Margin;
    const DateTime to = layout.TourPoints().back().PointDateTime + Margin;
    auto at =
        std::lower_bound(evidence.begin(), evidence.end(), from,
                         [](const Evidence& touch, DateTime time) { return touch.time < time; });
    for (; at != evidence.end() && at->time <= to; ++at)
        if (codes.contains(at->code))
            readers += at->readerId;
    QStringList sorted(readers.begin(), readers.end());
    sorted.sort();
    return sorted;
}

std::optional<PointCounts> Evaluate(cTourReport layout, const QString& readerId) {
    layout.ReaderId = readerId;
    if (!layout.ReadReaderEvents() || !TryToMatchTourPoints(layout))
        return {};
    const auto outcomes = AssignTouches(layout);
    return outcomes ? std::optional(CountPoints(layout, *outcomes)) : std::nullopt;
}

using Walked = std::pair<QString, PointCounts>; ///< by which reader

/// Leaves out those who were only passing.
std::vector<Walked> WithoutPassers(std::vector<Walked> all) {
    const bool anyOnTime = std::any_of(all.begin(), all.end(),
                                       [](const Walked& one) { return one.second.onTime > 0; });
    const auto score = [&](const Walked& one) {
        return anyOnTime ? one.second.onTime : one.second.Found();
    };
    int best = 1;
    for (const Walked& one : all)
        best = std::max(best, score(one));
    std::erase_if(all, [&](const Walked& one) { return 2 * score(one) < best; });
    return all;
}

Reader ReaderNamed(const QString& id) { return FindReader(id).value_or(Reader{id, {}}); }

void AddDay(const Plan& plan, const std::vector<Evidence>& evidence, QList<DueTour>& due) {
    std::vector<Walked> walked;
    for (const QString& reader : ReadersNear(plan.layout, evidence))
        if (const auto counts = Evaluate(plan.layout, reader); counts && counts->Found() > 0)
            walked.emplace_back(reader, *counts);
    const DateTime start = plan.First().PointDateTime;
    for (const auto& [reader, counts] : WithoutPassers(std::move(walked)))
        due += {plan.tour, start, ReaderNamed(reader), counts};
    if (due.isEmpty() || due.last().tour.id != plan.tour.id || due.last().start != start) {
        PointCounts none;
        none.missing = static_cast<int>(plan.layout.TourPoints().size());
        due += {plan.tour, start, {}, none};
    }
}

/// The tours that were due in the span.
std::vector<Plan> PlansDue(DateTime after, DateTime until) {
    std::vector<Plan> plans;
    for (const Tour& tour : ToursByName()) {
        const auto today = PlanOn(tour, until.DatePart());
        if (!today)
            continue;
        // The days on which the tour ends within the span.
        const DateTime length = today->End() - until.DatePart();
        for (DateTime day = (after - length).DatePart(); day <= until.DatePart();
             day = day + DateTime::FromDays(1))
            if (day + length > after && day + length <= until)
                plans.push_back(Moved(*today, day));
    }
    return plans;
}

QList<DueTour> NewestFirst(QList<DueTour> due) {
    std::stable_sort(due.begin(), due.end(),
                     [](const DueTour& a, const DueTour& b) { return a.start > b.start; });
    return due;
}

} // namespace

QList<DueTour> DueTours(DateTime after, DateTime until) {
    const std::vector<Plan> plans = PlansDue(after, until);
    const std::vector<Evidence> evidence = EvidenceAround(plans);
    QList<DueTour> due;
    for (const Plan& plan : plans)
        AddDay(plan, evidence, due);
    return NewestFirst(std::move(due));
}

QList<DueTour> DueToursOfReader(const QString& readerId, DateTime after, DateTime until) {
    const std::vector<Plan> plans = PlansDue(after, until);
    const std::vector<Evidence> own = EvidenceAround(plans, readerId);
    QList<DueTour> due;
    for (const Plan& plan : plans) {
        if (ReadersNear(plan.layout, own).isEmpty())
            continue;
        const auto counts = Evaluate(plan.layout, readerId);
        if (counts && counts->Found() > 0) // others may show that it was only passing
            AddDay(plan, EvidenceAround({plan}), due);
    }
    due.removeIf([&](const DueTour& one) { return !one.reader || one.reader->id != readerId; });
    return NewestFirst(std::move(due));
}
