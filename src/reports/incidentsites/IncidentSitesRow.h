#pragma once

#include "ReportRow.h"

/// The incident report with sites, with its dialog and its options on the command line.
ReportRow IncidentSitesRow();
