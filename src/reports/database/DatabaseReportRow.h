#pragma once

#include "ReportRow.h"

/// The database report, with its dialog and its options on the command line.
ReportRow DatabaseReportRow();
