#pragma once

#include "darReport.h"

/// The layout of the tour report: a rule, the tour line and what was touched, line by line. It
/// prints both the full report and the exceptions alone.
class darTourException : public darReport {
public:
    darTourException() : darReport(QStringLiteral("darTourException")) {}
};
