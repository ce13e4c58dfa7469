#pragma once

#include "ReportRow.h"

/// The reader download report, with its dialog and its options on the command line.
ReportRow ReaderReportRow();
