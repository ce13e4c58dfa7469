#pragma once

#include "ReportRow.h"

#include <vector>

/// All reports, in the order of the reports page.
const std::vector<ReportRow>& ReportCatalogue();

/// False once a message has said what must be added first.
bool ReportNeedsAreMet(ReportNeeds needs);
