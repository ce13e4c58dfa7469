#pragma once

#include "ReportRow.h"

/// True if all is there. Otherwise a message says what is missing.
bool ReportNeedsAreMet(ReportNeeds needs);
