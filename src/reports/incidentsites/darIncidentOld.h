#pragma once

#include "darReport.h"

/// The layout of the incident report with sites: a line for each touch, in the order of time.
class darIncidentOld : public darReport {
public:
    darIncidentOld() : darReport(QStringLiteral("darIncidentOld")) {}
};
