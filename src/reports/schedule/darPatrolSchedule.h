#pragma once

#include "darReport.h"

/// The layout of the patrol schedule: a line for each point of a tour.
class darPatrolSchedule : public darReport {
public:
    darPatrolSchedule() : darReport(QStringLiteral("darPatrolSchedule")) {}
};
