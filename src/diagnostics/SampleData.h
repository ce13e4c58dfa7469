#pragma once

#include "DateTime.h"

/// Makes a tour over all location buttons, and the touches of a guard who walks it on time with the
/// first reader. `start` is the first point, `step` the time from one point to the next. Each event
/// button is touched once, at one of the points. All is one transaction. A box says what was done.
void MakeFakeData(DateTime start, DateTime step);
