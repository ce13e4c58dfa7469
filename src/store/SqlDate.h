#pragma once

#include "DateTime.h"

#include <QString>

/// A date, or date and time, as SQL text, to be put between "#" signs.
QString SqlDateFmt(DateTime date);
QString SqlDateTimeFmt(DateTime date);
