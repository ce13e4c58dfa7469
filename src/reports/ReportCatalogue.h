#pragma once

#include "ReportRow.h"

#include <vector>

/// All reports, in the order of the reports page.
const std::vector<ReportRow>& ReportCatalogue();
