#pragma once

#include "ReportRow.h"

/// The hardware list, with its dialog and its options on the command line.
ReportRow HardwareListRow();
