#pragma once

#include "darReport.h"

/// The layout of the incident report: a heading for each incident, and a line for each time it was
/// recorded.
class darIncident : public darReport {
public:
    darIncident() : darReport(QStringLiteral("darIncident")) {}
};
