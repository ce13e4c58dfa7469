#include "TourEvaluation.h"

#include <algorithm>

std::optional<std::vector<PointOutcome>> AssignTouches(cTourReport& tour) {
    std::vector<PointOutcome> outcomes;
    for (std::size_t position = 0; position < tour.TourPoints().size(); ++position) {
        const cTourPoint& point = tour.TourPoints()[position];
        cTourPoint previous, next;
        if (!GetPrevAndNextTourPoints(position, tour.TourPoints(), point.PointDateTime, previous,
                                      next))
            return {};
        PointOutcome& outcome = outcomes.emplace_back();
        outcome.touchesWereLeft = !tour.Buttons().empty();
        colLocations left;
        for (cLocation& touch : tour.Buttons()) {
            const TouchClass touchClass = Classify(touch, point, previous, next, tour);
            if (touchClass == TouchClass::NotAssigned)
                left.push_back(std::move(touch));
            else
                outcome.touches.push_back({std::move(touch), touchClass});
        }
        tour.Buttons() = std::move(left);
    }
    return outcomes;
}

PointCounts CountPoints(const cTourReport& tour, const std::vector<PointOutcome>& outcomes) {
    PointCounts counts;
    for (std::size_t i = 0; i < outcomes.size(); ++i) {
        const cTourPoint& point = tour.TourPoints()[i];
        const auto& touches = outcomes[i].touches;
        const auto own =
            std::find_if(touches.begin(), touches.end(), [&](const AssignedTouch& assigned) {
                return assigned.touch.ButtonCode == point.PointButtonId;
            });
        if (point.PointOK && !touches.empty())
            ++counts.onTime;
        else if (own == touches.end())
            ++counts.missing;
        else if (own->touchClass == TouchClass::Early)
            ++counts.early;
        else
            ++counts.late;
    }
    return counts;
}
