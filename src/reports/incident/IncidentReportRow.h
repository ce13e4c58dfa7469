#pragma once

#include "ReportRow.h"

/// The incident report, with its dialog and its options on the command line.
ReportRow IncidentReportRow();
