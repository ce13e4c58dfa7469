#pragma once

#include "ReportRow.h"

/// The patrol schedule, with its dialog and its options on the command line.
ReportRow PatrolScheduleRow();
