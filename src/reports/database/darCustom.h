#pragma once

#include "darReport.h"

/// The layout of the database report: a line for each event.
class darCustom : public darReport {
public:
    darCustom() : darReport(QStringLiteral("darCustom")) {}
};
