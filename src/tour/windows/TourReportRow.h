#pragma once

#include "ReportRow.h"

/// The tour report, with its dialog and its options on the command line.
ReportRow TourReportRow();
